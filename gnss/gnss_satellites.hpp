#pragma once

#include <cstdint>
#include <span>

namespace brinewright {

struct frmPosition;
struct Simulator;
struct Simulator_State;

// Gives the window the eight GPS satellites 3, 6, 8, 12, 19, 24, 25 and 32 in use, as many in view.
void Choose_Default_Satellites(Simulator_State& State, frmPosition& W);

// The satellites in use become Identifiers, ascending identifiers of Sky_Table (1 to 32 GPS): the list and
// the marks, which both windows share (the last choice holds for both), the first twelve numbers of GSA, and
// the counts of GGA and GNS.
void Choose_Satellites(Simulator_State& State, frmPosition& W, std::span<const std::int16_t> Identifiers);

// Sends the series of GSV back to back: first the satellites in use, then the others in view, four in a
// sentence. With none in view nothing leaves.
void timer_GSV_Tick(Simulator& Sim, frmPosition& W);

} // namespace brinewright
