#pragma once

#include <string>

namespace brinewright {

struct Simulator;

// Listens on TCP_Port with the element TCP_Client_Max_Index. A port that is taken is told in a box, and the
// program goes on without a server.
void TCP_Listen(Simulator& Sim);

// The same without a word. Empty, or the system's text of what went wrong.
std::string Try_Listening(Simulator& Sim);

// Ends the server and all its connections: the link is no longer in use.
void TCP_Stop(Simulator& Sim);

// Sends Text to every connected client. A client that does not read misses whole texts; the others are
// undisturbed. True when a client took it, or when there is none but the server is open.
bool Write_TCP(Simulator& Sim, const std::string& Text);

} // namespace brinewright
