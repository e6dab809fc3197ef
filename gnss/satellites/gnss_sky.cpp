#include "gnss/satellites/gnss_sky.hpp"

#include "gnss/gnss_state.hpp"
#include "shell/state/simulator.hpp"

#include <cmath>

namespace brinewright {

namespace {

constexpr double Lowest_Elevation_deg = 5;
constexpr double Largest_Step_deg = 0.1;

void Move_Elevation(Sky_Satellite& Satellite, double Step_deg) {
    const double Change_deg = Satellite.Rising ? Step_deg : -Step_deg;
    Satellite.Elevation = static_cast<float>(Satellite.Elevation + Change_deg);
    if (Satellite.Rising) {
        if (Satellite.Elevation > static_cast<float>(Satellite.Max_Elevation)) Satellite.Rising = false;
    } else if (Satellite.Elevation < Lowest_Elevation_deg) {
        Satellite.Rising = true;
    }
}

void Move_Azimuth(Sky_Satellite& Satellite, double Step_deg) {
    constexpr float Full_Circle_deg = 360, Last_deg = 359.9F;
    const double Change_deg = Satellite.Az_Increasing ? Step_deg : -Step_deg;
    Satellite.Azimuth = static_cast<float>(Satellite.Azimuth + Change_deg);
    if (Satellite.Azimuth > Full_Circle_deg) Satellite.Azimuth = 0;
    if (Satellite.Azimuth < 0) Satellite.Azimuth = Last_deg;
}

} // namespace

void Init_Sky(Simulator& Sim) {
    Random_Source& Random = Sim.Services.Random;
    for (Sky_Satellite& Satellite : Sim.State.Of<GNSS_State>().Sky_Table) {
        Satellite.Max_Elevation = static_cast<std::int16_t>(std::nearbyint(Random.Draw() * 70 + 20));
        Satellite.Rising = Random.Draw() < 0.5;
        Satellite.Az_Increasing = Random.Draw() < 0.5;
        const double Range_deg = Satellite.Max_Elevation - Lowest_Elevation_deg;
        Satellite.Elevation = static_cast<float>(Range_deg * Random.Draw() + Lowest_Elevation_deg);
        Satellite.Azimuth = static_cast<float>(Random.Draw() * 359);
        Satellite.SNR = static_cast<float>(std::floor(Random.Draw() * 25) + 5);
    }
}

// The SNR is a pure random walk and has no bounds: it is required to stay so.
void timer_Sky_Tick(Simulator& Sim) {
    Random_Source& Random = Sim.Services.Random;
    for (Sky_Satellite& Satellite : Sim.State.Of<GNSS_State>().Sky_Table) {
        Move_Elevation(Satellite, Random.Draw() * Largest_Step_deg);
        Move_Azimuth(Satellite, Random.Draw() * Largest_Step_deg);
        Satellite.SNR = static_cast<float>(Satellite.SNR + Random.Draw() - 0.5);
    }
}

} // namespace brinewright
