#pragma once

#include "links/link_record_state.hpp"

#include <string>
#include <string_view>

namespace brinewright {

struct Simulator;

// The record of link Port, 1 to 28.
const Link_Record& Record_Of(const Simulator& Sim, int Port);

// Whether a sentence that is sent to Port now leaves. False for 0 and for what is no port; false as well
// while output is paused or a message box stands.
bool Output_Leaves(const Simulator& Sim, int Port);

// Why it does not, as the end of a line: "TCP 8040 is closed: address in use", "UDP 255.255.255.255:60002 is
// not in use", "no link is chosen", "output is paused". Empty while it leaves.
std::string Why_Nothing_Leaves(const Simulator& Sim, int Port);

// The full name of link Port (1 to 28), as it stands in its record.
std::string Full_Link_Name(const Simulator& Sim, int Port);

// For those who open links and send on them; views follow. Why is the system's text.
void Note_Wanted(Simulator& Sim); // of all links, and their names, as the setup has them now
void Note_Open(Simulator& Sim, int Port);
void Note_Closed(Simulator& Sim, int Port, std::string_view Why); // it is wanted, or has failed
void Note_Unused(Simulator& Sim, int Port);
void Note_Clients(Simulator& Sim, int Port, int Count);
void Note_Sent(Simulator& Sim, int Port);

} // namespace brinewright
