#pragma once

#include "platform/controls.hpp"
#include "sentences/number_pattern.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>
#include <string_view>

namespace brinewright {

inline void Add_Items(Combo_Box& List, std::span<const char* const> Entries) {
    for (const char* Entry : Entries) List.Add_Item(Entry);
}

// As the records hold it: what exceeds their range becomes the largest number that they hold.
inline float Record_Number(double Value) {
    using Limits = std::numeric_limits<float>;
    return static_cast<float>(
        std::clamp(Value, static_cast<double>(Limits::lowest()), static_cast<double>(Limits::max())));
}

// A stored choice that its list does not have, as a setup file may hold, becomes the default one.
inline void Restore_Choice(Combo_Box& List, int Stored, int Default) {
    const int Count = static_cast<int>(List.Items().size());
    List.Set_List_Index(Stored >= 0 && Stored < Count ? Stored : Default);
}

// The place on a bar of Steps to the unit that is nearest to Value, ties to even; held within the bar.
inline int Bar_Place(const Scroll_Bar& Bar, double Value, int Steps) {
    const int Least = std::min<int>(Bar.Min, Bar.Max), Most = std::max<int>(Bar.Min, Bar.Max);
    if (std::isnan(Value)) return std::clamp(0, Least, Most);
    return static_cast<int>(
        std::nearbyint(std::clamp(Value * Steps, static_cast<double>(Least), static_cast<double>(Most))));
}

// A bar of a direction in tenths of a degree runs from -1 to 3600; both ends are the wrap and no places to
// stand on. Called first in the bar's handler: at an end it sets the bar to the other side, which runs the
// handler anew, and returns true, whereupon the handler is to return.
inline bool Wrap_Direction_Bar(Scroll_Bar& Bar) {
    if (Bar.Value() == Bar.Max) {
        Bar.Set_Value(0);
        return true;
    }
    if (Bar.Value() == Bar.Min) {
        Bar.Set_Value(Bar.Max - 1);
        return true;
    }
    return false;
}

// The number that the text of a box or of a list starts with.
inline float Number_Shown(std::string_view Text) { return Record_Number(Val_Dot(Text)); }

} // namespace brinewright
