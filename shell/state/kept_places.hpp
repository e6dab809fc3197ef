#pragma once

#include "platform/form.hpp"

namespace brinewright {

struct Simulator;

// Appends the window's name, form index (its Tag) and place to Open_Form_List. Throws the subscript failure
// when the list of 20 is full, which begins anew then.
void Keep_Place(Simulator& Sim, const Form& Window);

// Applies the place of the first entry of Open_Form_List with the window's form index (its Tag); does nothing
// when there is none.
void Restore_Place(const Simulator& Sim, Form& Window);

// Minimised, maximised or small: how a window stood when it closed, kept in the application settings by its
// path, since a setup file has no room for it.
void Keep_Manner(Simulator& Sim, const Form& Window);
void Restore_Manner(const Simulator& Sim, Form& Window);

} // namespace brinewright
