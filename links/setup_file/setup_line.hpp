#pragma once

#include "links/setup_file/setup_field.hpp"
#include "links/setup_file/setup_limits.hpp"

#include <type_traits>

namespace brinewright {

// A line of a section for every kind of walker: a reader, a writer, a list of the variables.

template <class Walker>
inline constexpr bool Is_Reader = std::is_same_v<Walker, Setup_Reader>;
template <class T>
inline constexpr bool Is_Limited = requires(T& Value) {
    Value.Limits;
};
template <class T>
inline constexpr bool Is_Decimal = std::is_floating_point_v<T>;
template <class T>
inline constexpr bool Is_Decimal<Limited<T>> = std::is_floating_point_v<T>;

template <class T>
auto& Variable_Of(T& Value) {
    if constexpr (Is_Limited<T>)
        return Value.Variable;
    else
        return Value;
}

template <class Walker, class T>
void One_Field(Walker& W, T& Value) {
    if constexpr (Is_Limited<T> && std::is_same_v<Walker, Setup_Values>)
        W.push_back({&Value.Variable, Value.Limits, Value.Moves});
    else
        Field(W, Variable_Of(Value));
}

template <class Walker, class... Values>
void Line(Walker& W, Values&&... V) {
    if constexpr (Is_Reader<Walker>) {
        constexpr int Decimals = (0 + ... + Is_Decimal<std::remove_cvref_t<Values>>);
        if (Line_Is_Lost(W, sizeof...(V), Decimals)) {
            (W.Lost.push_back(&Variable_Of(V)), ...);
            return;
        }
    }
    (One_Field(W, V), ...);
    End_Line(W);
}

} // namespace brinewright
