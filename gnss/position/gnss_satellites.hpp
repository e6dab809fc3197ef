#pragma once

#include <cstdint>

namespace brinewright {

struct frmPosition;
struct Simulator;
struct Simulator_State;

// Identifiers of Sky_Table: 1 to 32 GPS, 33 to 64 SBAS, 65 to 88 GLONASS.
inline constexpr int SBAS_Number_Offset = 87; // SBAS 120 is satellite 33
inline constexpr int Before_GLONASS = 64;     // GLONASS 1 is satellite 65

// The number that GSV and GSA report for a satellite.
std::int16_t Reported_Number(std::int16_t Identifier);

bool Is_In_Sky(const Simulator_State& State, std::int16_t Identifier);

// Sends the series of GSV back to back: first the satellites in use, then the others in view, four in a
// sentence. With none in view nothing leaves.
void timer_GSV_Tick(Simulator& Sim, frmPosition& W);

} // namespace brinewright
