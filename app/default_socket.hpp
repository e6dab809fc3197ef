#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace brinewright {

// Where the local socket of automation stands when nothing else is said: in the user's runtime folder, or
// below /tmp under the user's number where there is no such folder.
inline std::string Default_Socket_Path() {
    const char* Folder = std::getenv("XDG_RUNTIME_DIR");
    std::error_code Failure;
    if (Folder && *Folder && std::filesystem::is_directory(Folder, Failure))
        return (std::filesystem::path(Folder) / "brinewright.sock").string();
    return "/tmp/brinewright-" + std::to_string(::getuid()) + ".sock";
}

} // namespace brinewright
