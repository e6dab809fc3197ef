#include "ownship/navdata_state.hpp"
#include "ownship/ship/frm_ship.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "shell/kit/sensor_layout.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

namespace brinewright {

namespace {

constexpr int Beside_Slider = 9; // so that its scale stands below that of the bar

Compass_Reading Read_Compass(const Simulator_State& S) {
    Compass_Reading Now;
    Now.Heading_deg = static_cast<float>(S.Of<Navdata_State>().Nav_HDG);
    if (S.Of<Navdata_State>().Nav_SOG != 0)
        Now.Course_deg = static_cast<float>(S.Of<Navdata_State>().Nav_COG);
    return Now;
}

// With noise what the sensors were given, otherwise what the slider says.
Turn_Reading Read_Turn(const Simulator_State& S, const frmShip& W) {
    const bool Noisy = W.cmbROTNoise.List_Index() > 0;
    return {static_cast<float>(Noisy ? S.Of<Gyro_State>().Gyro_ROT[1] : S.Of<Navdata_State>().Nav_Rudder),
            static_cast<float>(S.Of<Navdata_State>().Max_Rudder)};
}

layout::Said Read_State(const Simulator_State& S) {
    if (S.Of<Shell_State>().Freeze_Active) return {"Frozen", Role::Warn};
    if (S.Of<Navdata_State>().Nav_SOG != 0) return {"Under way", Role::Good};
    return {"Stopped", Role::Dim};
}

Layout Throttle_Box(frmShip& W) {
    return Box(W.frameThrottle, Column({Dim(W.lblAhead), Standing(W.sldThrottle, {5, 25, 1, true}).Wide(),
                                        Dim(W.lblAstern), Readout(W.lblThrottle, 16, "100 % astern")}));
}

Layout Rudder_Scale(frmShip& W) {
    std::vector<Layout> Labels;
    std::vector<double> Shares;
    constexpr int Per_Side = 3;
    for (int I = 0; I <= 2 * Per_Side; ++I) {
        const int Place = I <= Per_Side ? -I : I - Per_Side; // 1 to 3 to port, 4 to 6 to starboard
        Labels.push_back(Dim(W.lblRudderTick[I]));
        Shares.push_back(0.5 + 0.5 * Place / Per_Side);
    }
    return Label_Scale(W.sldRudder, std::move(Labels), std::move(Shares));
}

Layout Turn_Box(const Simulator_State& S, frmShip& W) {
    return Box(
        W.frameRudder,
        Column(
            {Row({Readout(W.lblRudder, 26, "000.00").Flush_Right(), Dim(W.lblRudderUnit).Bottom(), Stretch(),
                  W.cmdZeroRudder}),
             Painted([&S, &W] { return Read_Turn(S, W); }, 260, 36,
                     "Rate of turn in degrees per minute, to port or to starboard"),
             Column({W.sldRudder, Rudder_Scale(W)}).Spaced(0).Margins(Beside_Slider, 0, Beside_Slider, 0)}));
}

Layout Middle(const Simulator_State& S, frmShip& W) {
    return Column({Cells({At(0, 0, Dim(W.lblSOGTitle)), At(1, 0, Readout(W.lblSOG, 28, "-00.00 knot")),
                          At(0, 1, Dim(W.lblCOGTitle)), At(1, 1, Readout(W.lblCOG, 28, "000.00 deg"))},
                         {.Down = 0}),
                   Painted([&S] { return Read_Compass(S); }, 262, 262,
                           "Heading up, in degrees from true north. Filled triangle: heading; open triangle: "
                           "course over ground")
                       .Wide()});
}

Layout Positions_Box(frmShip& W) {
    const auto Lat = [&](int I) { return Readout(W.lblLat[I], 14, "00\xB0 00' 00.000\" N"); };
    const auto Lon = [&](int I) { return Readout(W.lblLon[I], 14, "000\xB0 00' 00.000\" E"); };
    return Box("Position", Cells({At(0, 0, Dim(W.lblPos1)), At(0, 1, Lat(0)), At(0, 2, Lon(0)),
                                  At(1, 0, Dim(W.lblPos2)), At(1, 1, Lat(1)), At(1, 2, Lon(1))},
                                 {.Across = rhythm::Margin, .Down = rhythm::Base, .Wide_Column = 1}));
}

Layout Sensors_Box(frmShip& W) {
    const auto Gyro = [&](int I) { return Readout(W.lblGyro[I], 14, "000.00 deg"); };
    const auto Log = [&](int I) { return Readout(W.lblLog[I], 14, "-00.0 knot"); };
    return Box("Gyro and log", Cells({At(0, 0, Dim(W.lblGyro1)), At(0, 1, Gyro(0)), At(0, 2, Dim(W.lblLog1)),
                                      At(0, 3, Log(0)), At(1, 0, Dim(W.lblGyro2)), At(1, 1, Gyro(1)),
                                      At(1, 2, Dim(W.lblLog2)), At(1, 3, Log(1))},
                                     {.Across = rhythm::Margin, .Down = rhythm::Base}));
}

Layout Current_Box(frmShip& W) {
    return Box(W.frameCurrent, Row({Dim(W.lblSetTitle), Readout(W.lblSet, 14, "000.0 deg").Wide(),
                                    Dim(W.lblDriftTitle), Readout(W.lblDrift, 14, "00.0 knot").Wide()}));
}

// cmdSetSOG goes while the keyboard steers, and the rest stays where it is.
Layout Steering_Box(frmShip& W) {
    return Box(
        "Steering",
        Column(
            {Row({Dim(W.lblHDG), Place(W.cmbHDG).Wide(), Place(W.cmdSetSOG).Keeps_Room()}), W.cmdArrows,
             Row({Place(W.lblArrows, Role::Good), Key_Catcher(W.txtDummy), Stretch(), Dim(W.lblJoystick)})}));
}

Layout Help_Box(Frame& Around, std::vector<Layout> Lines) {
    return Box(Around, Cells_By_Lines(2, std::move(Lines), {.Down = 2}));
}

// The help comes and goes; the boxes share what it leaves.
Layout Right_Column(frmShip& W) {
    Layout Noise = Box("Noise", Fields({{W.lblSOGNoise, W.cmbSOGNoise}, {W.lblROTNoise, W.cmbROTNoise}}, 2));
    const auto Help =
        Column({Help_Box(W.frameArrows, {W.lblArrowsStep, W.lblArrowsShift, W.lblArrowsAlt, W.lblArrowsCtrl}),
                Help_Box(W.frameJoystick, Each(W.lblJoystickButton))})
            .Spaced(rhythm::Toolkit);
    return Column({Positions_Box(W).Wide(), Sensors_Box(W).Wide(), Current_Box(W).Wide(), Noise.Wide(),
                   Steering_Box(W).Wide(), Help});
}

} // namespace

Layout Lay_Out_Ship(Simulator& Sim, Form& Shown) {
    auto& W = static_cast<frmShip&>(Shown);
    const Simulator_State& S = Sim.State;
    const auto Lamp = [](const bool& Active) {
        return [&Active] { return Active ? Role::Warn : Role::Plain; };
    };
    return Window(
               {Text([&S] { return Read_State(S); }),
                Row({Throttle_Box(W), Column({Middle(S, W).Wide(), Turn_Box(S, W)}).Wide(), Right_Column(W)})
                    .Spaced(rhythm::Margin)
                    .Wide(),
                Row({Place(W.cmdZero).Wide(),
                     // Before its button, which says "continue" then.
                     Place(W.lblFreeze, Role::Warn),
                     Place(W.cmdFreeze).Lit(Lamp(S.Of<Shell_State>().Freeze_Active)).Wide(),
                     Place(W.lblPause, Role::Warn),
                     Place(W.cmdPause).Lit(Lamp(S.Of<Shell_State>().Pause_Active)).Wide()})})
        .Spaced(rhythm::Gap);
}

} // namespace brinewright
