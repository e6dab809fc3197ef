#pragma once

namespace brinewright {

struct Simulator_State;

// Gives every talker that a setup left empty its default again, so that no sentence leaves without one.
void Repair_Talkers(Simulator_State& State);

} // namespace brinewright
