#pragma once

#include <cstdint>

namespace brinewright {

struct frmPosition;
struct Simulator_State;

// Satellites go by their identifiers in Sky_Table: 1 to 32 GPS, 33 to 64 SBAS, 65 to 88 GLONASS.

// The number that GSV and GSA report for a satellite.
std::int16_t Reported_Number(std::int16_t Identifier);

bool Is_In_Sky(const Simulator_State& State, std::int16_t Identifier);

// Satellite Place, from 1, of a window: first those in use, then the others in view. 0 when the lists have
// none there.
std::int16_t Listed_Satellite(const Simulator_State& State, const frmPosition& W, int Place);

} // namespace brinewright
