#pragma once

#include <cstdint>
#include <string>

namespace brinewright {

// A number as messages and list entries join it to text: with a leading blank unless it is negative.
inline std::string Number_Text(std::int64_t Number) {
    return (Number < 0 ? "" : " ") + std::to_string(Number);
}

} // namespace brinewright
