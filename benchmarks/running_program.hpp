#pragma once

// The programs as their users start them, for benchmarks that measure them from outside.

#include "benchmarks/verdict.hpp"

#include <fcntl.h>
#include <netinet/in.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>

extern char** environ;

namespace brinewright {

namespace fs = std::filesystem;
using Stopwatch = std::chrono::steady_clock;

inline const std::string Program = BRINEWRIGHT_BIN_DIR "/brinewright-headless";
inline const std::string Client = BRINEWRIGHT_BIN_DIR "/brinewright-ctl";
inline const fs::path Demo_Setup = BRINEWRIGHT_SOURCE_DIR "/examples/sensor.ini";
// Both windows, all ten sentences of each at their shortest interval: ten every 0.1 s, the other ten every
// second.
inline const fs::path Dense_Setup = BRINEWRIGHT_SOURCE_DIR "/benchmarks/dense.ini";

// The ship under way with all ten sensor windows open, every sentence at its shortest interval: 300 a second.
inline const fs::path All_Sensors_Setup = BRINEWRIGHT_SOURCE_DIR "/benchmarks/all_sensors.ini";
inline const fs::path Ship_Setup = BRINEWRIGHT_SOURCE_DIR "/examples/demo.ini";

inline double Seconds_Since(Stopwatch::time_point Start) {
    return std::chrono::duration<double>(Stopwatch::now() - Start).count();
}

inline void Require(bool Good, const std::string& What) {
    if (!Good) throw std::runtime_error(What);
}

class Scratch_Folder {
  public:
    Scratch_Folder() {
        // In memory where there is such a place: what is measured is the program and not a disk.
        std::string Name =
            fs::is_directory("/dev/shm") ? "/dev/shm/brinewright-XXXXXX" : "/tmp/brinewright-XXXXXX";
        Require(::mkdtemp(Name.data()) != nullptr, "mkdtemp");
        Path = Name;
    }
    Scratch_Folder(const Scratch_Folder&) = delete;
    Scratch_Folder& operator=(const Scratch_Folder&) = delete;
    ~Scratch_Folder() {
        std::error_code Ignored;
        fs::remove_all(Path, Ignored);
    }
    std::string File(const char* Name) const { return (Path / Name).string(); }

  private:
    fs::path Path;
};

inline std::string Read_All(const fs::path& File) {
    std::ifstream In(File, std::ios::binary);
    return {std::istreambuf_iterator<char>(In), {}};
}

// The program at work; what it says on stderr can be waited for.
class Running_Program {
  public:
    explicit Running_Program(std::vector<std::string> Arguments, const std::string& Which = Program) {
        Arguments.insert(Arguments.begin(), Which);
        std::vector<char*> Words;
        for (std::string& A : Arguments) Words.push_back(A.data());
        Words.push_back(nullptr);
        std::array<int, 2> Pipe{};
        Require(::pipe(Pipe.data()) == 0, "pipe");
        posix_spawn_file_actions_t Actions;
        ::posix_spawn_file_actions_init(&Actions);
        ::posix_spawn_file_actions_adddup2(&Actions, Pipe[1], STDERR_FILENO);
        ::posix_spawn_file_actions_addclose(&Actions, Pipe[0]);
        ::posix_spawn_file_actions_addclose(&Actions, Pipe[1]);
        const int Failure = ::posix_spawn(&Process, Which.c_str(), &Actions, nullptr, Words.data(), environ);
        ::posix_spawn_file_actions_destroy(&Actions);
        ::close(Pipe[1]);
        Said = Pipe[0];
        Require(Failure == 0, "cannot start " + Which);
    }
    Running_Program(const Running_Program&) = delete;
    Running_Program& operator=(const Running_Program&) = delete;
    ~Running_Program() {
        ::kill(Process, SIGTERM);
        Wait();
        ::close(Said);
    }

    void Wait_For(const std::string& Words) {
        for (std::string Text; Text.find(Words) == std::string::npos;) {
            std::array<char, 4096> Piece;
            const ssize_t Count = ::read(Said, Piece.data(), Piece.size());
            Require(Count > 0, "the program ended: " + Text);
            Text.append(Piece.data(), static_cast<std::size_t>(Count));
        }
    }

    int Wait() {
        int Status = 0;
        if (!Ended) ::waitpid(Process, &Status, 0);
        Ended = true;
        return Status;
    }

