#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/state/window_class.hpp"

#include <deque>

namespace brinewright {

// One constellation in the dialog. Elements count from 0, the systems of the state from 1.
struct GNSS_System_Row {
    explicit GNSS_System_Row(Stand At);
    Label lblGNSS_System;
    Check_Box chkUse;
    Combo_Box cmbMode;
};

std::deque<GNSS_System_Row> System_Rows(Form& F);

// "GNSS n Configuration": which constellations are behind the fix of a GNSS window and how, and so the mode
// field and the talker of GNS, which is independent of the talker of all other sentences. Instance is the
// slot of the window. What is chosen holds from OK on.
struct frmGNSS : Form {
    static constexpr const char* Class_Name = "frmGNSS";

    frmGNSS(Desktop& Windows, int Slot);

    std::deque<GNSS_System_Row> Systems = System_Rows(*this); // GPS, GLONASS, Galileo, BDS, QZSS, NavIC
    Label lblModeIndicatorTitle{*this, "lblModeIndicatorTitle", "GNS Mode Indicator : "};
    Label lblGNSModeIndicator{*this, "lblGNSModeIndicator"};
    Label lblSystemsTitle{*this, "lblSystemsTitle", "GNSS Systems in use :"};
    Label lblGNSS_Config{*this, "lblGNSS_Config"};
    Label lblTalkerTitle{*this, "lblTalkerTitle", "GNS Talker : "};
    Label lblGNSTalker{*this, "lblGNSTalker"};
    Button cmdOK{*this, "cmdOK", "OK"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};
};

Layout Lay_Out_GNSS_Configuration(Simulator& Sim, Form& Shown);

extern const Window_Class GNSS_Configuration_Windows;

// Brings the three labels to what is chosen: one mode letter a system, "N" for one that is not used, without
// the unused ones at the end; the names; the talker, "GN" unless exactly one system is used.
void ReArrange(frmGNSS& F);

} // namespace brinewright
