#pragma once

#include "sentences/number_pattern.hpp"

#include <algorithm>
#include <limits>
#include <string_view>

namespace brinewright {

// As the records hold it: what exceeds their range becomes the largest number that they hold.
inline float Record_Number(double Value) {
    using Limits = std::numeric_limits<float>;
    return static_cast<float>(
        std::clamp(Value, static_cast<double>(Limits::lowest()), static_cast<double>(Limits::max())));
}

// The number that the text of a box or of a list starts with.
inline float Number_Shown(std::string_view Text) { return Record_Number(Val_Dot(Text)); }

} // namespace brinewright
