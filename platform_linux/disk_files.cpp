#include "platform_linux/disk_files.hpp"

#include "platform/run_time_error.hpp"
#include "platform_linux/system_error.hpp"
#include "platform_linux/unique_fd.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <optional>

namespace brinewright {

namespace {

namespace fs = std::filesystem;

// A missing file has the name of the system that its users know.
[[noreturn]] void Throw_File_Error(int Error_Number) {
    if (Error_Number == ENOENT) throw Run_Time_Error(error_text::File_Not_Found);
    Throw_System_Error(Error_Number);
}

void Require_Regular(const struct stat& Found) {
    if (S_ISDIR(Found.st_mode)) Throw_System_Error(EISDIR);
    if (!S_ISREG(Found.st_mode)) throw Run_Time_Error("Not a regular file");
}

void Require_Path(const std::string& Path) {
    // The system would read only the part before a NUL.
    if (Path.find('\0') != std::string::npos) Throw_System_Error(EINVAL);
}

// Where Path leads through symbolic links, also to a file that is not there yet.
fs::path Target_Of(const fs::path& Path) {
    fs::path Target = Path;
    for (int Links = 0; Links < 40; ++Links) {
        std::error_code Failure;
        const fs::path Next = fs::read_symlink(Target, Failure);
        if (Failure) return Target;
        Target = Target.parent_path() / Next;
    }
    Throw_System_Error(ELOOP);
}

// The mode of the file that is to be replaced; none when there is no file yet.
std::optional<mode_t> Mode_Of_Replaceable(const fs::path& Target) {
    struct stat Found {};
    if (::stat(Target.c_str(), &Found) != 0) {
        if (errno != ENOENT) Throw_System_Error(errno);
        return std::nullopt;
    }
    Require_Regular(Found);
    // Renaming would not ask for it, yet a file that is set read-only is meant to stay.
    if (::faccessat(AT_FDCWD, Target.c_str(), W_OK, AT_EACCESS) != 0) Throw_System_Error(errno);
    return Found.st_mode & 07777;
}

void Write_All(const Unique_Fd& File, std::string_view Bytes) {
    while (!Bytes.empty()) {
        const ssize_t Count = ::write(File.Get(), Bytes.data(), Bytes.size());
        if (Count < 0 && errno != EINTR) Throw_System_Error(errno);
        if (Count > 0) Bytes.remove_prefix(static_cast<std::size_t>(Count));
    }
}

constexpr std::string_view Temporary_Start = ".brinewright-", Temporary_End = ".tmp";

fs::path Folder_Of(const fs::path& Target) {
    return Target.has_parent_path() ? Target.parent_path() : fs::path(".");
}

// Of ".brinewright-PID-TRIAL.tmp"; 0 for any other name.
pid_t Process_Of(std::string_view Name) {
    if (!Name.starts_with(Temporary_Start) || !Name.ends_with(Temporary_End)) return 0;
    Name.remove_prefix(Temporary_Start.size());
    pid_t Process = 0;
    const auto [End, Failure] = std::from_chars(Name.data(), Name.data() + Name.size(), Process);
    return Failure == std::errc() && Process > 0 && *End == '-' ? Process : 0;
}

// A new file that is removed again unless it is renamed to its place.
class Temporary_File {
  public:
    explicit Temporary_File(const fs::path& Folder) {
        for (int Trial = 0; Trial < 100 && !File; ++Trial) {
            Path = Folder / (std::string(Temporary_Start) + std::to_string(::getpid()) + "-" +
                             std::to_string(Trial) + std::string(Temporary_End));
            File = Unique_Fd(::open(Path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
            if (!File && errno != EEXIST) Throw_System_Error(errno);
        }
        if (!File) Throw_System_Error(EEXIST);
    }
    ~Temporary_File() {
        if (!Renamed) ::unlink(Path.c_str());
    }
    Temporary_File(const Temporary_File&) = delete;
    Temporary_File& operator=(const Temporary_File&) = delete;

    void Rename_To(const fs::path& Target) {
        if (::rename(Path.c_str(), Target.c_str()) != 0) Throw_System_Error(errno);
        Renamed = true;
    }

    Unique_Fd File;

  private:
    fs::path Path;
    bool Renamed = false;
};

} // namespace

bool Disk_Files::Exists(const std::string& Path) const {
    struct stat Found {};
    return Path.find('\0') == std::string::npos && ::stat(Path.c_str(), &Found) == 0;
}

std::string Disk_Files::Read(const std::string& Path, std::size_t Limit_Bytes) const {
    Require_Path(Path);
    const Unique_Fd File(::open(Path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!File) Throw_File_Error(errno);
    struct stat Found {};
    if (::fstat(File.Get(), &Found) != 0) Throw_System_Error(errno);
    Require_Regular(Found);
    std::string Content;
    std::array<char, 64 * 1024> Chunk;
    for (;;) {
        const ssize_t Count = ::read(File.Get(), Chunk.data(), Chunk.size());
        if (Count < 0 && errno == EINTR) continue;
        if (Count < 0) Throw_System_Error(errno);
        if (Count == 0) return Content;
        Content.append(Chunk.data(), static_cast<std::size_t>(Count));
        if (Content.size() > Limit_Bytes) Throw_System_Error(EFBIG);
    }
}

void Disk_Files::Replace(const std::string& Path, std::string_view Bytes) {
    Require_Path(Path);
    if (Path.empty()) Throw_File_Error(ENOENT);
    const fs::path Target = Target_Of(Path);
    const auto Mode = Mode_Of_Replaceable(Target);
    const fs::path Folder = Folder_Of(Target);
    Temporary_File Fresh(Folder);
    Write_All(Fresh.File, Bytes);
    if (Mode && ::fchmod(Fresh.File.Get(), *Mode) != 0) Throw_System_Error(errno);
    if (::fsync(Fresh.File.Get()) != 0) Throw_System_Error(errno);
    Fresh.Rename_To(Target);
    // The new name is there already; it only has to outlast a power failure as well.
    const Unique_Fd Folder_File(::open(Folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (Folder_File) ::fsync(Folder_File.Get());
}

void Disk_Files::Make_Folder(const std::string& Path) {
    Require_Path(Path);
    std::error_code Failure;
    fs::create_directories(Path, Failure);
    if (Failure) Throw_System_Error(Failure.value());
    if (!fs::is_directory(Path, Failure)) Throw_System_Error(ENOTDIR);
}

void Remove_Left_Files(const std::string& Path) noexcept try {
    std::error_code Failure;
    for (const auto& Entry : fs::directory_iterator(Folder_Of(Target_Of(Path)), Failure)) {
        const pid_t Process = Process_Of(Entry.path().filename().native());
        if (Process > 0 && ::kill(Process, 0) != 0 && errno == ESRCH) ::unlink(Entry.path().c_str());
    }
} catch (const std::exception&) {
    // The program works without.
}

} // namespace brinewright
