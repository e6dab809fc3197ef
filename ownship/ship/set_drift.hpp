#pragma once

namespace brinewright {

struct Simulator_State;

// What the ground vector (Nav_SOG along Nav_COG) and the water vector (Log_Speed(1) along Gyro_HDG(1)) differ
// by, from the triangle that they make: Current_Set in degrees, where it sets to, and Current_Drift in knots.
// Where the vectors cancel each other exactly the drift keeps what it was, as required.
void Compute_Set_Drift(Simulator_State& S);

} // namespace brinewright
