#pragma once

#include "platform/controls.hpp"

#include <cstdint>
#include <span>

namespace brinewright {

// Fills a list.
void Add_Items(Combo_Box& List, std::span<const char* const> Entries);

// One line for each control that keeps what the user chooses: it shows what is stored, and stores what is
// chosen from then on. The variable is one of the state and outlives the window.

void Keep(Check_Box& Box, bool& Stored);

// A group of two; the second one is true.
void Keep(Option_Group& Group, bool& Stored);

// A list that is filled already. A stored choice that it does not have, as a setup file may hold, becomes
// Default, in the variable too. Each choice runs After, also the first one.
void Keep(Combo_Box& List, std::int16_t& Stored, int Default, Handler After = nullptr);

// Shows a stored choice, or Default in place of one that the list does not have.
void Restore_Choice(Combo_Box& List, int Stored, int Default);

} // namespace brinewright
