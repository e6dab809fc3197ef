#pragma once

#include "all_state.hpp"

#include <string>
#include <type_traits>

namespace brinewright {

// Calls At_Leaf(path, reference) for every number, boolean and text below Value.
template <class T, class Leaf>
void Each_Leaf(const std::string& Path, T& Value, const Leaf& At_Leaf) {
    if constexpr (std::is_arithmetic_v<T> || std::is_same_v<T, std::string>) {
        At_Leaf(Path, Value);
    } else if constexpr (requires { Value.Elements; }) {
        for (int I = T::First_Index; I <= T::Last_Index; ++I)
            Each_Leaf(Path + "[" + std::to_string(I) + "]", Value[I], At_Leaf);
    } else {
        Visit_Record(Value,
                     [&](const char* Name, auto& Part) { Each_Leaf(Path + "." + Name, Part, At_Leaf); });
    }
}

} // namespace brinewright
