#include "shell/kit/layout.hpp"
#include "shell/monitors/traffic/frm_traffic.hpp"

namespace brinewright {

Layout Lay_Out_Traffic(Simulator&, Form& Shown) {
    auto& W = static_cast<frmTraffic&>(Shown);
    const auto Log = Listing(W.hfgTraffic, {"00:00:00.000", "UDP 60004", "PRDID", "Length", "Checksum"})
                         .Sentence_Face()
                         .Least_Width(640)
                         .Least_Height(180)
                         .Wide(3);
    const auto Fields_Of_One =
        Listing(W.hfgFields, {"Age of differential corrections, series", "0000000000000000000000"})
            .Least_Height(150)
            .Wide(2);
    return Dialog({Row({W.cmbPort, W.cmbType, Dim(W.lblFilter), Place(W.txtFilter).Wide(), W.cmdPause,
                        W.cmdClear, W.cmdExport}),
                   Halves({Log, Fields_Of_One}).Wide(),
                   Row({Text("Search"), Place(W.txtSearch).Wide(), W.cmdFind, Stretch(), Dim(W.lblCount)})});
}

} // namespace brinewright
