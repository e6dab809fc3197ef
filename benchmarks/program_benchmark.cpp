// The program as its users start it: virtual time, the lateness of ticks in real time, its start and its
// size.

#include "benchmarks/running_program.hpp"

namespace brinewright {
namespace {

constexpr double Pacing_Limit_per_s = 500; // a required wait of 2 ms between two sentences

// Comes back with the number of sentences.
std::int64_t Record_Virtual_Time(const Scratch_Folder& Folder, const fs::path& Setup, int Duration_s) {
    const std::string Record = Folder.File("virtual.rec");
    Running_Program Run(Options(Folder, Setup.string(),
                                {"--virtual", "--duration", std::to_string(Duration_s), "--seed", "1",
                                 "--start-time", "2026-01-01T00:00:00", "--record", Record}));
    Require(Run.Wait() == 0, "the run failed");
    const std::string Lines = Read_All(Record);
    return std::count(Lines.begin(), Lines.end(), '\n');
}

void Virtual_Time(benchmark::State& State, const fs::path& Setup, int Duration_s, double Limit_s) {
    const Scratch_Folder Folder;
    std::vector<double> Rounds_s;
    std::int64_t Sentences = 0;
    for (auto _ : State) {
        const auto Start = Stopwatch::now();
        Sentences = Record_Virtual_Time(Folder, Setup, Duration_s);
        Rounds_s.push_back(Seconds_Since(Start));
        State.SetIterationTime(Rounds_s.back());
    }
    State.counters["sentences"] = static_cast<double>(Sentences);
    const double Run_s = Median(Rounds_s);
    Judge(State, {{"run_s", Run_s, Limit_s},
                  {"sentences_per_s", static_cast<double>(Sentences) / Run_s, 500'000, true}});
}

void Virtual_Hour(benchmark::State& State) { Virtual_Time(State, Dense_Setup, 3600, 1); }
BENCHMARK(Guarded<Virtual_Hour>)
    ->Name("Virtual_Hour")
    ->UseManualTime()
    ->Iterations(7)
    ->Unit(benchmark::kMillisecond);

void Virtual_Hour_Of_All_Sensors(benchmark::State& State) {
    Virtual_Time(State, All_Sensors_Setup, 3600, 2.2);
}
BENCHMARK(Guarded<Virtual_Hour_Of_All_Sensors>)
    ->Name("Virtual_Hour_Of_All_Sensors")
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);

void Virtual_Day_Of_The_Ship(benchmark::State& State) { Virtual_Time(State, Ship_Setup, 86'400, 5); }
BENCHMARK(Guarded<Virtual_Day_Of_The_Ship>)
    ->Name("Virtual_Day_Of_The_Ship")
    ->UseManualTime()
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);

void Lateness(benchmark::State& State, const fs::path& Setup) {
    // Long enough that the ticks that come due while the windows open, each about 1 ms late, are no
    // percentile.
    constexpr double Duration_s = 60;
    constexpr int Virtual_Duration_s = 600;
    const Scratch_Folder Folder;
    const std::uint16_t Port = Free_Port();
    const std::string Setup_File = Write_Setup(Folder, On_Port(Read_All(Setup), Port));
    const std::string Socket = Folder.File("automation");
    // What the intervals ask for: the same setup where no tick is late.
    const double Asked_per_s =
        static_cast<double>(Record_Virtual_Time(Folder, Setup, Virtual_Duration_s)) / Virtual_Duration_s;
    Running_Program Simulator(Options(Folder, Setup_File, {"--automation", Socket}));
    Simulator.Wait_For("Running.");
    double Sent_per_s = 0;
    for (auto _ : State) Sent_per_s = static_cast<double>(Read_From(Port, Duration_s)) / Duration_s;
    State.counters["sentences_per_s"] = Sent_per_s;
    State.counters["of_pacing_limit_%"] = Sent_per_s / Pacing_Limit_per_s * 100;
    State.counters["p50_us"] = Statistic(Socket, "ticks.own_lateness_us.p50");
    State.counters["max_us"] = Statistic(Socket, "ticks.own_lateness_us.max");
    Judge(State, {{"p99_us", Statistic(Socket, "ticks.own_lateness_us.p99"), 1000},
                  {"of_asked", Sent_per_s / Asked_per_s, 0.99, true}});
}

void Tick_Lateness(benchmark::State& State) { Lateness(State, Dense_Setup); }
BENCHMARK(Guarded<Tick_Lateness>)
    ->Name("Tick_Lateness")
    ->UseRealTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

void Tick_Lateness_Of_All_Sensors(benchmark::State& State) { Lateness(State, All_Sensors_Setup); }
BENCHMARK(Guarded<Tick_Lateness_Of_All_Sensors>)
    ->Name("Tick_Lateness_Of_All_Sensors")
    ->UseRealTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

// A start on real links without its required waits, in two parts: once in real time with no window open, up
// to the line that says that it runs; once in virtual time, where the waits take none, with its windows, up
// to the end of the program. Their sum counts much twice and is more than a start takes.
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
