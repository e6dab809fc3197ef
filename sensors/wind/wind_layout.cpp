#include "sensors/gyro/gyro_state.hpp"
#include "sensors/wind/frm_wind.hpp"
#include "sensors/wind/wind_state.hpp"
#include "shell/kit/sensor_layout.hpp"
#include "shell/state/simulator.hpp"

namespace brinewright {

namespace {

Wind_Reading Read_Wind(const Simulator_State& S, const frmWind& W) {
    return {W.Relative_Dir,
            W.Relative_Speed,
            S.Of<Wind_State>().Wind_Direction[W.Instance],
            S.Of<Wind_State>().Wind_Speed[W.Instance],
            S.Of<Gyro_State>().Gyro_HDG[W.Instance],
            W.cmbUnits.Text()};
}

// Follows the list of units, as the labels of the window do that stand beside other speeds.
Layout Unit_Now(const frmWind& W) {
    return Text([&W] { return layout::Said{W.cmbUnits.Text(), Role::Dim}; }).Least_Width("knots");
}

Layout Dial(const Simulator& Sim, const frmWind& W) {
    return Painted(
        [&S = Sim.State, &W] { return Read_Wind(S, W); }, 264, 300,
        "Where the wind comes from, bow up, in degrees off the bow. Filled arrow: apparent wind; open "
        "arrow: true wind, whose direction from north the window shows as a figure");
}

Layout Speed_Box(frmWind& W) {
    return Box(
        W.frmTrueWindSpd,
        Row({Standing(W.scrSpeed, {10, 100}),
             Column({Row({Readout(W.lblSpeed, 26, "00.0"), Dim(W.lblUnit[0]).Left().Bottom(), Stretch()}),
                     Row({Place(W.txtSpeed).Width(Typed_Width), Dim(W.lblSpeedUnit), W.cmbUnits, Stretch()}),
                     Stretch()})
                 .Wide()}));
}

Layout Relative_Box(frmWind& W) {
    return Box(W.frmRelativeWind, Row({Readout(W.lblRelativeDir, 26, "000", Text("deg")),
                                       Readout(W.lblRelativeSpeed, 26, "00", Dim(W.lblUnit[1])),
                                       Dim(W.lblRelativeWind).Bottom()}));
}

Layout Sent_Box(frmWind& W) {
    return Box(W.frmCurrentValue,
               Row({Readout(W.lblWindAngle, 26, "000.00", Text("deg")),
                    Readout(W.lblWindSpeed, 26, "00.00", Unit_Now(W)), Place(W.chkInvalid).Bottom()}));
}

} // namespace

Layout Lay_Out_Wind(Simulator& Sim, Form& Shown) {
    auto& W = static_cast<frmWind&>(Shown);
    const auto Direction = Bar_And_Box(W.scrHDG, {150, 900}, W.txtHDG, Dim(W.lblHDGUnit));
    const auto Noise = Noise_Row(W.chkNoise, {{W.lblMaxNoise[0], W.cmbNoise[0], Text("deg")},
                                              {W.lblMaxNoise[1], W.cmbNoise[1], Unit_Now(W)}});
    const auto Reference = Row(Each(W.optRef.Buttons));
    const auto Variation = Row({W.lblMagDev, Dim(W.lblShipSetup), Stretch()});
    return Window(
        {State_Line(Sim, W, false),
         Row({Column({Dial(Sim, W).Wide(), Relative_Box(W)}).Wide(),
              Column({Box(W.frmTrueWindDir, Direction), Speed_Box(W), Noise, Sent_Box(W),
                      Messages(W, {{"MWV", Reference}, {"MWD", Variation}}), Routing(W), Stretch()})})
             .Wide(),
         Ticker(Sim, W)});
}

} // namespace brinewright
