#pragma once

#include <cstddef>
#include <cstdint>

namespace brinewright {

// One input in some: the same ones each time. What takes much longer than reading is tried on these only.
inline bool Is_One_Of_Some(const std::uint8_t* Data, std::size_t Size) {
    constexpr std::uint32_t Some = 64;
    std::uint32_t Sum = 2166136261U;
    for (std::size_t I = 0; I < Size; ++I) Sum = (Sum ^ Data[I]) * 16777619U;
    return Sum % Some == 0;
}

} // namespace brinewright
