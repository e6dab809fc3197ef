#include "links/port_setup/frm_virtual_port.hpp"
#include "shell/kit/layout.hpp"

namespace brinewright {

Layout Lay_Out_Virtual_Port(Simulator&, Form& Shown) {
    auto& W = static_cast<frmVirtualPort&>(Shown);
    return Dialog({Row({Dim(W.lblVirtualPort), Place(W.cmbVirtualPort).Least_Width(120), Stretch()}),
                   Buttons({W.cmdOK})})
        .Least_Width(280);
}

} // namespace brinewright
