#include "links/tcp_server.hpp"
#include "shell/layouts.hpp"

namespace brinewright {

Layout Lay_Out_TCPIP(Simulator&, Form& Shown) {
    auto& W = static_cast<frmTCPIP&>(Shown);
    return Dialog({Row({Place(W.lblStatus).Wide(), Text("Address"), W.lblIP, Text("Port"), W.lblPort}),
                   Dim(W.lblTX), W.cmbConnections, Stretch()});
}

} // namespace brinewright
