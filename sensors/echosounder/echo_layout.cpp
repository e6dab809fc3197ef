#include "sensors/echosounder/frm_echosounder.hpp"
#include "shell/kit/sensor_layout.hpp"

namespace brinewright {

namespace {

Layout Depth_Box(frmEchosounder& W) {
    return Box(
        W.frmDepth,
        Row({Standing(W.scrDepth, {100, 1000}).Least_Height(Least_Standing_Bar),
             Column({Readout(W.lblDepth, 28, "000.0"), Dim(W.lblDepthUnit), Stretch(), W.txtDepth}).Wide()}));
}

Layout Sent_Box(frmEchosounder& W) {
    const auto Title =
        Row({Dim(W.lblTransducer), Dim(W.lblOffset)}).Spaced(rhythm::Base); // one caption of two labels
    return Box(W.frmCurrentValue, Column({Readout(W.lblCurrentDepth, 34, "000.00", Text("meter")), Stretch(),
                                          Row({Title, Stretch(), W.cmbOffset, Text("m")}),
                                          Noise_Row(W.chkNoise, {{W.lblMaxNoise, W.cmbNoise, Text("m")}})}));
}

} // namespace

Layout Lay_Out_Echosounder(Simulator& Sim, Form& Shown) {
    auto& W = static_cast<frmEchosounder&>(Shown);
    return Window({Row({State_Line(Sim, W, false).Wide(), Dim(W.lblEchosounder)}),
                   Row({Depth_Box(W), Sent_Box(W).Wide()}).Wide(), Messages(Sim, W), Routing(W),
                   Ticker(Sim, W)});
}

Layout Lay_Out_Small_Echosounder(Simulator& Sim, Form& Shown) {
    auto& W = static_cast<frmEchosounder&>(Shown);
    return Small_Window(Sim, W, false, {Small_Value("Depth", W.lblCurrentDepth, "0000.00", "meter")});
}

} // namespace brinewright
