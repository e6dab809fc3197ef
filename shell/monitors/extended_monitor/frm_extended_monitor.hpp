#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/monitors/monitor_pane.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

// "Extended Comport Monitor": one link chosen by the user, sent and received, in two panes.
struct frmExtendedMonitor : Form {
    static constexpr const char* Class_Name = "frmExtendedMonitor";

    explicit frmExtendedMonitor(Desktop& Windows);

    Label lblSystem{*this, "lblSystem", "Comport"};
    Combo_Box cmbComPort{*this, "cmbComPort", "Select comport", "The link to watch"};
    Button cmdFreeze{*this, "cmdFreeze", monitor_caption::Running,
                     "Holds both panes still; the link goes on working"};
    Button cmdClear{*this, "cmdClear", "Clear", "Empties both panes"};
    Label lblOutput{*this, "lblOutput", "TX - Output"};
    Text_Box txtOutput{*this, "txtOutput"};
    Label lblInput{*this, "lblInput", "RX - Input"};
    Text_Box txtInput{*this, "txtInput"};
};

Layout Lay_Out_Extended_Monitor(Simulator& Sim, Form& Shown);

extern const Window_Class Extended_Monitor_Window;

} // namespace brinewright
