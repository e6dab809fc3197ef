#include "links/tcp_status/frm_tcpip.hpp"
#include "shell/kit/layout.hpp"

namespace brinewright {

Layout Lay_Out_TCPIP(Simulator&, Form& Shown) {
    auto& W = static_cast<frmTCPIP&>(Shown);
    return Dialog({Row({Place(W.lblStatus).Wide(), Text("Address"), W.lblIP, Text("Port"), W.lblPort}),
                   Dim(W.lblTX), W.cmbConnections, Stretch()});
}

} // namespace brinewright
