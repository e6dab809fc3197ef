#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

// "Extended Comport Monitor": one link chosen by the user, sent and received, in two panes.
struct frmExtendedMonitor : Form {
    static constexpr const char* Class_Name = "frmExtendedMonitor";

    explicit frmExtendedMonitor(Desktop& Windows);

    Label lblSystem{*this, "lblSystem", "Comport"};
    Combo_Box cmbComPort{*this, "cmbComPort", "Select comport"};
    Button cmdFreeze{*this, "cmdFreeze", "Freeze"};
    Button cmdClear{*this, "cmdClear", "Clear"};
    Label lblOutput{*this, "lblOutput", "TX - Output"};
    Text_Box txtOutput{*this, "txtOutput"};
    Label lblInput{*this, "lblInput", "RX - Input"};
    Text_Box txtInput{*this, "txtInput"};
};

Layout Lay_Out_Extended_Monitor(Simulator& Sim, Form& Shown);

extern const Window_Class Extended_Monitor_Window;

} // namespace brinewright
