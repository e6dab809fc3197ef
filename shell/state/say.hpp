#pragma once

#include <string>

namespace brinewright {

struct Simulator;

// Says something that the user should know and need not answer: in the status bar, and headless on stderr.
// Other than a message box it holds nothing.
void Say(Simulator& Sim, std::string Text);

} // namespace brinewright
