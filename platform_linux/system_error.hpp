#pragma once

#include <string>

namespace brinewright {

// The system's text of an errno value, in English whatever the locale: it goes into message boxes as ASCII.
std::string System_Text(int Error_Number);

// Throws Run_Time_Error with the system's text: Device_Busy for EBUSY, Access_Refused for EACCES and EPERM.
[[noreturn]] void Throw_System_Error(int Error_Number);

} // namespace brinewright
