// The program as its users start it: virtual time, the lateness of ticks in real time, its start and its
// size.

#include "benchmarks/running_program.hpp"

namespace brinewright {
namespace {

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
