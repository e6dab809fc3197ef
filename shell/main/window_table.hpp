#pragma once

#include "shell/state/window_class.hpp"

#include <span>

namespace brinewright {

// Every kind of window that there is, in the order in which they are listed.
std::span<const Window_Class* const> All_Windows();

} // namespace brinewright
