#include "shell/kit/layout.hpp"
#include "shell/monitors/extended_monitor/frm_extended_monitor.hpp"

namespace brinewright {

Layout Lay_Out_Extended_Monitor(Simulator&, Form& Shown) {
    auto& W = static_cast<frmExtendedMonitor&>(Shown);
    return Dialog(
        {Row({Dim(W.lblSystem), Place(W.cmbComPort).Least_Width(160), Stretch(), W.cmdFreeze, W.cmdClear}),
         Dim(W.lblOutput), Pane(W.txtOutput, 5).Wide(), Dim(W.lblInput), Pane(W.txtInput, 5).Wide()});
}

} // namespace brinewright
