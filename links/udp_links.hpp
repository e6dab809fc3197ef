#pragma once

#include <cstdint>
#include <string>

namespace brinewright {

struct Simulator;

// The address that all UDP links send to, as the setup has it now.
std::string UDP_Destination(const Simulator& Sim);

// Makes UDP link K (0 to 10) ready to send to the destination that UDP_Mode, UDP_Remote_Host and its own
// UDP_Port_Number name now; both are read again only here. A failure is told in a box.
void Open_UDP(Simulator& Sim, std::int16_t K);

} // namespace brinewright
