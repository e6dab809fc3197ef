#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/monitors/monitor_pane.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

// "Comport Monitor": one pane for each link in use, with what left. A quick look: a pane holds four sentences
// at most.
struct frmMonitor : Form {
    static constexpr const char* Class_Name = "frmMonitor";

    explicit frmMonitor(Desktop& Windows);

    Control_Array<Label, 1, 28> lblComport{*this, "lblComport"};
    Control_Array<Text_Box, 1, 28> txtCom{*this, "txtCom", "", "The last sentences that left here"};
    Control_Array<Button, 1, 28> cmdFreeze{*this, "cmdFreeze", monitor_caption::Running,
                                           "Holds this pane still; the sentences go on leaving"};
    Control_Array<Button, 1, 28> cmdClear{*this, "cmdClear", "Clear", "Empties this pane"};
};

Layout Lay_Out_Monitor(Simulator& Sim, Form& Shown);

extern const Window_Class Monitor_Window;

} // namespace brinewright
