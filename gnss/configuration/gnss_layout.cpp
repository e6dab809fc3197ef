#include "gnss/configuration/frm_gnss.hpp"
#include "shell/kit/layout.hpp"

namespace brinewright {

Layout Lay_Out_GNSS_Configuration(Simulator&, Form& Shown) {
    auto& W = static_cast<frmGNSS&>(Shown);
    std::vector<Layout> Systems;
    int Line = 0;
    for (GNSS_System_Row& System : W.Systems) {
        Systems.push_back(At(Line, 0, System.lblGNSS_System));
        Systems.push_back(At(Line, 1, System.chkUse));
        Systems.push_back(At(Line, 2, System.cmbMode));
        ++Line;
    }
    return Dialog(
        {Box("Constellations", Cells(std::move(Systems), {.Across = rhythm::Margin, .Down = rhythm::Gap})),
         Fields({{W.lblModeIndicatorTitle, Place(W.lblGNSModeIndicator, Role::Readout)},
                 {W.lblSystemsTitle, Place(W.lblGNSS_Config, Role::Readout)},
                 {W.lblTalkerTitle, Place(W.lblGNSTalker, Role::Readout)}}),
         Buttons({W.cmdOK, W.cmdCancel})});
}

} // namespace brinewright
