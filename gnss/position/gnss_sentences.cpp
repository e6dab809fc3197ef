#include "gnss/gnss_state.hpp"
#include "gnss/position/frm_position.hpp"
#include "gnss/position/gnss_satellites.hpp"
#include "gnss/position/position_parts.hpp"
#include "ownship/geodesy/angles.hpp"
#include "ownship/navdata_state.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/transmit/send_nmea.hpp"
#include "shell/transmit/sending_as.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace brinewright {

namespace {

using G = GNSS_State;
using P = frmPosition;

// Each tick refreshes what changes in its record, composes and sends.

Sentence_Time Time_Now(Simulator& Sim) { return {Sim.Services.Time(), Sim.State.Of<UTC_State>()}; }

std::int16_t Instance_Of(const P& W) { return static_cast<std::int16_t>(W.Instance); }

// With a position and a time.
template <auto Record, auto Compose>
void Send_Position(Simulator& Sim, P& W) {
    const G& S = Sim.State.Of<G>();
    const int I = W.Instance;
    auto& R = W.*Record;
    R.Lat = S.GNSS_Lat[I];
    R.Lon = S.GNSS_Lon[I];
    Send_Sentence(Sim,
                  Compose(Time_Now(Sim), R, S.GNSS_Decimals_Position[I], S.GNSS_Decimals_Time[I],
                          Instance_Of(W), No_Checksum(Sim)),
                  W);
}

// With a time alone.
template <auto Record, auto Compose>
void Send_Timed(Simulator& Sim, P& W) {
    Send_Sentence(Sim,
                  Compose(Time_Now(Sim), W.*Record, Sim.State.Of<G>().GNSS_Decimals_Time[W.Instance],
                          Instance_Of(W), No_Checksum(Sim)),
                  W);
}

void Send_RMC(Simulator& Sim, P& W) {
    const G& S = Sim.State.Of<G>();
    W.RMC_Record.COG = S.GNSS_COG[W.Instance];
    W.RMC_Record.SOG = std::abs(S.GNSS_SOG[W.Instance]);
    Send_Position<&P::RMC_Record, Compose_RMC>(Sim, W);
}

void Send_GNS(Simulator& Sim, P& W) {
    const G& S = Sim.State.Of<G>();
    W.GNS_Record.Talker = S.GNS_Talker[W.Instance];
    W.GNS_Record.Mode = S.GNS_Mode_Indicator[W.Instance];
    Send_Position<&P::GNS_Record, Compose_GNS>(Sim, W);
}

void Send_VTG(Simulator& Sim, P& W) {
    constexpr double kmh_Per_Knot = 1.852;
    const G& S = Sim.State.Of<G>();
    VTG_Record& R = W.VTG_Record;
    R.COG_True = S.GNSS_COG[W.Instance];
    R.COG_Magnetic = Sum_Direction(R.COG_True, Sim.State.Of<Navdata_State>().Magnetic_Variation);
    R.SOG_Knots = std::abs(S.GNSS_SOG[W.Instance]);
    R.SOG_Kmh = static_cast<float>(R.SOG_Knots * kmh_Per_Knot);
    Send_Sentence(Sim, Compose_VTG(R, No_Checksum(Sim)), W);
}

void Send_DTM(Simulator& Sim, P& W) { Send_Sentence(Sim, Compose_DTM(W.DTM_Record, No_Checksum(Sim)), W); }

// The second GSA would leave without tag block, and only with a satellite. Nothing ever gives it one, so that
// exactly one GSA leaves in a tick; the dormant step is required all the same.
void Send_GSA(Simulator& Sim, P& W) {
    const GSA_Record& First = W.GSA_Record;
    GSA_Record& Second = W.GSA2_Record;
    Send_Sentence(Sim, Compose_GSA(First, No_Checksum(Sim)), W);
    if (Second.PRN[1] == 0) return;
    Second.Mode = First.Mode;
    Second.Fix = First.Fix;
    Second.PDOP = First.PDOP;
    Second.HDOP = First.HDOP;
    Second.VDOP = First.VDOP;
    std::string Text = Compose_GSA(Second, No_Checksum(Sim));
    const Sending_As Mark(Sim, static_cast<std::int16_t>(W.Form_Index));
    Send_NMEA(Sim, Text, Sim.State.Of<Link_State>().Sensor_Table[W.Instance].Port);
}

// The whole part towards minus infinity. The SNR is a random walk without bounds.
std::int16_t Whole_Below(float Value) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (std::isnan(Value)) return 0;
    const auto Least = static_cast<float>(Limits::min());
    const auto Most = static_cast<float>(Limits::max());
    return static_cast<std::int16_t>(std::clamp(std::floor(Value), Least, Most));
}

