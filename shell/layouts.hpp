#pragma once

#include "shell/layout.hpp"

#include <string_view>

namespace brinewright {

// The layout of a form's class; null when there is none. Each stands beside the source of its window.
Layout_Function Find_Layout(std::string_view Form_Name);

Layout Lay_Out_Gyro(Simulator& Sim, Form& Shown);

} // namespace brinewright
