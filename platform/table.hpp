#pragma once

#include "platform/run_time_error.hpp"

#include <array>
#include <cstddef>

namespace brinewright {

// An array whose subscripts run from First to Last, as port numbers, form indices and instances do. A
// subscript outside throws Run_Time_Error "Subscript out of range", which the user sees in a box.
template <class T, int First, int Last>
struct Table {
    static_assert(First <= Last);
    static constexpr int First_Index = First;
    static constexpr int Last_Index = Last;
    using Element = T;

    std::array<T, static_cast<std::size_t>(Last - First + 1)> Elements{};

    T& operator[](int Index) { return Elements[Checked(Index)]; }
    const T& operator[](int Index) const { return Elements[Checked(Index)]; }

    auto begin() { return Elements.begin(); }
    auto end() { return Elements.end(); }
    auto begin() const { return Elements.begin(); }
    auto end() const { return Elements.end(); }

    static std::size_t Checked(int Index) {
        if (Index < First || Index > Last) throw Run_Time_Error(error_text::Subscript);
        return static_cast<std::size_t>(Index - First);
    }
};

// One element for each of the two like sensors.
template <class T>
using Per_Instance = Table<T, 1, 2>;

} // namespace brinewright
