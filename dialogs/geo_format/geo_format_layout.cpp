#include "dialogs/geo_format/frm_geo_format.hpp"
#include "shell/kit/layout.hpp"

namespace brinewright {

Layout Lay_Out_Geo_Format(Simulator&, Form& Shown) {
    auto& W = static_cast<frmGeoFormat&>(Shown);
    return Dialog({Box("Format", Column(Each(W.optFormat.Buttons)).Spaced(rhythm::Toolkit)),
                   Row({Dim(W.lblDecimals), Place(W.cmbDecimals).Least_Width(80), Stretch()}),
                   Readout(W.lblExample, 22, 300), Buttons({W.cmdOk, W.cmdCancel})});
}

} // namespace brinewright
