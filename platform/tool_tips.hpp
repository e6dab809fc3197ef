#pragma once

#include "platform/controls.hpp"

#include <span>
#include <string>

namespace brinewright {

// The tool tips of a window are a table of these.
struct Tip_Row {
    Visible_Control& Part;
    const char* Text;
};

inline void Show_Tips(std::span<const Tip_Row> Tips) {
    for (const Tip_Row& Row : Tips) Row.Part.Tool_Tip = std::string(Row.Text);
}

} // namespace brinewright
