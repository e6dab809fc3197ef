#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

inline void Require(bool Holds) {
    if (!Holds) std::abort();
}

// What each target does with any bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size);
