#include "gnss/position/gnss_satellites.hpp"

#include "gnss/gnss_state.hpp"
#include "gnss/position/frm_position.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace brinewright {

namespace {

constexpr int GSV_Places = 4;

constexpr std::int16_t First_SBAS = 33, Last_SBAS = 64;

// The whole part towards minus infinity. The SNR is a random walk without bounds.
std::int16_t Whole_Below(float Value) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (std::isnan(Value)) return 0;
    const auto Least = static_cast<float>(Limits::min());
    const auto Most = static_cast<float>(Limits::max());
    return static_cast<std::int16_t>(std::clamp(std::floor(Value), Least, Most));
}

// Satellite Place (from 1) of the series; 0 when the lists have none there.
std::int16_t Satellite_At(const Simulator_State& State, int Place, int In_Use, int In_View) {
    if (Place <= In_Use) return State.Of<GNSS_State>().Svs_In_Use[Place];
    if (Place <= In_View) return State.Of<GNSS_State>().Svs_In_View[Place - In_Use];
    return 0;
}

// An identifier without a satellite behind it, such as the 0 of a list that is shorter than what is asked
// for, leaves the fields of its place as they were, with number 0, so that the place goes out empty.
void Fill_Place(GSV_Record& R, int Place, const Simulator_State& State, std::int16_t Identifier) {
    const bool Known = Is_In_Sky(State, Identifier);
    R.PRN[Place] = Known ? Reported_Number(Identifier) : std::int16_t{0};
    if (!Known) return;
    const Sky_Satellite& Satellite = State.Of<GNSS_State>().Sky_Table[Identifier];
    R.Elevation[Place] = Whole_Below(Satellite.Elevation);
    R.Azimuth[Place] = Whole_Below(Satellite.Azimuth);
    R.SNR[Place] = Whole_Below(Satellite.SNR);
}

} // namespace

std::int16_t Reported_Number(std::int16_t Identifier) {
    const bool SBAS = Identifier >= First_SBAS && Identifier <= Last_SBAS;
    return static_cast<std::int16_t>(SBAS ? Identifier + SBAS_Number_Offset : Identifier);
}

bool Is_In_Sky(const Simulator_State& State, std::int16_t Identifier) {
    return Identifier >= State.Of<GNSS_State>().Sky_Table.First_Index &&
           Identifier <= State.Of<GNSS_State>().Sky_Table.Last_Index;
}

void timer_GSV_Tick(Simulator& Sim, frmPosition& W) {
    GSV_Record& R = W.GSV_Record;
    const int In_View = W.cmbInView.List_Index();
    const int In_Use = W.GGA_Record.Sats;
    R.Total = static_cast<std::int16_t>((In_View + GSV_Places - 1) / GSV_Places);
    for (std::int16_t Number = 1; Number <= R.Total; ++Number) {
        R.Number = Number;
        for (int Place = 1; Place <= GSV_Places; ++Place)
            Fill_Place(R, Place, Sim.State,
                       Satellite_At(Sim.State, (Number - 1) * GSV_Places + Place, In_Use, In_View));
        Send_Sentence(Sim, Compose_GSV(R, No_Checksum(Sim)), W, Number, R.Total);
    }
}

} // namespace brinewright
