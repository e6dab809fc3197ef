#pragma once

#include "sentences/number_pattern.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

// A number as messages and list entries join it to text: with a leading blank unless it is negative.
inline std::string Number_Text(std::int64_t Number) {
    return (Number < 0 ? "" : " ") + std::to_string(Number);
}

// The same for a number with decimals: as many as its shortest decimal text has.
inline std::string Decimal_Text(float Number) {
    const float No_Minus_Zero = Number == 0 ? 0.0F : Number;
    return (No_Minus_Zero < 0 ? "" : " ") + Format_Dot(No_Minus_Zero, "");
}

} // namespace brinewright
