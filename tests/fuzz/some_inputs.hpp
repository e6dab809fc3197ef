#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace brinewright {

// One input in some: the same ones each time. What takes much longer than reading is tried on these only.
inline bool Is_One_Of_Some(const std::uint8_t* Data, std::size_t Size) {
    constexpr std::uint32_t Some = 512;
    constexpr std::size_t Looked_At = 64; // each byte that is looked at is traced by the fuzzer
    auto Sum = 2166136261U + static_cast<std::uint32_t>(Size);
    for (std::size_t I = 0; I < std::min(Size, Looked_At); ++I) Sum = (Sum ^ Data[I]) * 16777619U;
    return Sum % Some == 0;
}

} // namespace brinewright
