#pragma once

#include <string>
#include <vector>

namespace brinewright {

struct Simulator_State;

// The variables of the state at these addresses, by the names that automation has for them: "GNSS_Talker[1]",
// "Port_Table[3].BaudRate", in the order of the addresses. One that is not there is passed over.
std::vector<std::string> Names_Of(Simulator_State& State, const std::vector<const void*>& Addresses);

} // namespace brinewright
