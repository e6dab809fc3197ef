// The program as its users start it: virtual time, the lateness of ticks in real time, its start and its
// size.

#include "benchmarks/verdict.hpp"

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
namespace {

namespace fs = std::filesystem;
using Stopwatch = std::chrono::steady_clock;

const std::string Program = BRINEWRIGHT_BIN_DIR "/brinewright-headless";
const std::string Client = BRINEWRIGHT_BIN_DIR "/brinewright-ctl";
const fs::path Demo_Setup = BRINEWRIGHT_SOURCE_DIR "/examples/demo.ini";
// Both windows, all ten sentences of each at their shortest interval: ten every 0.1 s, the other ten every
// second.
const fs::path Dense_Setup = BRINEWRIGHT_SOURCE_DIR "/benchmarks/dense.ini";

double Seconds_Since(Stopwatch::time_point Start) {
    return std::chrono::duration<double>(Stopwatch::now() - Start).count();
}

void Require(bool Good, const std::string& What) {
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

std::string Read_All(const fs::path& File) {
    std::ifstream In(File, std::ios::binary);
    return {std::istreambuf_iterator<char>(In), {}};
}

// The program at work; what it says on stderr can be waited for.
class Running_Program {
  public:
    explicit Running_Program(std::vector<std::string> Arguments) {
        Arguments.insert(Arguments.begin(), Program);
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
        const int Failure =
            ::posix_spawn(&Process, Program.c_str(), &Actions, nullptr, Words.data(), environ);
        ::posix_spawn_file_actions_destroy(&Actions);
        ::close(Pipe[1]);
        Said = Pipe[0];
        Require(Failure == 0, "cannot start " + Program);
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

  private:
    pid_t Process = 0;
    int Said = -1;
    bool Ended = false;
};

sockaddr_in Loopback(std::uint16_t Port) {
    sockaddr_in Address{};
    Address.sin_family = AF_INET;
    Address.sin_port = htons(Port);
    Address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return Address;
}

std::uint16_t Free_Port() {
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
std::string On_Port(std::string Setup, std::uint16_t Port) {
    const std::string Usual = ",8040";
    const auto Place = Setup.find(Usual);
    Require(Place != std::string::npos, "the setup has no TCP port");
    return Setup.replace(Place, Usual.size(), "," + std::to_string(Port));
}

std::string Without_Open_Windows(const std::string& Setup) {
    const std::string Head = "\"REM Open forms\"\r\n";
    const auto First = Setup.find(Head) + Head.size();
    return Setup.substr(0, First) + "0\r\n" + Setup.substr(Setup.find("\"REM", First));
}

std::string Write_Setup(const Scratch_Folder& Folder, const std::string& Setup) {
    const std::string File = Folder.File("setup.ini");
    std::ofstream(File, std::ios::binary) << Setup;
    return File;
}

std::vector<std::string> Options(const Scratch_Folder& Folder, const std::string& Setup_File,
                                 const std::vector<std::string>& More) {
    std::vector<std::string> All{"--setup", Setup_File, "--no-save", "--data-folder", Folder.File("data")};
    All.insert(All.end(), More.begin(), More.end());
    return All;
}

// Takes what the server sends for so long. Returns the number of sentences.
std::int64_t Read_From(std::uint16_t Port, double Duration_s) {
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
double Statistic(const std::string& Socket, const std::string& Name) {
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

void Virtual_Hour(benchmark::State& State) {
    const Scratch_Folder Folder;
    const std::string Record = Folder.File("hour.rec");
    std::vector<double> Rounds_s;
    std::int64_t Sentences = 0;
    for (auto _ : State) {
        const auto Start = Stopwatch::now();
        Running_Program Hour(Options(Folder, Dense_Setup.string(),
                                     {"--virtual", "--duration", "3600", "--seed", "1", "--start-time",
                                      "2026-01-01T00:00:00", "--record", Record}));
        Require(Hour.Wait() == 0, "the hour failed");
        Rounds_s.push_back(Seconds_Since(Start));
        State.SetIterationTime(Rounds_s.back());
        const std::string Lines = Read_All(Record);
        Sentences = std::count(Lines.begin(), Lines.end(), '\n');
    }
    State.counters["sentences"] = static_cast<double>(Sentences);
    const double Hour_s = Median(Rounds_s);
    Judge(State, {{"hour_s", Hour_s, 1},
                  {"sentences_per_s", static_cast<double>(Sentences) / Hour_s, 500'000, true}});
}
BENCHMARK(Guarded<Virtual_Hour>)
    ->Name("Virtual_Hour")
    ->UseManualTime()
    ->Iterations(7)
    ->Unit(benchmark::kMillisecond);

void Tick_Lateness(benchmark::State& State) {
    // Long enough that the twenty ticks that come due while the windows open, each about 1 ms late, are no
    // percentile.
    constexpr double Duration_s = 60;
    const Scratch_Folder Folder;
    const std::uint16_t Port = Free_Port();
    const std::string Setup_File = Write_Setup(Folder, On_Port(Read_All(Dense_Setup), Port));
    const std::string Socket = Folder.File("automation");
    Running_Program Simulator(Options(Folder, Setup_File, {"--automation", Socket}));
    Simulator.Wait_For("Running.");
    for (auto _ : State)
        State.counters["sentences_per_s"] = static_cast<double>(Read_From(Port, Duration_s)) / Duration_s;
    State.counters["p50_us"] = Statistic(Socket, "ticks.own_lateness_us.p50");
    State.counters["max_us"] = Statistic(Socket, "ticks.own_lateness_us.max");
    Judge(State, {{"p99_us", Statistic(Socket, "ticks.own_lateness_us.p99"), 1000}});
}
BENCHMARK(Guarded<Tick_Lateness>)
    ->Name("Tick_Lateness")
    ->UseRealTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

// A start on real links without its told waits, in two parts: once in real time with no window open, up to
// the line that says that it runs; once in virtual time, where the waits take none, with its windows, up to
// the end of the program. Their sum counts much twice and is more than a start takes.
void Start(benchmark::State& State) {
    const Scratch_Folder Folder;
    const std::string Setup_File =
        Write_Setup(Folder, On_Port(Without_Open_Windows(Read_All(Demo_Setup)), Free_Port()));
    std::vector<double> Links_ms, Windows_ms;
    for (auto _ : State) {
        auto Begin = Stopwatch::now();
        {
            Running_Program Simulator(Options(Folder, Setup_File, {}));
            Simulator.Wait_For("Running.");
            Links_ms.push_back(Seconds_Since(Begin) * 1000);
        }
        Begin = Stopwatch::now();
        Running_Program Simulator(Options(Folder, Demo_Setup.string(), {"--virtual", "--duration", "0.001"}));
        Require(Simulator.Wait() == 0, "the start failed");
        Windows_ms.push_back(Seconds_Since(Begin) * 1000);
        State.SetIterationTime((Links_ms.back() + Windows_ms.back()) / 1000);
    }
    State.counters["links_ms"] = Median(Links_ms);
    State.counters["windows_ms"] = Median(Windows_ms);
    Judge(State, {{"ready_ms", Median(Links_ms) + Median(Windows_ms), 50}});
}
BENCHMARK(Guarded<Start>)->Name("Start")->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

void Resident_Memory(benchmark::State& State) {
    const Scratch_Folder Folder;
    const std::uint16_t Port = Free_Port();
    Running_Program Simulator(Options(Folder, Write_Setup(Folder, On_Port(Read_All(Demo_Setup), Port)), {}));
    Simulator.Wait_For("Running.");
    for (auto _ : State) Read_From(Port, 5);
    Judge(State, {{"resident_MB", Simulator.Resident_MB(), 20}});
}
BENCHMARK(Guarded<Resident_Memory>)
    ->Name("Resident_Memory")
    ->UseRealTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace brinewright
