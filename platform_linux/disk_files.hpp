#pragma once

#include "platform/platform.hpp"

#include <string>
#include <string_view>

namespace brinewright {

// Files and folders on disk. Only regular files are read and replaced: a pipe would hang the program, and a
// device would be lost to the renaming.
class Disk_Files final : public Files {
  public:
    bool Exists(const std::string& Path) const override;
    std::string Read(const std::string& Path, std::size_t Limit_Bytes) const override;
    // Keeps the permissions of a file that is replaced, and writes through a symbolic link to its target.
    void Replace(const std::string& Path, std::string_view Bytes) override;
    void Make_Folder(const std::string& Path) override;
};

// Removes what runs that were killed while they replaced a file left beside Path: temporary files whose
// process is gone. Path may be a file or a folder with its final separator. What cannot be removed stays.
void Remove_Left_Files(const std::string& Path) noexcept;

} // namespace brinewright
