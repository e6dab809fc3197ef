#pragma once

#include "sentences/number_pattern.hpp"

#include <cstdint>

namespace brinewright {

// The form of heading and rate of turn with Decimals behind the point, 0 to 3; any other value means 1.
constexpr Number_Pattern Gyro_Pattern(std::int16_t Decimals) {
    switch (Decimals) {
    case 0: return "000"_Pattern;
    case 2: return "000.00"_Pattern;
    case 3: return "000.000"_Pattern;
    default: return "000.0"_Pattern;
    }
}

} // namespace brinewright
