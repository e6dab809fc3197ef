#pragma once

#include <string_view>

namespace brinewright {

struct Simulator;

// The virtual port, which shares the port number of the first UDP link. Its object is not part of this system
// and nothing turns its option on, so that all of it stays idle; both are required to be here.

// Hands Text to the virtual port, which is created by the first text when its option is on and a number was
// chosen for it. Without an object, or while it is not active, nothing happens.
void SendVirtualData(Simulator& Sim, std::string_view Text);

void Activate_Virtual_Port(Simulator& Sim);
void Deactivate_Virtual_Port(Simulator& Sim);

} // namespace brinewright
