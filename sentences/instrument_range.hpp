#pragma once

#include <algorithm>
#include <cmath>

namespace brinewright {

// No instrument gives a number whose whole part has more than six digits, and no sentence has room for it.
inline constexpr double Beyond_Instruments = 1'000'000;
inline constexpr double Greatest_Instrument_Number = 999'999;

// Also what reaches it only as a 32-bit float, and what is no number.
inline bool Beyond_Any_Instrument(double Value) {
    return !(std::abs(Value) < Beyond_Instruments) ||
           std::abs(static_cast<float>(Value)) >= static_cast<float>(Beyond_Instruments);
}

// As near to Value as an instrument gets; what is no number counts as 0.
inline double Held_To_Instruments(double Value) {
    if (std::isnan(Value)) return 0;
    return Beyond_Any_Instrument(Value)
               ? std::clamp(Value, -Greatest_Instrument_Number, Greatest_Instrument_Number)
               : Value;
}

} // namespace brinewright
