#include "gnss/gnss_ticks.hpp"

#include "gnss/frm_position.hpp"
#include "gnss/gnss_satellites.hpp"
#include "ownship/angles.hpp"
#include "shell/send_nmea.hpp"
#include "shell/simulator.hpp"

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

using P = frmPosition;
using S = Message_State;
constexpr int Never = 0; // START leaves it alone

// PAUSE stops four sentences only and START starts seven: a paused sensor goes on sending the others with its
// last position. This, and the two staggers, are required as they stand.
constexpr Sentence_Row<P> Rows[] = {
    {"GGA", "fix data", &P::chkGGA, &P::cmbGGAInterval, &P::timer_GGA, &Fast, 0.15F, timer_GGA_Tick, 1, true,
     nullptr, &S::GGA_Enabled, &S::GGA_Interval},
    {"VTG", "course and speed over ground", &P::chkVTG, &P::cmbVTGInterval, &P::timer_VTG, &Fast, 0.1F,
     timer_VTG_Tick, 4, true, nullptr, &S::VTG_Enabled, &S::VTG_Interval},
    {"GLL", "position and time", &P::chkGLL, &P::cmbGLLInterval, &P::timer_GLL, &GLL_Choices, 0.15F,
     timer_GLL_Tick, 2, true, nullptr, &S::GLL_Enabled, &S::GLL_Interval},
    {"RMC", "recommended minimum data", &P::chkRMC, &P::cmbRMCInterval, &P::timer_RMC, &Fast, 0.1F,
     timer_RMC_Tick, 3, true, nullptr, &S::RMC_Enabled, &S::RMC_Interval},
    {"ZDA", "time and date", &P::chkZDA, &P::cmbZDAInterval, &P::timer_ZDA, &Slow, 0.1F, timer_ZDA_Tick, 6,
     false, nullptr, &S::ZDA_Enabled, &S::ZDA_Interval},
    {"GNS", "fix data of several constellations", &P::chkGNS, &P::cmbGNSInterval, &P::timer_GNS, &Fast, 0.15F,
     timer_GNS_Tick, 5, false, nullptr, &S::GNS_Enabled, &S::GNS_Interval},
    {"DTM", "datum reference", &P::chkDTM, &P::cmbDTMInterval, &P::timer_DTM, &Slow, 0.15F, timer_DTM_Tick, 7,
     false, nullptr, &S::DTM_Enabled, &S::DTM_Interval},
    {"GSA", "satellites in use", &P::chkGSA, &P::cmbGSAInterval, &P::timer_GSA, &Slow, 0.15F, timer_GSA_Tick,
     Never, false, Fit_Width, &S::GSA_Enabled, &S::GSA_Interval},
    {"GSV", "satellites in view", &P::chkGSV, &P::cmbGSVInterval, &P::timer_GSV, &Slow, 0.15F, timer_GSV_Tick,
     Never, false, Fit_Width, &S::GSV_Enabled, &S::GSV_Interval},
    {"GST", "error statistics", &P::chkGST, &P::cmbGSTInterval, &P::timer_GST, &GST_Choices, 0.15F,
     timer_GST_Tick, Never, false, Fit_Width, &S::GST_Enabled, &S::GST_Interval},
};

Sentence_Time Time_Now(Simulator& Sim) { return {Sim.Services.Time(), Sim.State}; }

std::int16_t Instance_Of(const frmPosition& W) { return static_cast<std::int16_t>(W.Instance); }

template <class Record>
void Copy_Position(const Simulator_State& State, int Instance, Record& R) {
    R.Lat = State.GNSS_Lat[Instance];
    R.Lon = State.GNSS_Lon[Instance];
}

// The four sentences with a position and a time are composed alike.
template <class Record>
void Compose_And_Send(Simulator& Sim, frmPosition& W, const Record& R,
                      std::string (*Compose)(const Sentence_Time&, const Record&, std::int16_t, std::int16_t,
                                             std::int16_t, bool)) {
    const int I = W.Instance;
    Send_Sentence(Sim,
                  Compose(Time_Now(Sim), R, Sim.State.GNSS_Decimals_Position[I],
                          Sim.State.GNSS_Decimals_Time[I], Instance_Of(W), No_Checksum(Sim)),
                  W);
}

} // namespace

std::span<const Sentence_Row<frmPosition>> GNSS_Sentences() { return Rows; }

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
    W.RMC_Record.COG = Sim.State.GNSS_COG[W.Instance];
    W.RMC_Record.SOG = std::abs(Sim.State.GNSS_SOG[W.Instance]);
    Compose_And_Send(Sim, W, W.RMC_Record, Compose_RMC);
}

void timer_GNS_Tick(Simulator& Sim, frmPosition& W) {
    Copy_Position(Sim.State, W.Instance, W.GNS_Record);
    W.GNS_Record.Talker = Sim.State.GNS_Talker[W.Instance];
    W.GNS_Record.Mode = Sim.State.GNS_Mode_Indicator[W.Instance];
    Compose_And_Send(Sim, W, W.GNS_Record, Compose_GNS);
}

void timer_VTG_Tick(Simulator& Sim, frmPosition& W) {
    constexpr double kmh_Per_Knot = 1.852;
    VTG_Record& R = W.VTG_Record;
    R.COG_True = Sim.State.GNSS_COG[W.Instance];
    R.COG_Magnetic = Sum_Direction(R.COG_True, Sim.State.Magnetic_Variation);
    R.SOG_Knots = std::abs(Sim.State.GNSS_SOG[W.Instance]);
    R.SOG_Kmh = static_cast<float>(R.SOG_Knots * kmh_Per_Knot);
    Send_Sentence(Sim, Compose_VTG(R, No_Checksum(Sim)), W);
}

void timer_ZDA_Tick(Simulator& Sim, frmPosition& W) {
    Send_Sentence(Sim,
                  Compose_ZDA(Time_Now(Sim), W.ZDA_Record, Sim.State.GNSS_Decimals_Time[W.Instance],
                              Instance_Of(W), No_Checksum(Sim)),
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
    Send_NMEA(Sim, Text, Sim.State.Sensor_Table[W.Instance].Port);
}

void timer_GST_Tick(Simulator& Sim, frmPosition& W) {
    Send_Sentence(Sim,
                  Compose_GST(Time_Now(Sim), W.GST_Record, Sim.State.GNSS_Decimals_Time[W.Instance],
                              Instance_Of(W), No_Checksum(Sim)),
                  W);
}

} // namespace brinewright
