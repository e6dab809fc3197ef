#pragma once

#include "platform/controls.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

struct Simulator;

// Port numbers: 0 none, 1 to 16 COM1 to COM16, 17 the TCP/IP server, 18 to 28 UDP links 0 to 10.
namespace port_number {
inline constexpr std::int16_t None = 0, Last_Serial = 16, TCP = 17, First_UDP = 18, Last = 28;
} // namespace port_number

// Whether link Port is present and enabled. False outside 1 to 28.
bool Link_In_Use(const Simulator& Sim, int Port);

// The name of link Port (1 to 28) as lists and monitors show it: "COM 3", "TCP/IP", "UDP 60001".
std::string Link_Name(const Simulator& Sim, int Port);

// Fills a sensor's cmbComPort with the links in use, each with its port number as item data, and selects
// Selected; a port that is not in use leaves nothing selected and runs nothing.
void Fill_Port_List(const Simulator& Sim, Combo_Box& List, std::int16_t Selected);

} // namespace brinewright
