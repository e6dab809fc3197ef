#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

extern const Window_Class Virtual_Port_Window;

// "Virtual Port Setup": which of the numbers that no serial port has the virtual port takes.
struct frmVirtualPort : Form {
    static constexpr const char* Class_Name = "frmVirtualPort";

    explicit frmVirtualPort(Desktop& Windows);

    Label lblVirtualPort{*this, "lblVirtualPort", "Select Virtual port no"};
    Combo_Box cmbVirtualPort{*this, "cmbVirtualPort", "", "Numbers that no serial port of this machine has"};
    Button cmdOK{*this, "cmdOK", "OK", "Takes this number for the virtual port"};
};

Layout Lay_Out_Virtual_Port(Simulator& Sim, Form& Shown);

} // namespace brinewright
