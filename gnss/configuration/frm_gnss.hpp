#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/state/window_class.hpp"

#include <deque>

namespace brinewright {

extern const Window_Class GNSS_Configuration_Windows;

// One constellation in the dialog. Elements count from 0, the systems of the state from 1.
struct GNSS_System_Row {
    explicit GNSS_System_Row(Stand At);
    Label lblGNSS_System;
    Check_Box chkUse;
    Combo_Box cmbMode;
};

// "GNSS n Configuration": which constellations are behind the fix of a GNSS window and how, and so the mode
// field and the talker of GNS, which is independent of the talker of all other sentences. Instance is the
// slot of the window. What is chosen holds from OK on.
struct frmGNSS : Form {
    static constexpr const char* Class_Name = "frmGNSS";

    frmGNSS(Desktop& Windows, int Slot);

    std::deque<GNSS_System_Row> Systems; // GPS, GLONASS, Galileo, BDS, QZSS, NavIC
    Label lblModeIndicatorTitle{*this, "lblModeIndicatorTitle",
                                "GNS Mode Indicator : ", "Mode field of GNS: one letter a system"};
    Label lblGNSModeIndicator{*this, "lblGNSModeIndicator", "",
                              "Mode field of GNS: one letter a system, 1 to 6 of them"};
    Label lblSystemsTitle{*this, "lblSystemsTitle", "GNSS Systems in use :", "The systems behind the fix"};
    Label lblGNSS_Config{*this, "lblGNSS_Config", "", "The systems behind the fix"};
    Label lblTalkerTitle{*this, "lblTalkerTitle", "GNS Talker : ", "Talker of GNS"};
    Label lblGNSTalker{*this, "lblGNSTalker", "", "Talker of GNS: GN unless exactly one system is in use"};
    Button cmdOK{*this, "cmdOK", "OK", "GNS changes with its next sentence"};
    Button cmdCancel{*this, "cmdCancel", "Cancel", "GNS stays as it is"};
};

// Brings the three labels to what is chosen: one mode letter a system, "N" for one that is not used, without
// the unused ones at the end; the names; the talker, "GN" unless exactly one system is used.
void ReArrange(frmGNSS& F);

Layout Lay_Out_GNSS_Configuration(Simulator& Sim, Form& Shown);

} // namespace brinewright
