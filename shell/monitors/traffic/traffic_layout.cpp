#include "shell/kit/layout.hpp"
#include "shell/monitors/traffic/frm_traffic.hpp"

namespace brinewright {

Layout Lay_Out_Traffic(Simulator&, Form& Shown) {
    auto& W = static_cast<frmTraffic&>(Shown);
    const auto List = Listing(W.hfgTraffic, {"00:00:00.000", "UDP 60004", "Direction", "Echosounder 2",
                                             "PRDID", "Since last s", "000.00", "Verdict"})
                          .Sentence_Face()
                          .Least_Width(640)
                          .Least_Height(150)
                          .Wide(3);
    const auto Fields_Of_One =
        Listing(W.hfgFields, {"Age of differential corrections, series", "00000000000000000000000"})
            .Least_Height(110)
            .Wide(2);
    const auto Repeats = [&W] { return W.timer_Send.Interval_ms() > 0 ? Role::Good : Role::Plain; };
    return Dialog(
        {Row({W.cmbSource, W.cmbPort, W.cmbType, W.cmbVerdict, Dim(W.lblFilter), Place(W.txtFilter).Wide(),
              W.cmdPause, W.cmdClear, W.cmdExport}),
         Halves({List, Column({Row({Text("Search"), Place(W.txtSearch).Wide(), W.cmdFind, Stretch(),
                                    Dim(W.lblCount)}),
                               Row({Marked(W.txtSentence, 2).Wide(), W.cmdResend, W.cmdEdit}), Fields_Of_One})
                           .Wide(2)})
             .Wide(),
         Row({Dim(W.lblOwn), Place(W.txtSend).Wide(), W.cmbSendPort, W.cmdSend, Dim(W.lblEvery),
              Place(W.txtEvery).Width("0000.00"), Dim(W.lblEveryUnit), Place(W.cmdRepeat).Lit(Repeats)}),
         W.lblSend});
}

} // namespace brinewright
