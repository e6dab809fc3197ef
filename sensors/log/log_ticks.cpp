#include "sensors/log/log_ticks.hpp"

#include "gnss/gnss_state.hpp"
#include "ownship/geodesy/angles.hpp"
#include "ownship/navdata_state.hpp"
#include "sensors/log/frm_log.hpp"
#include "sensors/log/log_controls.hpp"
#include "sensors/log/log_state.hpp"
#include "shell/kit/control_text.hpp"
#include "shell/kit/value_bars.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>

namespace brinewright {

namespace {

constexpr const char* Entries[] = {" 1 sec", " 2 sec", " 3 sec", " 4 sec", " 5 sec"};
constexpr Interval_Choices Choices{Entries, 0};
constexpr float Stagger_s = 0.15F;

constexpr Sentence_Row Rows[] = {
    {.Type = "VHW",
     .Content = "heading and speed through the water",
     .Tick = On_Window<timer_VHW_Tick>::Run,
     .Talker = Talker_In<&frmLog::VHW_Record>::Of,
     .Setting = Setting_In<&Log_State::VHW_Enabled, &Log_State::VHW_Interval>::Of,
     .Kept = {{"REM Active messages", 25}, {"REM Utvidelser v6", 1}},
     .Choices = &Choices,
     .Stagger_s = Stagger_s},
    {.Type = "VBW",
     .Content = "speed through the water and over ground",
     .Tick = On_Window<timer_VBW_Tick>::Run,
     .Talker = Talker_In<&frmLog::VBW_Record>::Of,
     .Setting = Setting_In<&Log_State::VBW_Enabled, &Log_State::VBW_Interval>::Of,
     .Kept = {{"REM Active messages", 26}, {"REM Utvidelser v6", 2}},
     .Choices = &Choices,
     .Stagger_s = Stagger_s},
    {.Type = "VDR",
     .Content = "set and drift of the current",
     .Tick = On_Window<timer_VDR_Tick>::Run,
     .Talker = Talker_In<&frmLog::VDR_Record>::Of,
     .Setting = Setting_In<&Log_State::VDR_Enabled, &Log_State::VDR_Interval>::Of,
     .Kept = {{"REM Active messages", 27}, {"REM Utvidelser v6", 3}},
     .Choices = &Choices,
     .Stagger_s = Stagger_s},
    {.Type = "VLW",
     .Content = "distances through the water and over ground",
     .Tick = On_Window<timer_VLW_Tick>::Run,
     .Talker = Talker_In<&frmLog::VLW_Record>::Of,
     .Setting = Setting_In<&Log_State::VLW_Enabled, &Log_State::VLW_Interval>::Of,
     .Kept = {{"REM VLW Message", 1}, {"REM Utvidelser v6", 4}},
     .Choices = &Choices,
     .Stagger_s = Stagger_s,
     .After_Check = On_Window<chkVLW_Clicked>::Run,
     .After_Interval = On_Window<cmbVLWInterval_Clicked>::Run},
};

// The log speed with noise to either side if there is any; noise never makes it negative.
float Noisy_Speed(Simulator& Sim, const frmLog& W, float Max_Noise_kn) {
    const float Speed_kn = Sim.State.Of<Log_State>().Log_Speed[W.Instance];
    if (!W.chkNoise.Value()) return Speed_kn;
    return Record_Number(std::max(0.0, Speed_kn + Signed_Draw(Sim) * Max_Noise_kn));
}

float Reported_Speed(Simulator& Sim, frmLog& W) {
    const float Speed_kn = Noisy_Speed(Sim, W, Sim.State.Of<Log_State>().Log_Noise_Level[W.Instance]);
    W.lblCurrentSpeed.Caption = Format_Dot(Speed_kn, "0.0#");
    return Speed_kn;
}

} // namespace

std::span<const Sentence_Row> Log_Sentences() { return Rows; }

// The heading is the ship's, also for log 2 and also while the gyro has noise.
void timer_VHW_Tick(Simulator& Sim, frmLog& W) {
    constexpr double kmh_Per_Knot = 1.852;
    VHW_Record& R = W.VHW_Record;
    R.Heading_True = Record_Number(Sim.State.Of<Navdata_State>().Nav_HDG);
    R.Heading_Magnetic = Sum_Direction(Sim.State.Of<Navdata_State>().Nav_HDG,
                                       Sim.State.Of<Navdata_State>().Magnetic_Variation);
    R.Speed_Knots = Reported_Speed(Sim, W);
    R.Speed_Kmh = Record_Number(R.Speed_Knots * kmh_Per_Knot);
    Send_Sentence(Sim, Compose_VHW(R, No_Checksum(Sim)), W);
}

void timer_VBW_Tick(Simulator& Sim, frmLog& W) {
    VBW_Record& R = W.VBW_Record;
    R.Water_Long = Reported_Speed(Sim, W);
    R.Water_Trans = 0;
    R.Ground_Long = Sim.State.Of<Log_State>().Log_Speed[W.Instance];
    R.Ground_Trans = 0;
    Send_Sentence(Sim, Compose_VBW(R, No_Checksum(Sim)), W);
}

// With noise the drift starts from the speed of the log and not from the drift of the current. This
// difference is required.
void timer_VDR_Tick(Simulator& Sim, frmLog& W) {
    VDR_Record& R = W.VDR_Record;
    R.Drift = W.chkNoise.Value() ? Noisy_Speed(Sim, W, Number_Shown(W.cmbNoise.Text()))
                                 : Sim.State.Of<Navdata_State>().Current_Drift;
    R.Set_True = Sim.State.Of<Navdata_State>().Current_Set;
    R.Set_Magnetic = Sum_Direction(Sim.State.Of<Navdata_State>().Current_Set,
                                   Sim.State.Of<Navdata_State>().Magnetic_Variation);
    Send_Sentence(Sim, Compose_VDR(R, No_Checksum(Sim)), W);
}

void timer_VLW_Tick(Simulator& Sim, frmLog& W) {
    const int I = W.Instance;
    Log_State& S = Sim.State.Of<Log_State>();
    const VLW_Counters Counters{S.Log_VLW_Seconds[I], S.Log_Total_Water[I], S.Log_Trip_Water[I],
                                S.Log_Total_Ground[I], S.Log_Trip_Ground[I]};
    const Log_Speeds Speeds{S.Log_Speed[I], Sim.State.Of<GNSS_State>().GNSS_SOG[I]};
    Send_Sentence(Sim, Compose_VLW(Counters, Speeds, W.VLW_Record, No_Checksum(Sim)), W);
}

} // namespace brinewright
