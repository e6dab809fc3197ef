#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

extern const Window_Class TCP_Status_Window;

// "TCP/IP Status": whether the server listens, who is connected, the history of clients.
struct frmTCPIP : Form {
    static constexpr const char* Class_Name = "frmTCPIP";

    explicit frmTCPIP(Desktop& Windows);

    Label lblStatus{*this, "lblStatus", "Status :"};
    Label lblTX{*this, "lblTX"};
    Combo_Box cmbConnections{*this, "cmbConnections", "", "Clients since the start of the program"};
    Label lblIP{*this, "lblIP"};
    Label lblPort{*this, "lblPort"};
};

Layout Lay_Out_TCPIP(Simulator& Sim, Form& Shown);

} // namespace brinewright
