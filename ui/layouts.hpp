#pragma once

#include "ui/form_view.hpp"

namespace brinewright {

// Gives View its widgets and their places, by the layout of the form's class. A form without one is a fault
// that a test finds.
void Lay_Out(Form_View& View, Form& Shown);

} // namespace brinewright
