#pragma once

#include <string>

namespace brinewright {

// The system's text of an errno value, in English whatever the locale: it goes into message boxes as ASCII.
std::string System_Text(int Error_Number);

// Throws Run_Time_Error with the system's text.
[[noreturn]] void Throw_System_Error(int Error_Number);

} // namespace brinewright
