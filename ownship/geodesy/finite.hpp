#pragma once

#include <cmath>

namespace brinewright {

// Infinities and not-a-numbers, which only a fault upstream can make, count as 0 all over the angle
// arithmetic.
inline double Finite_Or_Zero(double Value) { return std::isfinite(Value) ? Value : 0.0; }

} // namespace brinewright
