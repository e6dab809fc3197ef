#include "platform_linux/system_error.hpp"

#include "platform/run_time_error.hpp"

#include <cerrno>
#include <cstring>

namespace brinewright {

std::string System_Text(int Error_Number) {
    // Not strerror: the toolkit sets the user's locale, which would translate it.
    const char* Text = ::strerrordesc_np(Error_Number);
    return Text != nullptr ? Text : "System error " + std::to_string(Error_Number);
}

void Throw_System_Error(int Error_Number) {
    switch (Error_Number) {
    case EBUSY: throw Device_Busy(System_Text(Error_Number));
    case EACCES:
    case EPERM: throw Access_Refused(System_Text(Error_Number));
    default: throw Run_Time_Error(System_Text(Error_Number));
    }
}

} // namespace brinewright
