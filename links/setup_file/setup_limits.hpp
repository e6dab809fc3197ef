#pragma once

#include "sentences/instrument_range.hpp"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace brinewright {

// What a variable may hold besides being of its type: what a control could have given it, or the program
// itself. Everything else comes from a file that was typed or broken, and must not reach the wire.
enum class Setup_Words {
    Printable, // no control characters
    Mode,
    Talker, // two letters or digits, or nothing yet
};

struct Setup_Limits {
    double Least = -Greatest_Instrument_Number;
    double Greatest = Greatest_Instrument_Number;
    Setup_Words Words = Setup_Words::Printable;
};

// A variable with its limits, as the table of sections names it. One that moves while the simulator runs does
// not make a setup unsaved.
template <class T>
struct Limited {
    T& Variable;
    Setup_Limits Limits;
    bool Moves = false;
};

template <class T>
Limited<T> Held(T& Variable, const Setup_Limits& Limits) {
    return {Variable, Limits};
}
template <class T>
Limited<T> Moving(T& Variable, const Setup_Limits& Limits = {}) {
    return {Variable, Limits, true};
}

// The variables of a section one after another, for what looks at all of them alike.
struct Setup_Value {
    std::variant<bool*, std::int16_t*, std::int32_t*, float*, double*, std::string*> Variable;
    Setup_Limits Limits;
    bool Moves = false;
};
using Setup_Values = std::vector<Setup_Value>;

template <class T>
void Field(Setup_Values& All, T& Variable) {
    All.push_back({&Variable, {}, false});
}
inline void Count_Field(Setup_Values&, std::int16_t&, int) {}
inline void End_Line(Setup_Values&) {}

} // namespace brinewright
