#include "sensors/wind/wind_ticks.hpp"

#include "ownship/geodesy/angles.hpp"
#include "ownship/navdata_state.hpp"
#include "sensors/wind/frm_wind.hpp"
#include "sensors/wind/wind_state.hpp"
#include "sensors/wind/wind_units.hpp"
#include "sentences/number_text.hpp"
#include "shell/kit/control_text.hpp"
#include "shell/kit/depth_wind_parts.hpp"
#include "shell/kit/value_bars.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>

namespace brinewright {

namespace {

constexpr Interval_Choices MWV_Choices{Depth_Wind_Intervals, 2};
constexpr Interval_Choices MWD_Choices{Depth_Wind_Intervals, 0};
constexpr float Stagger_s = 0.15F;

// The window has no START: its sentences run as soon as they are ticked.
constexpr Sentence_Row Rows[] = {
    {.Type = "MWV",
     .Content = "angle and speed of the relative or true wind",
     .Tick = On_Window<timer_MWV_Tick>::Run,
     .Talker = Talker_In<&frmWind::MWV_Record>::Of,
     .Setting = Setting_In<&Wind_State::MWV_Enabled, &Wind_State::MWV_Interval>::Of,
     .Kept = {{"REM Active messages", 31}, {"REM Utvidelser v6", 7}},
     .Choices = &MWV_Choices,
     .New_Setup_Interval = 2,
     .Stagger_s = Stagger_s},
    {.Type = "MWD",
     .Content = "direction and speed of the true wind",
     .Tick = On_Window<timer_MWD_Tick>::Run,
     .Talker = Talker_In<&frmWind::MWD_Record>::Of,
     .Setting = Setting_In<&Wind_State::MWD_Enabled, &Wind_State::MWD_Interval>::Of,
     .Kept = {{"REM MWD", 1}, {"REM MWD", 2}},
     .Choices = &MWD_Choices,
     .Stagger_s = Stagger_s},
};

// Within the circle, although a setup file may hold any number.
float True_Direction_deg(const Simulator& Sim, const frmWind& W) {
    return Normalise_Direction(Sim.State.Of<Wind_State>().Wind_Direction[W.Instance]);
}

void Add_Noise(Simulator& Sim, const frmWind& W, MWV_Record& R) {
    const double Angle_Noise_deg = Signed_Draw(Sim) * Number_Shown(W.cmbNoise[0].Text());
    const double Speed_Noise = Signed_Draw(Sim) * Number_Shown(W.cmbNoise[1].Text());
    R.Angle = Sum_Direction(R.Angle, Angle_Noise_deg);
    R.Speed = Record_Number(std::max(0.0, R.Speed + Speed_Noise));
}

} // namespace

std::span<const Sentence_Row> Wind_Sentences() { return Rows; }

void Show_Variation(const Simulator& Sim, frmWind& W) {
    W.lblMagDev.Caption = Decimal_Text(Sim.State.Of<Navdata_State>().Magnetic_Variation) + " deg";
}

void timer_MWV_Tick(Simulator& Sim, frmWind& W) {
    const int k = W.Instance;
    MWV_Record& R = W.MWV_Record;
    if (R.Reference == 'R') {
        CalculateRelativeWind(Sim, W, k);
        R.Angle = W.Relative_Dir;
        R.Speed = W.Relative_Speed;
    } else {
        R.Angle = True_Direction_deg(Sim, W);
        R.Speed = Sim.State.Of<Wind_State>().Wind_Speed[k];
    }
    if (W.chkNoise.Value()) Add_Noise(Sim, W, R);
    W.lblWindAngle.Caption = Format_Dot(R.Angle, "000.0#");
    W.lblWindSpeed.Caption = Format_Dot(R.Speed, "0.0#");
    Send_Sentence(Sim, Compose_MWV(R, No_Checksum(Sim)), W);
}

void timer_MWD_Tick(Simulator& Sim, frmWind& W) {
    const Wind_Unit& Unit = Unit_Of_Letter(W.MWV_Record.Speed_Unit);
    const float Speed = Sim.State.Of<Wind_State>().Wind_Speed[W.Instance];
    MWD_Record& R = W.MWD_Record;
    Show_Variation(Sim, W);
    R.Dir_True = True_Direction_deg(Sim, W);
    R.Dir_Magnetic = Sum_Direction(R.Dir_True, Sim.State.Of<Navdata_State>().Magnetic_Variation);
    R.Speed_Ms = Record_Number(Speed * Unit.mps_Factor / Unit.mps_Divisor);
    R.Speed_Knots = Unit.Letter == 'N' ? Speed : Record_Number(R.Speed_Ms * Knots_Per_mps);
    Send_Sentence(Sim, Compose_MWD(R, No_Checksum(Sim)), W);
}

} // namespace brinewright
