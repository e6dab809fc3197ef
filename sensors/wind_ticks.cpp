#include "sensors/wind_ticks.hpp"

#include "ownship/angles.hpp"
#include "sensors/depth_wind_parts.hpp"
#include "sensors/frm_wind.hpp"
#include "sensors/sensor_parts.hpp"
#include "sensors/wind_units.hpp"
#include "shell/control_text.hpp"
#include "shell/number_text.hpp"
#include "shell/simulator.hpp"

#include <algorithm>

namespace brinewright {

namespace {

constexpr Interval_Choices MWV_Choices{Depth_Wind_Intervals, 2};
constexpr Interval_Choices MWD_Choices{Depth_Wind_Intervals, 0};
constexpr float Stagger_s = 0.15F;

using G = frmWind;
using S = Message_State;

// The window has no START: its sentences run as soon as they are ticked.
constexpr Sentence_Row<G> Rows[] = {
    {"MWV", "angle and speed of the relative or true wind", &G::chkMWV, &G::cmbMWVInterval, &G::timer_MWV,
     &MWV_Choices, Stagger_s, timer_MWV_Tick, 0, false, nullptr, &S::MWV_Enabled, &S::MWV_Interval},
    {"MWD", "direction and speed of the true wind", &G::chkMWD, &G::cmbMWDInterval, &G::timer_MWD,
     &MWD_Choices, Stagger_s, timer_MWD_Tick, 0, false, nullptr, &S::MWD_Enabled, &S::MWD_Interval},
};

// Within the circle, although a setup file may hold any number.
float True_Direction_deg(const Simulator& Sim, const frmWind& W) {
    return Normalise_Direction(Sim.State.Wind_Direction[W.Instance]);
}

void Add_Noise(Simulator& Sim, const frmWind& W, MWV_Record& R) {
    const double Angle_Noise_deg = Signed_Draw(Sim) * Number_Shown(W.cmbNoise[0].Text());
    const double Speed_Noise = Signed_Draw(Sim) * Number_Shown(W.cmbNoise[1].Text());
    R.Angle = Sum_Direction(R.Angle, Angle_Noise_deg);
    R.Speed = Record_Number(std::max(0.0, R.Speed + Speed_Noise));
}

} // namespace

std::span<const Sentence_Row<frmWind>> Wind_Sentences() { return Rows; }

void Show_Variation(const Simulator& Sim, frmWind& W) {
    W.lblMagDev.Caption = Decimal_Text(Sim.State.Magnetic_Variation) + " deg";
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
        R.Speed = Sim.State.Wind_Speed[k];
    }
    if (W.chkNoise.Value()) Add_Noise(Sim, W, R);
    W.lblWindAngle.Caption = Format_Dot(R.Angle, "000.0#");
    W.lblWindSpeed.Caption = Format_Dot(R.Speed, "0.0#");
    Send_Sentence(Sim, Compose_MWV(R, No_Checksum(Sim)), W);
}

void timer_MWD_Tick(Simulator& Sim, frmWind& W) {
    const Wind_Unit& Unit = Unit_Of_Letter(W.MWV_Record.Speed_Unit);
    const float Speed = Sim.State.Wind_Speed[W.Instance];
    MWD_Record& R = W.MWD_Record;
    Show_Variation(Sim, W);
    R.Dir_True = True_Direction_deg(Sim, W);
    R.Dir_Magnetic = Sum_Direction(R.Dir_True, Sim.State.Magnetic_Variation);
    R.Speed_Ms = Record_Number(Speed * Unit.mps_Factor / Unit.mps_Divisor);
    R.Speed_Knots = Unit.Letter == 'N' ? Speed : Record_Number(R.Speed_Ms * Knots_Per_mps);
    Send_Sentence(Sim, Compose_MWD(R, No_Checksum(Sim)), W);
}

} // namespace brinewright
