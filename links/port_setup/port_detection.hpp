#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

struct Simulator;
struct frmSetup;

// How far the detection of ports is.
struct frmProgress : Form {
    static constexpr const char* Class_Name = "frmProgress";

    explicit frmProgress(Desktop& Windows);

    Label lblPercent{*this, "lblPercent", "0 %"};
    Label lblTime{*this, "lblTime", "0 sec"}; // since the start
};

Layout Lay_Out_Progress(Simulator& Sim, Form& Shown);

extern const Window_Class Progress_Window;

// Looks which of the serial ports 1 to 16 are there by trying them, one for each turn of the event loop, and
// shows their frames. A port that somebody else holds is not disturbed, nor is one that this program has
// open. Meanwhile OK and Reset wait; Cancel ends it.
void Start_Detection(Simulator& Sim, frmSetup& F);

} // namespace brinewright
