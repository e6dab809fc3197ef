#pragma once

#include "platform/link_objects.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

struct Simulator;

// Brings all links to the state that Port_Table describes: serial ports, the TCP server, the UDP links. Count
// is the number of serial ports present.
void Init_Comports(Simulator& Sim, std::int16_t Count);

// The object of serial port Index (1 to 16), made when it is first asked for.
Serial_Port& Comport_Object(Simulator& Sim, int Index);

// Opens serial port Index (1 to 16) anew without a word. Empty, or the system's text of what went wrong.
std::string Try_Comport(Simulator& Sim, int Index);

// Closes serial port Index (1 to 16) if it is open.
void Close_Comport(Simulator& Sim, int Index);

// What serial port Index (1 to 16) tells. Only the receive pane of the extended monitor is fed.
void MSComm_OnComm(Simulator& Sim, int Index, Comm_Event Event);

} // namespace brinewright