    double Resident_MB() const {
        const std::string Status = Read_All("/proc/" + std::to_string(Process) + "/status");
        return std::stod(Status.substr(Status.find("VmRSS:") + 6)) / 1024;
    }

    // Of all its threads since the start, in the kernel and outside.
    double Used_CPU_s() const {
        const std::string Stat = Read_All("/proc/" + std::to_string(Process) + "/stat");
        std::istringstream Fields(Stat.substr(Stat.rfind(')') + 2));
        std::string Skipped;
        for (int I = 0; I < 11; ++I) Fields >> Skipped; // up to the 13th of the line
        double User = 0, System = 0;
        Fields >> User >> System;
        return (User + System) / static_cast<double>(::sysconf(_SC_CLK_TCK));
    }

  private:
    pid_t Process = 0;
    int Said = -1;
    bool Ended = false;
};

inline sockaddr_in Loopback(std::uint16_t Port) {
    sockaddr_in Address{};
    Address.sin_family = AF_INET;
    Address.sin_port = htons(Port);
    Address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return Address;
}

inline std::uint16_t Free_Port() {
    const int Socket = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in Address = Loopback(0);
    socklen_t Size = sizeof Address;
    Require(::bind(Socket, reinterpret_cast<const sockaddr*>(&Address), Size) == 0 &&
                ::getsockname(Socket, reinterpret_cast<sockaddr*>(&Address), &Size) == 0,
            "bind");
    ::close(Socket);
    return ntohs(Address.sin_port);
}

// A setup on a port of its own, so that a simulator that runs on the machine is not disturbed.
inline std::string On_Port(std::string Setup, std::uint16_t Port) {
    const std::string Usual = ",8040";
    const auto Place = Setup.find(Usual);
    Require(Place != std::string::npos, "the setup has no TCP port");
    return Setup.replace(Place, Usual.size(), "," + std::to_string(Port));
}

inline std::string Without_Open_Windows(const std::string& Setup) {
    const std::string Head = "\"REM Open forms\"\r\n";
    const auto First = Setup.find(Head) + Head.size();
    return Setup.substr(0, First) + "0\r\n" + Setup.substr(Setup.find("\"REM", First));
}

inline std::string Write_Setup(const Scratch_Folder& Folder, const std::string& Setup,
                               const std::string& Name = "setup.ini") {
    const std::string File = Folder.File(Name.c_str());
    std::ofstream(File, std::ios::binary) << Setup;
    return File;
}

inline std::vector<std::string> Options(const Scratch_Folder& Folder, const std::string& Setup_File,
                                        const std::vector<std::string>& More) {
    std::vector<std::string> All{"--setup", Setup_File, "--no-save", "--data-folder", Folder.File("data")};
    All.insert(All.end(), More.begin(), More.end());
    return All;
}

// Takes what the server sends for so long. Returns the number of sentences.
inline std::int64_t Read_From(std::uint16_t Port, double Duration_s) {
    const int Socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_in Address = Loopback(Port);
    Require(::connect(Socket, reinterpret_cast<const sockaddr*>(&Address), sizeof Address) == 0, "connect");
    std::int64_t Lines = 0;
    for (const auto Start = Stopwatch::now(); Seconds_Since(Start) < Duration_s;) {
        std::array<char, 4096> Text;
        const ssize_t Count = ::recv(Socket, Text.data(), Text.size(), 0);
        Require(Count > 0, "the server closed the connection");
        Lines += std::count(Text.data(), Text.data() + Count, '\n');
    }
    ::close(Socket);
    return Lines;
}

// What the client prints as "name number".
inline double Statistic(const std::string& Socket, const std::string& Name) {
    FILE* const Out = ::popen((Client + " --socket " + Socket + " stats").c_str(), "r");
    Require(Out != nullptr, "popen");
    std::string Text;
    for (int Letter = 0; (Letter = std::fgetc(Out)) != EOF;) Text += static_cast<char>(Letter);
    Require(::pclose(Out) == 0, "the simulator gives no statistics");
    std::istringstream Words(Text);
    for (std::string Word; Words >> Word;)
        if (Word == Name) {
            double Value = 0;
            Words >> Value;
            return Value;
        }
    throw std::runtime_error("no statistic " + Name);
}

} // namespace brinewright
