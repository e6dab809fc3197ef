#pragma once

#include <cstdint>
#include <string>

namespace brinewright {

// What the autopilot keeps over a restart.
struct Autopilot_State {
    std::int16_t Autopilot_Mode = 0; // at the final waypoint: 0 stop, 1 start again, 2 sail back
    std::string Route_File;          // path of the route
};

} // namespace brinewright
