#pragma once

#include <string>

namespace brinewright {

struct Simulator;

// A few lines for the one who started the program: which setup runs, what is sent where, how to look at it.
std::string Summary(const Simulator& Sim);

} // namespace brinewright