// An identifier without a satellite behind it, such as the 0 of a list that is shorter than what is asked
// for, leaves the fields of its place as they were, with number 0, so that the place goes out empty.
void Fill_Place(GSV_Record& R, int Place, const Simulator_State& State, std::int16_t Identifier) {
    const bool Known = Is_In_Sky(State, Identifier);
    R.PRN[Place] = Known ? Reported_Number(Identifier) : std::int16_t{0};
    if (!Known) return;
    const Sky_Satellite& Satellite = State.Of<G>().Sky_Table[Identifier];
    R.Elevation[Place] = Whole_Below(Satellite.Elevation);
    R.Azimuth[Place] = Whole_Below(Satellite.Azimuth);
    R.SNR[Place] = Whole_Below(Satellite.SNR);
}

// The series leaves back to back: first the satellites in use, then the others in view, four in a sentence.
// With none in view nothing leaves.
void Send_GSV(Simulator& Sim, P& W) {
    constexpr int Places = 4;
    GSV_Record& R = W.GSV_Record;
    const int In_View = W.cmbInView.List_Index();
    R.Total = static_cast<std::int16_t>((In_View + Places - 1) / Places);
    for (std::int16_t Number = 1; Number <= R.Total; ++Number) {
        R.Number = Number;
        for (int Place = 1; Place <= Places; ++Place)
            Fill_Place(R, Place, Sim.State, Listed_Satellite(Sim.State, W, (Number - 1) * Places + Place));
        Send_Sentence(Sim, Compose_GSV(R, No_Checksum(Sim)), W, Number, R.Total);
    }
}

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

constexpr float Long_s = 0.15F, Short_s = 0.1F;

constexpr Sentence_Row Common(const Interval_Choices& Choices, float Stagger_s) {
    return {.Choices = &Choices,
            .New_Setup_Interval = static_cast<std::int16_t>(Choices.Default_List_Index),
            .Stagger_s = Stagger_s};
}

constexpr Sentence_Row Paused(const Interval_Choices& Choices, float Stagger_s) {
    Sentence_Row New = Common(Choices, Stagger_s);
    New.Stopped_By_Pause = true;
    return New;
}

// With a frame that the window shows while the sentence is enabled.
constexpr Sentence_Row Framed(const Interval_Choices& Choices) {
    Sentence_Row New = Common(Choices, Long_s);
    New.After_Check = On_Window<Fit_Width>::Run;
    return New;
}

constexpr const char* Active = "REM Active messages";

// PAUSE stops four sentences only and START starts seven: a paused sensor goes on sending the others with its
// last position. This, and the two staggers, are required as they stand.
constexpr Sentence_Row Rows[] = {
    Row<&P::GGA_Record, &G::GGA_Enabled, &G::GGA_Interval, Send_Position<&P::GGA_Record, Compose_GGA>>(
        Paused(Fast, Long_s), "GGA", "fix data", 1, {Active, 1}),
    Row<&P::VTG_Record, &G::VTG_Enabled, &G::VTG_Interval, Send_VTG>(
        Paused(Fast, Short_s), "VTG", "course and speed over ground", 4, {Active, 5}),
    Row<&P::GLL_Record, &G::GLL_Enabled, &G::GLL_Interval, Send_Position<&P::GLL_Record, Compose_GLL>>(
        Paused(GLL_Choices, Long_s), "GLL", "position and time", 2, {Active, 3}),
    Row<&P::RMC_Record, &G::RMC_Enabled, &G::RMC_Interval, Send_RMC>(
        Paused(Fast, Short_s), "RMC", "recommended minimum data", 3, {Active, 7}),
    Row<&P::ZDA_Record, &G::ZDA_Enabled, &G::ZDA_Interval, Send_Timed<&P::ZDA_Record, Compose_ZDA>>(
        Common(Slow, Short_s), "ZDA", "time and date", 6, {Active, 9}),
    Row<&P::GNS_Record, &G::GNS_Enabled, &G::GNS_Interval, Send_GNS>(
        Common(Fast, Long_s), "GNS", "fix data of several constellations", 5, {Active, 11}),
    Row<&P::DTM_Record, &G::DTM_Enabled, &G::DTM_Interval, Send_DTM>(Common(Slow, Long_s), "DTM",
                                                                     "datum reference", 7, {Active, 13}),
    Row<&P::GSA_Record, &G::GSA_Enabled, &G::GSA_Interval, Send_GSA>(Framed(Slow), "GSA", "satellites in use",
                                                                     0, {"REM GSA messages", 1}),
    Row<&P::GSV_Record, &G::GSV_Enabled, &G::GSV_Interval, Send_GSV>(
        Framed(Slow), "GSV", "satellites in view", 0, {"REM GSV messages", 1}),
    Row<&P::GST_Record, &G::GST_Enabled, &G::GST_Interval, Send_Timed<&P::GST_Record, Compose_GST>>(
        Framed(GST_Choices), "GST", "error statistics", 0, {"REM GST messages", 1}),
};

} // namespace

std::span<const Sentence_Row> GNSS_Sentences() { return Rows; }

} // namespace brinewright
