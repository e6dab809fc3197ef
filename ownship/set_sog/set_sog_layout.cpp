#include "ownship/set_sog/frm_set_sog.hpp"
#include "shell/kit/layout.hpp"

namespace brinewright {

Layout Lay_Out_Set_SOG(Simulator&, Form& Shown) {
    auto& W = static_cast<frmSetSOG&>(Shown);
    return Dialog({Fields({{W.lblSOG, W.txtSOG, &W.lblSOGUnit}, {W.lblCOG, W.txtCOG, &W.lblCOGUnit}}),
                   Buttons({W.cmdOK, W.cmdCancel})});
}

} // namespace brinewright
