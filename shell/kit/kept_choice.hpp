#pragma once

#include "platform/controls.hpp"
#include "shell/kit/sentence_family.hpp"

#include <cstdint>

namespace brinewright {

// One line for each control that keeps what the user chooses: it shows what is stored, and stores what is
// chosen from then on. The variable is one of the state and outlives the window.

void Keep(Check_Box& Box, bool& Stored);

// A group of two; the second one is true.
void Keep(Option_Group& Group, bool& Stored);

// A list that is filled already. A stored choice that it does not have, as a setup file may hold, becomes
// Default, in the variable too. Each choice runs After, also the first one.
void Keep(Combo_Box& List, std::int16_t& Stored, int Default, Handler After = nullptr);

// The row of a sentence of which the setup file keeps the choice of instance 2 elsewhere than on the line
// behind that of instance 1.
constexpr Sentence_Row Kept_Apart(Sentence_Row Of, Setup_Place Second) {
    Of.Kept[1] = Second;
    return Of;
}

} // namespace brinewright
