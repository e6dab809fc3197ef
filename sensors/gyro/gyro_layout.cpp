#include "sensors/gyro/frm_gyro.hpp"
#include "shell/kit/sensor_layout.hpp"
#include "shell/kit/shown_number.hpp"

namespace brinewright {

namespace {

bool Sends(const frmGyro& W, std::string_view Type) { return W.Sentences[Type].Clock.Interval_ms() > 0; }

// What the sentences carry: with noise the values last sent, otherwise those that are set.
Attitude_Reading Read_Attitude(const frmGyro& W) {
    const bool Sent =
        W.chkNoise.Value() && (Sends(W, "ATT") || Sends(W, "PRDID")) && !W.lblCurrentRoll.Caption->empty();
    if (!Sent) return {W.Roll_Value, W.Pitch_Value};
    return {Number_Shown(*W.lblCurrentRoll.Caption), Number_Shown(*W.lblCurrentPitch.Caption)};
}

Layout Current_Box(frmGyro& W) {
    const auto Value = [](Label& Shown, const char* Unit) {
        return Readout(Shown, 24, "-000.00", Text(Unit));
    };
    return Box(W.frmCurrent,
               Cells({At(0, 0, Dim(W.lblHdgTitle)), At(1, 0, Value(W.lblCurrentHdg, "deg")),
                      At(0, 1, Dim(W.lblRotTitle)), At(1, 1, Value(W.lblCurrentRot, "deg/min")),
                      At(2, 0, Dim(W.lblRollTitle)), At(3, 0, Value(W.lblCurrentRoll, "deg")),
                      At(2, 1, Dim(W.lblPitchTitle)), At(3, 1, Value(W.lblCurrentPitch, "deg"))},
                     {.Across = rhythm::Margin, .Down = 0}));
}

Layout Attitude_Box(frmGyro& W) {
    const auto Pitch = Column({Standing(W.scrPitch, {10, 50}), Place(W.txtPitch).Width(Typed_Width)});
    const auto Ball = Painted(
        [&W] { return Read_Attitude(W); }, 200, 210,
        "The horizon as seen over the bow. Roll in degrees, to starboard when the pointer hangs to the "
        "right; pitch in degrees, bow up when the horizon sinks");
    const auto Roll = Bar_And_Box(W.scrRoll, {10, 50}, W.txtRoll, Text("degrees"));
    return Box("Attitude",
               Cells({At(0, 0, Box(W.frmPitch, Pitch, rhythm::Gap)), At(0, 1, Ball),
                      At(1, 0, Box(W.frmRoll, Roll, rhythm::Gap), 1, 2)},
                     {.Across = rhythm::Gap, .Down = rhythm::Gap, .Wide_Column = 1, .High_Row = 0}));
}

Layout Simulator_Box(frmGyro& W) {
    std::vector<Field> Noises;
    for (int I = 0; I <= 3; ++I) Noises.push_back({W.lblNoise[I], W.cmbNoise[I]});
    return Box(
        W.frmSimulator,
        Column({Box(W.frmHDG, Bar_And_Box(W.scrHDG, {150, 900}, W.txtHDG, Text("degrees")), rhythm::Gap),
                Box(W.frmROT, Bar_And_Box(W.scrROT, {50, 100}, W.txtROT, Dim(W.lblROTUnit)), rhythm::Gap),
                Row({W.chkNoise, Stretch(), Dim(W.lblMaxNoise)}), Fields(std::move(Noises), 2),
                Row(Each(W.optAccumulatedNoise.Buttons)).Then(Stretch())}));
}

} // namespace

Layout Lay_Out_Gyro(Simulator& Sim, Form& Shown) {
    auto& W = static_cast<frmGyro&>(Shown);
    return Window(
        {Row({State_Line(Sim, W, W.cmdPause, W.timer_Simulator, "heading stands still").Wide(),
              Dim(W.lblShipControl)}),
         Row({Column({Current_Box(W), Attitude_Box(W).Wide(),
                      Box(W.frmSimulatorControl, Start_And_Pause(W.cmdStart, W.cmdPause, W.timer_Simulator))})
                  .Wide(),
              Column({Simulator_Box(W), Messages(Sim, W), Routing(W, {{&W.lblDecimals, &W.cmbDecimals}}),
                      Row({Dim(W.lblModeIndicator), Place(W.cmbModeIndicator).Wide()}), Stretch()})
                  .Wide()})
             .Wide(),
         Ticker(Sim, W)});
}

Layout Lay_Out_Small_Gyro(Simulator& Sim, Form& Shown) {
    auto& W = static_cast<frmGyro&>(Shown);
    return Small_Window(Sim, W, true,
                        {Small_Value("Heading", W.lblCurrentHdg, "-000.00", "deg"),
                         Small_Value("Rate of turn", W.lblCurrentRot, "-000.00", "deg/min")});
}

} // namespace brinewright
