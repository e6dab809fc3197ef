#pragma once

namespace brinewright {

struct Simulator;

// Asks for a file and writes the sentences that the Traffic window shows to it, as a recording of what left.
void Export_Traffic(Simulator& Sim);

} // namespace brinewright
