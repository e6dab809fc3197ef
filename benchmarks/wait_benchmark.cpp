// The required waits, beside the same waits burnt: each wait by itself, and the program with all main
// sensors.

#include "benchmarks/running_program.hpp"
#include "platform_linux/machine_clock.hpp"

#include <cstring>
#include <ctime>
#include <utility>

namespace brinewright {
namespace {

constexpr double Paced_us = 2000; // between two sentences, at least
constexpr double Longest_Gap_us = 2200;
constexpr double Most_CPU_Percent = 12;

double Clock_us(clockid_t Which) {
    timespec Now{};
    ::clock_gettime(Which, &Now);
    return static_cast<double>(Now.tv_sec) * 1e6 + static_cast<double>(Now.tv_nsec) / 1e3;
}

double Percentile(std::vector<double> Values, double Part) {
    Require(!Values.empty(), "nothing was measured");
    std::sort(Values.begin(), Values.end());
    return Values[static_cast<std::size_t>(Part * static_cast<double>(Values.size() - 1))];
}

struct Waits {
    std::vector<double> Lengths_us;
    double Worked_us = 0, Passed_us = 0;

    template <class Wait>
    void Take(const Wait& One) {
        const double Start_us = Clock_us(CLOCK_MONOTONIC), Work_us = Clock_us(CLOCK_THREAD_CPUTIME_ID);
        One();
        Worked_us += Clock_us(CLOCK_THREAD_CPUTIME_ID) - Work_us;
        Lengths_us.push_back(Clock_us(CLOCK_MONOTONIC) - Start_us);
        Passed_us += Lengths_us.back();
    }
    double CPU_Percent() const { return Worked_us / Passed_us * 100; }
};

void Wait_Of_2_ms(benchmark::State& State) {
    Machine_Clock Clock;
    constexpr auto Duration_us = static_cast<std::int64_t>(Paced_us);
    Waits Sleeping, Burning;
    for (auto _ : State) {
        Sleeping.Take([&] { Clock.Spin_us(Duration_us); });
        Burning.Take([&] {
            const std::int64_t Start_us = Clock.Wide_us();
            while (Clock.Wide_us() - Start_us <= Duration_us) {
            }
        });
    }
    State.counters["burning_cpu_percent"] = Burning.CPU_Percent();
    State.counters["burning_p50_us"] = Percentile(Burning.Lengths_us, 0.5);
    State.counters["burning_p99_us"] = Percentile(Burning.Lengths_us, 0.99);
    Judge(State, {{"cpu_percent", Sleeping.CPU_Percent(), Most_CPU_Percent},
                  {"shortest_us", Percentile(Sleeping.Lengths_us, 0), Paced_us, true},
                  {"p50_us", Percentile(Sleeping.Lengths_us, 0.5), Longest_Gap_us},
                  {"p99_us", Percentile(Sleeping.Lengths_us, 0.99), Longest_Gap_us}});
}
BENCHMARK(Guarded<Wait_Of_2_ms>)
    ->Name("Wait_Of_2_ms")
    ->UseRealTime()
    ->Iterations(2500)
    ->Unit(benchmark::kMillisecond);

// What one read of the client gave, and when the last of it reached the machine's network.
struct Arrival {
    double At_us = 0;
    std::string Text;
};

Arrival Receive(int Socket) {
    std::array<char, 4096> Text;
    alignas(cmsghdr) std::array<char, 256> Control;
    iovec Place{Text.data(), Text.size()};
    msghdr Message{};
    Message.msg_iov = &Place;
    Message.msg_iovlen = 1;
    Message.msg_control = Control.data();
    Message.msg_controllen = Control.size();
    const ssize_t Count = ::recvmsg(Socket, &Message, 0);
    Require(Count > 0, "the server closed the connection");
    Arrival Its{0, {Text.data(), static_cast<std::size_t>(Count)}};
    for (cmsghdr* Part = CMSG_FIRSTHDR(&Message); Part != nullptr; Part = CMSG_NXTHDR(&Message, Part)) {
        if (Part->cmsg_level != SOL_SOCKET || Part->cmsg_type != SCM_TIMESTAMPNS) continue;
        timespec At{};
        std::memcpy(&At, CMSG_DATA(Part), sizeof At);
        Its.At_us = static_cast<double>(At.tv_sec) * 1e6 + static_cast<double>(At.tv_nsec) / 1e3;
    }
    return Its;
}

// Two sentences of one group of GSV come from one tick, so that nothing but the pacing stands between them.
// Where the client was late and read several sentences at once, only the last one's time is known.
bool Is_Back_To_Back(const std::string& First, const std::string& Second) {
    constexpr std::size_t Head = 9, Number = 9; // "$GPGSV,3,", then the number in the group
    const auto Is_One = [](const std::string& Text) {
        return Text.size() > Number && Text.find('\n') == Text.size() - 1;
    };
    return Is_One(First) && Is_One(Second) && First.compare(3, 4, "GSV,") == 0 &&
           First.compare(0, Head, Second, 0, Head) == 0 && Second[Number] == First[Number] + 1;
}

std::vector<double> Gaps_us(std::uint16_t Port, double Duration_s) {
    const int Socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const int Yes = 1;
    ::setsockopt(Socket, SOL_SOCKET, SO_TIMESTAMPNS, &Yes, sizeof Yes);
    const sockaddr_in Address = Loopback(Port);
    Require(::connect(Socket, reinterpret_cast<const sockaddr*>(&Address), sizeof Address) == 0, "connect");
    std::vector<double> Gaps;
    Arrival Last;
    for (const auto Start = Stopwatch::now(); Seconds_Since(Start) < Duration_s;) {
        Arrival Next = Receive(Socket);
        if (Is_Back_To_Back(Last.Text, Next.Text)) Gaps.push_back(Next.At_us - Last.At_us);
        Last = std::move(Next);
    }
    ::close(Socket);
    return Gaps;
}

struct Work {
    double CPU_Percent = 0, Own_Lateness_p99_us = 0;
    std::vector<double> Gaps;
};

// Late in the day, where the time of day moves in steps of 1/128 s, most sentences wait. So the program is
// given a zone in which it is past 20 hours, whenever it is measured.
std::string Evening_Zone() {
    const std::int64_t UTC_h = std::time(nullptr) / 3600 % 24;
    return "EVE" + std::to_string(UTC_h - 20);
}

Work At_Work(const char* Name, bool Burns) {
    constexpr double Duration_s = 60; // as for the lateness of ticks
    const Scratch_Folder Folder;
    const std::uint16_t Port = Free_Port();
    const std::string Setup_File = Write_Setup(Folder, On_Port(Read_All(All_Sensors_Setup), Port));
    const std::string Socket = Folder.File(Name);
    ::setenv("TZ", Evening_Zone().c_str(), 1);
    if (Burns) ::setenv("LD_PRELOAD", BRINEWRIGHT_BURNING_WAITS, 1);
    Running_Program Simulator(Options(Folder, Setup_File, {"--automation", Socket}));
    ::unsetenv("LD_PRELOAD");
    ::unsetenv("TZ");
    Simulator.Wait_For("Running.");
    Work Its;
    const double Before_s = Simulator.Used_CPU_s();
    Its.Gaps = Gaps_us(Port, Duration_s);
    Its.CPU_Percent = (Simulator.Used_CPU_s() - Before_s) / Duration_s * 100;
    Its.Own_Lateness_p99_us = Statistic(Socket, "ticks.own_lateness_us.p99");
    return Its;
}

void Waits_Of_All_Sensors(benchmark::State& State) {
    Work Sleeping, Burning;
    for (auto _ : State) {
        Burning = At_Work("burning", true);
        Sleeping = At_Work("sleeping", false);
    }
    State.counters["gaps"] = static_cast<double>(Sleeping.Gaps.size());
    State.counters["burning_cpu_percent"] = Burning.CPU_Percent;
    State.counters["burning_gap_p50_us"] = Percentile(Burning.Gaps, 0.5);
    State.counters["burning_gap_p99_us"] = Percentile(Burning.Gaps, 0.99);
    State.counters["burning_own_p99_us"] = Burning.Own_Lateness_p99_us;
    // A group in which the time of day took a step is not paced. There are few of them.
    Judge(State, {{"cpu_percent", Sleeping.CPU_Percent, Most_CPU_Percent},
                  {"gap_p5_us", Percentile(Sleeping.Gaps, 0.05), Paced_us, true},
                  {"gap_p50_us", Percentile(Sleeping.Gaps, 0.5), Longest_Gap_us},
                  {"gap_p99_us", Percentile(Sleeping.Gaps, 0.99), Longest_Gap_us},
                  {"own_p99_us", Sleeping.Own_Lateness_p99_us, 1000}});
}
BENCHMARK(Guarded<Waits_Of_All_Sensors>)
    ->Name("Waits_Of_All_Sensors")
    ->UseRealTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace brinewright
