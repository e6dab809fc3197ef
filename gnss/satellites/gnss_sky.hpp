#pragma once

namespace brinewright {

struct Simulator;

// One sky for all sensors: 88 satellites that drift slowly and at random, following neither orbits nor the
// ship.

// Puts every satellite somewhere. Once, at program start.
void Init_Sky(Simulator& Sim);

// Moves every satellite a little; each 10 s, whether or not a GNSS window is open.
void timer_Sky_Tick(Simulator& Sim);

} // namespace brinewright
