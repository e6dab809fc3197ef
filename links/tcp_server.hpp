#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"

#include <string>

namespace brinewright {

struct Simulator;

// "TCP/IP Status": whether the server listens, who is connected, the history of clients.
struct frmTCPIP : Form {
    explicit frmTCPIP(Desktop& Windows);

    Label lblStatus{*this, "lblStatus", "Status :"};
    Label lblTX{*this, "lblTX"};
    Combo_Box cmbConnections{*this, "cmbConnections"};
    Label lblIP{*this, "lblIP"};
    Label lblPort{*this, "lblPort"};
};

void Show_frmTCPIP(Simulator& Sim); // without focus; an open one only gets the port that is set now

// Listens on TCP_Port with the element TCP_Client_Max_Index. A port that is taken is told in a box, and the
// program goes on without a server.
void TCP_Listen(Simulator& Sim);

// Ends the server and all its connections: the link is no longer in use.
void TCP_Stop(Simulator& Sim);

// Sends Text to every connected client. A client that does not read misses whole texts; the others are
// undisturbed.
void Write_TCP(Simulator& Sim, const std::string& Text);

} // namespace brinewright
