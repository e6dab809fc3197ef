#include "sensors/log_ticks.hpp"

#include "ownship/angles.hpp"
#include "sensors/frm_log.hpp"
#include "sensors/log_controls.hpp"
#include "sensors/sensor_parts.hpp"
#include "shell/control_text.hpp"
#include "shell/simulator.hpp"

#include <algorithm>

namespace brinewright {

namespace {

constexpr const char* Entries[] = {" 1 sec", " 2 sec", " 3 sec", " 4 sec", " 5 sec"};
constexpr Interval_Choices Choices{Entries, 0};
constexpr float Stagger_s = 0.15F;

using L = frmLog;
using S = Message_State;
constexpr int Never = 0; // there is no START here, and no PAUSE

constexpr Sentence_Row<L> Rows[] = {
    {"VHW", "heading and speed through the water", &L::chkVHW, &L::cmbVHWInterval, &L::timer_VHW, &Choices,
     Stagger_s, timer_VHW_Tick, Never, false, nullptr, &S::VHW_Enabled, &S::VHW_Interval},
    {"VBW", "speed through the water and over ground", &L::chkVBW, &L::cmbVBWInterval, &L::timer_VBW,
     &Choices, Stagger_s, timer_VBW_Tick, Never, false, nullptr, &S::VBW_Enabled, &S::VBW_Interval},
    {"VDR", "set and drift of the current", &L::chkVDR, &L::cmbVDRInterval, &L::timer_VDR, &Choices,
     Stagger_s, timer_VDR_Tick, Never, false, nullptr, &S::VDR_Enabled, &S::VDR_Interval},
    {"VLW", "distances through the water and over ground", &L::chkVLW, &L::cmbVLWInterval, &L::timer_VLW,
     &Choices, Stagger_s, timer_VLW_Tick, Never, false, chkVLW_Clicked, &S::VLW_Enabled, &S::VLW_Interval,
     cmbVLWInterval_Clicked},
};

// The log speed with noise to either side if there is any; noise never makes it negative.
float Noisy_Speed(Simulator& Sim, const frmLog& W, float Max_Noise_kn) {
    const float Speed_kn = Sim.State.Log_Speed[W.Instance];
    if (!W.chkNoise.Value()) return Speed_kn;
    return Record_Number(std::max(0.0, Speed_kn + Signed_Draw(Sim) * Max_Noise_kn));
}

float Reported_Speed(Simulator& Sim, frmLog& W) {
    const float Speed_kn = Noisy_Speed(Sim, W, Sim.State.Log_Noise_Level[W.Instance]);
    W.lblCurrentSpeed.Caption = Format_Dot(Speed_kn, "0.0#");
    return Speed_kn;
}

} // namespace

std::span<const Sentence_Row<frmLog>> Log_Sentences() { return Rows; }

// The heading is the ship's, also for log 2 and also while the gyro has noise.
void timer_VHW_Tick(Simulator& Sim, frmLog& W) {
    constexpr double kmh_Per_Knot = 1.852;
    VHW_Record& R = W.VHW_Record;
    R.Heading_True = Record_Number(Sim.State.Nav_HDG);
    R.Heading_Magnetic = Sum_Direction(Sim.State.Nav_HDG, Sim.State.Magnetic_Variation);
    R.Speed_Knots = Reported_Speed(Sim, W);
    R.Speed_Kmh = Record_Number(R.Speed_Knots * kmh_Per_Knot);
    Send_Sentence(Sim, Compose_VHW(R, No_Checksum(Sim)), W);
}

void timer_VBW_Tick(Simulator& Sim, frmLog& W) {
    VBW_Record& R = W.VBW_Record;
    R.Water_Long = Reported_Speed(Sim, W);
    R.Water_Trans = 0;
    R.Ground_Long = Sim.State.Log_Speed[W.Instance];
    R.Ground_Trans = 0;
    Send_Sentence(Sim, Compose_VBW(R, No_Checksum(Sim)), W);
}

// With noise the drift starts from the speed of the log and not from the drift of the current. This
// difference is required.
void timer_VDR_Tick(Simulator& Sim, frmLog& W) {
    VDR_Record& R = W.VDR_Record;
    R.Drift =
        W.chkNoise.Value() ? Noisy_Speed(Sim, W, Number_Shown(W.cmbNoise.Text())) : Sim.State.Current_Drift;
    R.Set_True = Sim.State.Current_Set;
    R.Set_Magnetic = Sum_Direction(Sim.State.Current_Set, Sim.State.Magnetic_Variation);
    Send_Sentence(Sim, Compose_VDR(R, No_Checksum(Sim)), W);
}

void timer_VLW_Tick(Simulator& Sim, frmLog& W) {
    const int I = W.Instance;
    const Log_Speeds Speeds{Sim.State.Log_Speed[I], Sim.State.GNSS_SOG[I]};
    Send_Sentence(
        Sim, Compose_VLW(Sim.State, Speeds, W.VLW_Record, static_cast<std::int16_t>(I), No_Checksum(Sim)), W);
}

} // namespace brinewright
