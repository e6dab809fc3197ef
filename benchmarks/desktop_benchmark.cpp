// The desktop on a display in memory (Xvfb), beside the program without windows at the same load.

#include "benchmarks/running_program.hpp"

#include <thread>

namespace brinewright {
namespace {

const std::string Desktop_Program = BRINEWRIGHT_BIN_DIR "/brinewright";

// A display of a small bench, for the programs that are started while it is there.
class Virtual_Display {
  public:
    Virtual_Display() {
        std::array<int, 2> Pipe{};
        Require(::pipe(Pipe.data()) == 0, "pipe");
        const std::string Number_FD = std::to_string(Pipe[1]);
        std::vector<std::string> Arguments{"Xvfb", "-displayfd",  Number_FD,   "-screen",
                                           "0",    "1366x768x24", "-nolisten", "tcp"};
        std::vector<char*> Words;
        for (std::string& A : Arguments) Words.push_back(A.data());
        Words.push_back(nullptr);
        posix_spawn_file_actions_t Actions;
        ::posix_spawn_file_actions_init(&Actions);
        ::posix_spawn_file_actions_addclose(&Actions, Pipe[0]);
        ::posix_spawn_file_actions_addopen(&Actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        const int Failure = ::posix_spawnp(&Process, "Xvfb", &Actions, nullptr, Words.data(), environ);
        ::posix_spawn_file_actions_destroy(&Actions);
        ::close(Pipe[1]);
        Require(Failure == 0, "cannot start Xvfb");
        std::string Number;
        for (char Letter = 0; ::read(Pipe[0], &Letter, 1) == 1 && Letter != '\n';) Number += Letter;
        ::close(Pipe[0]);
        Require(!Number.empty(), "Xvfb gives no display");
        ::setenv("DISPLAY", (":" + Number).c_str(), 1);
        ::setenv("QT_QPA_PLATFORM", "xcb", 1);
    }
    Virtual_Display(const Virtual_Display&) = delete;
    Virtual_Display& operator=(const Virtual_Display&) = delete;
    ~Virtual_Display() {
        ::kill(Process, SIGTERM);
        ::waitpid(Process, nullptr, 0);
    }

  private:
    pid_t Process = 0;
};

void Tell(const std::string& Socket, const std::string& Words) {
    const std::string Command = Client + " --socket " + Socket + " " + Words + " > /dev/null";
    Require(std::system(Command.c_str()) == 0, "refused: " + Words);
}

// In virtual time, where the required waits take none, examples/sensor.ini with both windows: up to the
// answer to a first question, which the event loop gives. Opening the links of the system adds what the
// headless program needs for it, see Start.
void Desktop_Start(benchmark::State& State) {
    const Virtual_Display Display;
    const Scratch_Folder Folder;
    const std::string Socket = Folder.File("automation");
    std::vector<double> Ready_ms;
    for (auto _ : State) {
        const auto Begin = Stopwatch::now();
        Running_Program Desktop(Options(Folder, Demo_Setup.string(), {"--virtual", "--automation", Socket}),
                                Desktop_Program);
        Desktop.Wait_For("Virtual time stands");
        Statistic(Socket, "ticks.own_lateness_us.p99");
        Ready_ms.push_back(Seconds_Since(Begin) * 1000);
        State.SetIterationTime(Ready_ms.back() / 1000);
    }
    Judge(State, {{"ready_ms", Median(Ready_ms), 300}});
}
BENCHMARK(Guarded<Desktop_Start>)
    ->Name("Desktop_Start")
    ->UseManualTime()
    ->Iterations(10)
    ->Unit(benchmark::kMillisecond);

// One program at work with a TCP client.
struct At_Work {
    At_Work(const Scratch_Folder& Folder, const std::string& Name, const std::string& Which)
        : Port(Free_Port()), Socket(Folder.File((Name + ".socket").c_str())),
          Simulator(Options(Folder, Write_Setup(Folder, On_Port(Read_All(Dense_Setup), Port), Name + ".ini"),
                            {"--automation", Socket}),
                    Which) {
        Simulator.Wait_For("Running.");
    }
    std::uint16_t Port;
    std::string Socket;
    Running_Program Simulator;
};

// Both at once, so that what else the machine does weighs on both alike. Long enough that the Traffic window
// has its 10,000 sentences at the end.
void Desktop_At_Work(benchmark::State& State) {
    constexpr double Duration_s = 100;
    const Virtual_Display Display;
    const Scratch_Folder Folder;
    At_Work Headless(Folder, "headless", Program);
    At_Work Desktop(Folder, "desktop", Desktop_Program);
    Tell(Desktop.Socket, "click frmMain.mnuTraffic");
    std::array<double, 2> CPU_Percent{};
    std::array<double, 2> Rates{};
    for (auto _ : State) {
        std::vector<std::thread> Readers;
        for (const std::size_t I : {0U, 1U})
            Readers.emplace_back([&, I] {
                At_Work& Its = I == 0 ? Headless : Desktop;
                const double Before_s = Its.Simulator.Used_CPU_s();
                Rates[I] = static_cast<double>(Read_From(Its.Port, Duration_s)) / Duration_s;
                CPU_Percent[I] = (Its.Simulator.Used_CPU_s() - Before_s) / Duration_s * 100;
            });
        for (std::thread& R : Readers) R.join();
    }
    const std::string Lateness = "ticks.own_lateness_us.p99";
    const double Headless_us = Statistic(Headless.Socket, Lateness);
    const double Desktop_us = Statistic(Desktop.Socket, Lateness);
    State.counters["sentences_per_s"] = Rates[1];
    State.counters["headless_cpu_percent"] = CPU_Percent[0];
    State.counters["desktop_cpu_percent"] = CPU_Percent[1];
    State.counters["headless_p99_us"] = Headless_us;
    State.counters["desktop_p99_us"] = Desktop_us;
    Judge(State, {{"more_cpu_points", CPU_Percent[1] - CPU_Percent[0], 10},
                  {"later_p99_us", Desktop_us - Headless_us, 2000},
                  {"resident_MB", Desktop.Simulator.Resident_MB(), 80}});
}
BENCHMARK(Guarded<Desktop_At_Work>)
    ->Name("Desktop_At_Work")
    ->UseRealTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace brinewright
