#pragma once

#include <cstdint>
#include <string>

namespace brinewright {

// What the autopilot keeps over a restart.
struct Autopilot_State {
    std::int16_t Autopilot_Mode = 0; // at the final waypoint: 0 stop, 1 start again, 2 sail back
    std::string Route_File;          // path of the route
};

template <class Visitor>
void Visit_State(Autopilot_State& S, Visitor&& Visit) {
    Visit("Autopilot_Mode", S.Autopilot_Mode);
    Visit("Route_File", S.Route_File);
}

} // namespace brinewright
