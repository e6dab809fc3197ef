#pragma once

#include <cstdint>
#include <string>

namespace brinewright {

// The link to the traffic simulator.
struct Gullwatch_State {
    bool Gullwatch_Remote_PC = false; // it runs on another machine
    std::string Gullwatch_Remote_IP;
    std::int32_t Gullwatch_Bind_Port = 0; // local port
    std::int32_t Gullwatch_Remote_Port = 0;
};

} // namespace brinewright
