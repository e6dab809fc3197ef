#pragma once

#include "platform/form.hpp"

#include <cstdint>

namespace brinewright {

struct Simulator;

// Appends the window's name, form index (its Tag) and place to Open_Form_List. Throws the subscript failure
// when the list of 20 is full. Called by every sensor window's own unload.
void Save_Form_Position(Simulator& Sim, const Form& Window);

// Applies the place of the first entry of Open_Form_List with this form index; does nothing when there is
// none.
void Restore_Form_Position(const Simulator& Sim, Form& Window, std::int16_t Form_Index);

} // namespace brinewright
