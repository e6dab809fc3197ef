#include "gnss/position/gnss_ticks.hpp"

#include "gnss/gnss_state.hpp"
#include "gnss/position/frm_position.hpp"
#include "gnss/position/gnss_satellites.hpp"
#include "ownship/geodesy/angles.hpp"
#include "ownship/navdata_state.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/transmit/send_nmea.hpp"

#include <cmath>

namespace brinewright {

namespace {

// The missing blank before "sec" in some lists belongs to them, as does the leading blank of the shorter
// times.
constexpr const char* Fast_Entries[] = {"0.1 sec", "0.5 sec", " 1 sec", " 2 sec", " 3 sec",
                                        " 4 sec",  " 5 sec",  "10 sec", "30 sec", "60 sec"};
constexpr const char* GLL_Entries[] = {" 1 sec", " 2 sec", " 3 sec", " 4 sec",
                                       " 5 sec", "10 sec", "30 sec", "60 sec"};
constexpr const char* Slow_Entries[] = {" 1sec", " 2sec",  " 3sec",  " 4sec",
                                        " 5sec", "10 sec", "30 sec", "60 sec"};
constexpr const char* GST_Entries[] = {"0.1 sec", "0.5 sec", " 1sec",  " 2sec",  " 3sec",
                                       " 4sec",   " 5sec",   "10 sec", "30 sec", "60 sec"};

constexpr Interval_Choices Fast{Fast_Entries, 2};
constexpr Interval_Choices GLL_Choices{GLL_Entries, 0};
constexpr Interval_Choices Slow{Slow_Entries, 5};
constexpr Interval_Choices GST_Choices{GST_Entries, 7};

// PAUSE stops four sentences only and START starts seven: a paused sensor goes on sending the others with its
// last position. This, and the two staggers, are required as they stand.
constexpr Sentence_Row Rows[] = {
    {.Type = "GGA",
     .Content = "fix data",
     .Tick = On_Window<timer_GGA_Tick>::Run,
     .Talker = Talker_In<&frmPosition::GGA_Record>::Of,
     .Setting = Setting_In<&GNSS_State::GGA_Enabled, &GNSS_State::GGA_Interval>::Of,
     .Kept = {{"REM Active messages", 1}, {"REM Active messages", 2}},
     .Choices = &Fast,
     .New_Setup_Interval = 2,
     .Stagger_s = 0.15F,
     .Start_Place = 1,
     .Stopped_By_Pause = true},
    {.Type = "VTG",
     .Content = "course and speed over ground",
     .Tick = On_Window<timer_VTG_Tick>::Run,
     .Talker = Talker_In<&frmPosition::VTG_Record>::Of,
     .Setting = Setting_In<&GNSS_State::VTG_Enabled, &GNSS_State::VTG_Interval>::Of,
     .Kept = {{"REM Active messages", 5}, {"REM Active messages", 6}},
     .Choices = &Fast,
     .New_Setup_Interval = 2,
     .Stagger_s = 0.1F,
     .Start_Place = 4,
     .Stopped_By_Pause = true},
    {.Type = "GLL",
     .Content = "position and time",
     .Tick = On_Window<timer_GLL_Tick>::Run,
     .Talker = Talker_In<&frmPosition::GLL_Record>::Of,
     .Setting = Setting_In<&GNSS_State::GLL_Enabled, &GNSS_State::GLL_Interval>::Of,
     .Kept = {{"REM Active messages", 3}, {"REM Active messages", 4}},
     .Choices = &GLL_Choices,
     .Stagger_s = 0.15F,
     .Start_Place = 2,
     .Stopped_By_Pause = true},
    {.Type = "RMC",
     .Content = "recommended minimum data",
     .Tick = On_Window<timer_RMC_Tick>::Run,
     .Talker = Talker_In<&frmPosition::RMC_Record>::Of,
     .Setting = Setting_In<&GNSS_State::RMC_Enabled, &GNSS_State::RMC_Interval>::Of,
     .Kept = {{"REM Active messages", 7}, {"REM Active messages", 8}},
     .Choices = &Fast,
     .New_Setup_Interval = 2,
     .Stagger_s = 0.1F,
     .Start_Place = 3,
     .Stopped_By_Pause = true},
    {.Type = "ZDA",
     .Content = "time and date",
     .Tick = On_Window<timer_ZDA_Tick>::Run,
     .Talker = Talker_In<&frmPosition::ZDA_Record>::Of,
     .Setting = Setting_In<&GNSS_State::ZDA_Enabled, &GNSS_State::ZDA_Interval>::Of,
     .Kept = {{"REM Active messages", 9}, {"REM Active messages", 10}},
     .Choices = &Slow,
     .New_Setup_Interval = 5,
     .Stagger_s = 0.1F,
     .Start_Place = 6},
    {.Type = "GNS",
     .Content = "fix data of several constellations",
     .Tick = On_Window<timer_GNS_Tick>::Run,
     .Talker = Talker_In<&frmPosition::GNS_Record>::Of,
     .Setting = Setting_In<&GNSS_State::GNS_Enabled, &GNSS_State::GNS_Interval>::Of,
     .Kept = {{"REM Active messages", 11}, {"REM Active messages", 12}},
     .Choices = &Fast,
     .New_Setup_Interval = 2,
     .Stagger_s = 0.15F,
     .Start_Place = 5},
    {.Type = "DTM",
     .Content = "datum reference",
     .Tick = On_Window<timer_DTM_Tick>::Run,
     .Talker = Talker_In<&frmPosition::DTM_Record>::Of,
     .Setting = Setting_In<&GNSS_State::DTM_Enabled, &GNSS_State::DTM_Interval>::Of,
     .Kept = {{"REM Active messages", 13}, {"REM Active messages", 14}},
     .Choices = &Slow,
     .New_Setup_Interval = 5,
     .Stagger_s = 0.15F,
     .Start_Place = 7},
    {.Type = "GSA",
     .Content = "satellites in use",
     .Tick = On_Window<timer_GSA_Tick>::Run,
     .Talker = Talker_In<&frmPosition::GSA_Record>::Of,
     .Setting = Setting_In<&GNSS_State::GSA_Enabled, &GNSS_State::GSA_Interval>::Of,
     .Kept = {{"REM GSA messages", 1}, {"REM GSA messages", 2}},
     .Choices = &Slow,
     .New_Setup_Interval = 5,
     .Stagger_s = 0.15F,
     .After_Check = On_Window<Fit_Width>::Run},
    {.Type = "GSV",
     .Content = "satellites in view",
     .Tick = On_Window<timer_GSV_Tick>::Run,
     .Talker = Talker_In<&frmPosition::GSV_Record>::Of,
     .Setting = Setting_In<&GNSS_State::GSV_Enabled, &GNSS_State::GSV_Interval>::Of,
     .Kept = {{"REM GSV messages", 1}, {"REM GSV messages", 2}},
     .Choices = &Slow,
     .New_Setup_Interval = 5,
     .Stagger_s = 0.15F,
     .After_Check = On_Window<Fit_Width>::Run},
    {.Type = "GST",
     .Content = "error statistics",
     .Tick = On_Window<timer_GST_Tick>::Run,
     .Talker = Talker_In<&frmPosition::GST_Record>::Of,
     .Setting = Setting_In<&GNSS_State::GST_Enabled, &GNSS_State::GST_Interval>::Of,
     .Kept = {{"REM GST messages", 1}, {"REM GST messages", 2}},
     .Choices = &GST_Choices,
     .New_Setup_Interval = 7,
     .Stagger_s = 0.15F,
     .After_Check = On_Window<Fit_Width>::Run},
};

Sentence_Time Time_Now(Simulator& Sim) { return {Sim.Services.Time(), Sim.State.Of<UTC_State>()}; }

std::int16_t Instance_Of(const frmPosition& W) { return static_cast<std::int16_t>(W.Instance); }

template <class Record>
void Copy_Position(const Simulator_State& State, int Instance, Record& R) {
    R.Lat = State.Of<GNSS_State>().GNSS_Lat[Instance];
    R.Lon = State.Of<GNSS_State>().GNSS_Lon[Instance];
}

// The four sentences with a position and a time are composed alike.
template <class Record>
void Compose_And_Send(Simulator& Sim, frmPosition& W, const Record& R,
                      std::string (*Compose)(const Sentence_Time&, const Record&, std::int16_t, std::int16_t,
                                             std::int16_t, bool)) {
    const int I = W.Instance;
    Send_Sentence(Sim,
                  Compose(Time_Now(Sim), R, Sim.State.Of<GNSS_State>().GNSS_Decimals_Position[I],
                          Sim.State.Of<GNSS_State>().GNSS_Decimals_Time[I], Instance_Of(W), No_Checksum(Sim)),
                  W);
}

} // namespace

std::span<const Sentence_Row> GNSS_Sentences() { return Rows; }

void timer_GGA_Tick(Simulator& Sim, frmPosition& W) {
    Copy_Position(Sim.State, W.Instance, W.GGA_Record);
    Compose_And_Send(Sim, W, W.GGA_Record, Compose_GGA);
}

void timer_GLL_Tick(Simulator& Sim, frmPosition& W) {
    Copy_Position(Sim.State, W.Instance, W.GLL_Record);
    Compose_And_Send(Sim, W, W.GLL_Record, Compose_GLL);
}

void timer_RMC_Tick(Simulator& Sim, frmPosition& W) {
    Copy_Position(Sim.State, W.Instance, W.RMC_Record);
    W.RMC_Record.COG = Sim.State.Of<GNSS_State>().GNSS_COG[W.Instance];
    W.RMC_Record.SOG = std::abs(Sim.State.Of<GNSS_State>().GNSS_SOG[W.Instance]);
    Compose_And_Send(Sim, W, W.RMC_Record, Compose_RMC);
}

void timer_GNS_Tick(Simulator& Sim, frmPosition& W) {
    Copy_Position(Sim.State, W.Instance, W.GNS_Record);
    W.GNS_Record.Talker = Sim.State.Of<GNSS_State>().GNS_Talker[W.Instance];
    W.GNS_Record.Mode = Sim.State.Of<GNSS_State>().GNS_Mode_Indicator[W.Instance];
    Compose_And_Send(Sim, W, W.GNS_Record, Compose_GNS);
}

void timer_VTG_Tick(Simulator& Sim, frmPosition& W) {
    constexpr double kmh_Per_Knot = 1.852;
    VTG_Record& R = W.VTG_Record;
    R.COG_True = Sim.State.Of<GNSS_State>().GNSS_COG[W.Instance];
    R.COG_Magnetic = Sum_Direction(R.COG_True, Sim.State.Of<Navdata_State>().Magnetic_Variation);
    R.SOG_Knots = std::abs(Sim.State.Of<GNSS_State>().GNSS_SOG[W.Instance]);
    R.SOG_Kmh = static_cast<float>(R.SOG_Knots * kmh_Per_Knot);
    Send_Sentence(Sim, Compose_VTG(R, No_Checksum(Sim)), W);
}

void timer_ZDA_Tick(Simulator& Sim, frmPosition& W) {
    Send_Sentence(Sim,
                  Compose_ZDA(Time_Now(Sim), W.ZDA_Record,
                              Sim.State.Of<GNSS_State>().GNSS_Decimals_Time[W.Instance], Instance_Of(W),
                              No_Checksum(Sim)),
                  W);
}

void timer_DTM_Tick(Simulator& Sim, frmPosition& W) {
    Send_Sentence(Sim, Compose_DTM(W.DTM_Record, No_Checksum(Sim)), W);
}

// The second GSA would leave without tag block, and only with a satellite. Nothing ever gives it one, so that
// exactly one GSA leaves in a tick; the dormant step is required all the same.
void timer_GSA_Tick(Simulator& Sim, frmPosition& W) {
    Send_Sentence(Sim, Compose_GSA(W.GSA_Record, No_Checksum(Sim)), W);
    GSA_Record& Second = W.GSA2_Record;
    if (Second.PRN[1] == 0) return;
    Second.Mode = W.GSA_Record.Mode;
    Second.Fix = W.GSA_Record.Fix;
    Second.PDOP = W.GSA_Record.PDOP;
    Second.HDOP = W.GSA_Record.HDOP;
    Second.VDOP = W.GSA_Record.VDOP;
    std::string Text = Compose_GSA(Second, No_Checksum(Sim));
    Send_NMEA(Sim, Text, Sim.State.Of<Link_State>().Sensor_Table[W.Instance].Port);
}

void timer_GST_Tick(Simulator& Sim, frmPosition& W) {
    Send_Sentence(Sim,
                  Compose_GST(Time_Now(Sim), W.GST_Record,
                              Sim.State.Of<GNSS_State>().GNSS_Decimals_Time[W.Instance], Instance_Of(W),
                              No_Checksum(Sim)),
                  W);
}

} // namespace brinewright
