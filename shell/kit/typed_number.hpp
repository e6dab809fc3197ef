#pragma once

#include "platform/controls.hpp"
#include "sentences/instrument_range.hpp"

#include <functional>
#include <optional>
#include <string>

namespace brinewright {

struct Simulator;

// What users type as numbers. Text that is none, or one that is out of range, is said beside the control, and
// the caller shows the old value again.

struct Number_Rule {
    double Least = -Greatest_Instrument_Number, Most = Greatest_Instrument_Number;
    bool Bad_Is_Zero = false; // text that is no number is required to count as 0, which is said
};

// Nothing when what is typed is not to be taken.
std::optional<double> Typed_Number(Typed_Control& Box, const Number_Rule& Rule = {});

inline constexpr Number_Rule Bad_Text_Is_Zero{.Bad_Is_Zero = true};

// The position in a box in the chosen format, in degrees. The messages of its parser are shown as well.
std::optional<double> Typed_Position(Simulator& Sim, Text_Box& Box, const char* Kind);

// A list of numbers in which others can be typed: each change that is a number is taken at once, as required,
// and what is wrong is said when the list is left, which then shows what was taken last.
void Wire_Number_List(Combo_Box& List, const Number_Rule& Rule, std::function<void(float)> Take);

} // namespace brinewright
