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

template <class Visitor>
void Visit_State(Gullwatch_State& S, Visitor&& Visit) {
    Visit("Gullwatch_Remote_PC", S.Gullwatch_Remote_PC);
    Visit("Gullwatch_Remote_IP", S.Gullwatch_Remote_IP);
    Visit("Gullwatch_Bind_Port", S.Gullwatch_Bind_Port);
    Visit("Gullwatch_Remote_Port", S.Gullwatch_Remote_Port);
}

} // namespace brinewright
