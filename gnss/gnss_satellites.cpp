#include "gnss/gnss_satellites.hpp"

#include "gnss/frm_position.hpp"
#include "shell/simulator.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace brinewright {

namespace {

constexpr std::int16_t Default_Satellites[] = {3, 6, 8, 12, 19, 24, 25, 32};
constexpr int GSA_Places = 12;
constexpr int GSV_Places = 4;

constexpr std::int16_t First_SBAS = 33, Last_SBAS = 64;
constexpr std::int16_t SBAS_Number_Offset = 87;

// The number that GSV and GSA report for a satellite of Sky_Table.
std::int16_t Reported_Number(std::int16_t Identifier) {
    const bool SBAS = Identifier >= First_SBAS && Identifier <= Last_SBAS;
    return static_cast<std::int16_t>(SBAS ? Identifier + SBAS_Number_Offset : Identifier);
}

// The whole part towards minus infinity. The SNR is a random walk without bounds.
std::int16_t Whole_Below(float Value) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (std::isnan(Value)) return 0;
    const auto Least = static_cast<float>(Limits::min());
    const auto Most = static_cast<float>(Limits::max());
    return static_cast<std::int16_t>(std::clamp(std::floor(Value), Least, Most));
}

// Satellite x (from 1) of the series; 0 when the lists have none there.
std::int16_t Satellite_At(const Simulator_State& State, int Place, int In_Use, int In_View) {
    using List = decltype(State.Svs_In_Use);
    if (Place > std::max(In_Use, In_View)) return 0;
    const bool Used = Place <= In_Use;
    const int Element = Used ? Place : Place - In_Use;
    if (Element > List::Last_Index) return 0;
    return Used ? State.Svs_In_Use[Element] : State.Svs_In_View[Element];
}

// An identifier without a satellite behind it, such as the 0 of a list that is shorter than what is asked
// for, leaves the fields of its place as they were, with number 0, so that the place goes out empty.
void Fill_Place(GSV_Record& R, int Place, const Simulator_State& State, std::int16_t Identifier) {
    const bool Known = Identifier >= State.Sky_Table.First_Index && Identifier <= State.Sky_Table.Last_Index;
    R.PRN[Place] = Known ? Reported_Number(Identifier) : std::int16_t{0};
    if (!Known) return;
    const Sky_Satellite& Satellite = State.Sky_Table[Identifier];
    R.Elevation[Place] = Whole_Below(Satellite.Elevation);
    R.Azimuth[Place] = Whole_Below(Satellite.Azimuth);
    R.SNR[Place] = Whole_Below(Satellite.SNR);
}

} // namespace

void Choose_Default_Satellites(Simulator_State& State, frmPosition& W) {
    Choose_Satellites(State, W, Default_Satellites);
    W.GSV_Record.In_View = W.GGA_Record.Sats;
}

void Choose_Satellites(Simulator_State& State, frmPosition& W, std::span<const std::int16_t> Identifiers) {
    W.GSA_Record.PRN = {};
    State.Svs_In_Use = {};
    for (Sky_Satellite& Satellite : State.Sky_Table) Satellite.Used = false;
    int Count = 0;
    for (const std::int16_t Identifier : Identifiers) {
        ++Count;
        if (Count <= GSA_Places) W.GSA_Record.PRN[Count] = Reported_Number(Identifier);
        State.Svs_In_Use[Count] = Identifier;
        State.Sky_Table[Identifier].Used = true;
    }
    W.GGA_Record.Sats = static_cast<std::int16_t>(Count);
    W.GNS_Record.Sats = W.GGA_Record.Sats;
}

void timer_GSV_Tick(Simulator& Sim, frmPosition& W) {
    GSV_Record& R = W.GSV_Record;
    const int In_View = R.In_View;
    const int In_Use = W.GGA_Record.Sats;
    R.Total = static_cast<std::int16_t>((In_View + GSV_Places - 1) / GSV_Places);
    for (std::int16_t Number = 1; Number <= R.Total; ++Number) {
        R.Number = Number;
        for (int Place = 1; Place <= GSV_Places; ++Place)
            Fill_Place(R, Place, Sim.State,
                       Satellite_At(Sim.State, (Number - 1) * GSV_Places + Place, In_Use, In_View));
        Send_Sentence(Sim, Compose_GSV(R, No_Checksum(Sim)), W.Instance, Number, R.Total);
    }
}

} // namespace brinewright
