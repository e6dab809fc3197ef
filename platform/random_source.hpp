#pragma once

#include <cstdint>
#include <random>

namespace brinewright {

// Uniform draws in [0, 1), all from one seeded stream, so that a seed repeats a run.
struct Random_Source {
    std::mt19937_64 Engine{0};

    void Seed(std::uint64_t Value) { Engine.seed(Value); }
    double Draw() { return static_cast<double>(Engine() >> 11) * 0x1.0p-53; }
};

} // namespace brinewright
