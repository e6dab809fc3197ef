#include "platform_linux/disk_files.hpp"
#include "platform_qt/ini_settings.hpp"
#include "support.hpp"

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>

using namespace brinewright;
namespace fs = std::filesystem;

namespace {

std::size_t Names_In(const Scratch_Folder& Folder) {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(Folder.Path), fs::directory_iterator()));
}

} // namespace

TEST(Disk_Files_, Content_is_replaced_whole_with_mode_and_links_kept) {
    const Scratch_Folder Folder;
    Disk_Files Disk;
    const std::string Path = Folder / "setup.ini", Link = Folder / "link.ini";
    const std::string Bytes("line\r\n\0\377", 8);
    EXPECT_FALSE(Disk.Exists(Path));
    EXPECT_TRUE(Disk.Exists(Folder.Path));
    Disk.Replace(Path, Bytes);
    EXPECT_EQ(Disk.Read(Path, 8), Bytes);
    fs::permissions(Path, fs::perms(0640));
    fs::create_symlink("setup.ini", Link);
    Disk.Replace(Link, "new");
    EXPECT_TRUE(fs::is_symlink(Link));
    EXPECT_EQ(Disk.Read(Path, 100), "new");
    EXPECT_EQ(fs::status(Path).permissions(), fs::perms(0640));
    fs::create_symlink(Folder / "later.ini", Folder / "dangling");
    Disk.Replace(Folder / "dangling", "made");
    EXPECT_EQ(Disk.Read(Folder / "later.ini", 100), "made");
    EXPECT_EQ(Names_In(Folder), 4u) << "no temporary file stays";

    Disk.Make_Folder(Folder / "a/b/c/");
    Disk.Make_Folder(Folder / "a/b/c");
    EXPECT_TRUE(Disk.Exists(Folder / "a/b/c"));
}

TEST(Disk_Files_, Failures_have_the_systems_text_and_hang_nothing) {
    const Scratch_Folder Folder;
    Disk_Files Disk;
    const std::string Pipe = Folder / "pipe", File = Folder / "file", Loop = Folder / "loop";
    ASSERT_EQ(::mkfifo(Pipe.c_str(), 0600), 0);
    fs::create_symlink("loop", Loop);
    Disk.Replace(File, "12345");
    struct Case {
        std::function<void()> Work;
        const char* Text;
    };
    const Case Cases[] = {
        {[&] { Disk.Read(Folder / "missing", 10); }, "File not found"},
        {[&] { Disk.Read(Folder.Path, 10); }, "Is a directory"},
        {[&] { Disk.Read(Pipe, 10); }, "Not a regular file"},
        {[&] { Disk.Read("/dev/zero", 10); }, "Not a regular file"},
        {[&] { Disk.Read(File, 4); }, "File too large"},
        {[&] { Disk.Read(File + std::string("\0x", 2), 10); }, "Invalid argument"},
        {[&] { Disk.Replace(Folder.Path, "x"); }, "Is a directory"},
        {[&] { Disk.Replace("/dev/null", "x"); }, "Not a regular file"},
        {[&] { Disk.Replace(Folder / "no/such", "x"); }, "No such file or directory"},
        {[&] { Disk.Replace(Loop, "x"); }, "Too many levels of symbolic links"},
        {[&] { Disk.Replace("", "x"); }, "File not found"},
        {[&] { Disk.Make_Folder(File); }, "Not a directory"},
        {[&] { Disk.Make_Folder(File + "/below"); }, "Not a directory"},
    };
    for (const Case& Each : Cases) EXPECT_EQ(Error_Of(Each.Work), Each.Text);
    EXPECT_EQ(Disk.Read(File, 5), "12345");
}

TEST(Disk_Files_, A_disk_that_is_full_leaves_the_old_file_and_no_rest) {
    const Scratch_Folder Folder;
    Disk_Files Disk;
    const std::string Path = Folder / "setup.ini";
    Disk.Replace(Path, "old");
    const auto Handler_Before = std::signal(SIGXFSZ, SIG_IGN);
    rlimit Before{};
    ::getrlimit(RLIMIT_FSIZE, &Before);
    const rlimit Small{1000, Before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &Small);
    const std::string Failure = Error_Of([&] { Disk.Replace(Path, std::string(5000, 'x')); });
    ::setrlimit(RLIMIT_FSIZE, &Before);
    std::signal(SIGXFSZ, Handler_Before);
    EXPECT_EQ(Failure, "File too large");
    EXPECT_EQ(Disk.Read(Path, 100), "old");
    EXPECT_EQ(Names_In(Folder), 1u);
}

