#pragma once

#include "platform_linux/unique_fd.hpp"

#include <string>

namespace brinewright {

// A listening local socket at Path that only this user may open. Throws Run_Time_Error.
Unique_Fd Listen_Locally(const std::string& Path);

// Whether the process at the other end runs as the same user.
bool Is_Same_User(int Socket);

} // namespace brinewright
