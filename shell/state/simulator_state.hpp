#pragma once

#include "platform/area_store.hpp"

namespace brinewright {

// The public state of the whole system, read and written directly by everything on the one event thread:
// State.Of<Gyro_State>().Gyro_HDG[1]. Each area is a plain record in a *_state.hpp of the folder that it
// belongs to, and each of its fields is declared there and nowhere else: what automation sees under "state."
// is made from these headers when the program is built (tools/describe_state.py). All of it starts at zero,
// false or empty; Load_Default_Data sets what has another default.
struct Simulator_State : Area_Store {};

} // namespace brinewright