TEST(Disk_Files_, A_file_or_folder_without_the_right_to_write_is_left_alone) {
    if (::geteuid() == 0) GTEST_SKIP() << "the superuser may write everywhere";
    const Scratch_Folder Folder;
    Disk_Files Disk;
    Disk.Replace(Folder / "setup.ini", "old");
    fs::permissions(Folder / "setup.ini", fs::perms(0444));
    EXPECT_EQ(Error_Of([&] { Disk.Replace(Folder / "setup.ini", "new"); }), "Permission denied");
    fs::permissions(Folder.Path, fs::perms(0555));
    EXPECT_EQ(Error_Of([&] { Disk.Replace(Folder / "other.ini", "new"); }), "Permission denied");
    EXPECT_EQ(Disk.Read(Folder / "setup.ini", 10), "old");
    fs::permissions(Folder.Path, fs::perms(0755));
}

TEST(Ini_Settings_, Values_outlast_the_program_and_faulty_files_give_defaults) {
    const Scratch_Folder Folder;
    const std::string Path = Folder / "new/folder/settings.ini";
    {
        Ini_Settings Settings(Path);
        EXPECT_EQ(Settings.Get("MainLeft", "120"), "120");
        Settings.Set("MainLeft", "-15");
        Settings.Set("Com3", "/dev/serial/by-id/usb-a,b;c=\"d\"\\x41 \351");
    }
    const Ini_Settings Again(Path);
    EXPECT_EQ(Again.Get("MainLeft", "120"), "-15");
    EXPECT_EQ(Again.Get("Com3", ""), "/dev/serial/by-id/usb-a,b;c=\"d\"\\x41 \351");

    std::ofstream(Folder / "typed.ini") << "[Settings]\nCom1=/dev/a, b\n";
    EXPECT_EQ(Ini_Settings(Folder / "typed.ini").Get("Com1", ""), "/dev/a, b");
    std::ofstream(Folder / "rubbish.ini") << std::string("\0\377[[[==\n[Settings", 15);
    EXPECT_EQ(Ini_Settings(Folder / "rubbish.ini").Get("Com1", "default"), "default");
    Ini_Settings On_A_Folder(Folder.Path);
    On_A_Folder.Set("Com1", "x");
    On_A_Folder.Flush();
    EXPECT_TRUE(fs::is_directory(Folder.Path));
}

TEST(User_Folders, Follow_the_environment) {
    struct Saved {
        explicit Saved(const char* Its_Name)
            : Name(Its_Name), Value(std::getenv(Its_Name) ? std::getenv(Its_Name) : "") {}
        ~Saved() { Value.empty() ? ::unsetenv(Name) : ::setenv(Name, Value.c_str(), 1); }
        const char* Name;
        std::string Value;
    };
    const Saved Home("HOME"), Data("XDG_DATA_HOME"), Config("XDG_CONFIG_HOME");
    ::setenv("HOME", "/home/mate", 1);
    ::unsetenv("XDG_DATA_HOME");
    ::setenv("XDG_CONFIG_HOME", "relative/is/ignored", 1);
    EXPECT_EQ(Default_Data_Folder(), "/home/mate/.local/share/Tidewerk/Brinewright/");
    EXPECT_EQ(Default_Settings_File(), "/home/mate/.config/Tidewerk/Brinewright.ini");
    ::setenv("XDG_DATA_HOME", "/data", 1);
    ::setenv("XDG_CONFIG_HOME", "/config", 1);
    EXPECT_EQ(Default_Data_Folder(), "/data/Tidewerk/Brinewright/");
    EXPECT_EQ(Default_Settings_File(), "/config/Tidewerk/Brinewright.ini");
    EXPECT_EQ(Settings_File_In("/x"), Settings_File_In("/x/"));
}
