#include "sensors/log/frm_log.hpp"
#include "shell/kit/sensor_layout.hpp"

namespace brinewright {

namespace {

Layout Speed_Box(frmLog& W) {
    return Box(
        W.frmSpeed,
        Row({Standing(W.scrSpeed, {10, 100}).Least_Height(Least_Standing_Bar),
             Column({Readout(W.lblSpeed, 28, "00.0"), Dim(W.lblSpeedUnit), Stretch(), W.txtSpeed}).Wide()}));
}

Layout Sent_Box(frmLog& W) {
    return Box(
        "Speed through water",
        Column({Dim(W.lblCurrentTitle), Readout(W.lblCurrentSpeed, 34, "00.00", Text("knots")), Stretch(),
                Noise_Row(W.chkNoise, {{W.lblMaxNoise, W.cmbNoise, Text("knots")}}), W.chkInvalid}));
}

} // namespace

Layout Lay_Out_Log(Simulator& Sim, Form& Shown) {
    auto& W = static_cast<frmLog&>(Shown);
    return Window({Row({State_Line(Sim, W, true).Wide(), Dim(W.lblShipControl)}),
                   Row({Speed_Box(W), Sent_Box(W).Wide()}).Wide(), Messages(Sim, W),
                   Row({Dim(W.lblVLW).Wide(), W.cmdResetVLW}), Routing(W), Ticker(Sim, W)});
}

Layout Lay_Out_Small_Log(Simulator& Sim, Form& Shown) {
    auto& W = static_cast<frmLog&>(Shown);
    return Small_Window(Sim, W, true,
                        {Small_Value("Speed through water", W.lblCurrentSpeed, "00.00", "knots")});
}

} // namespace brinewright
