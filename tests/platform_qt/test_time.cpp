#include "platform_linux/machine_clock.hpp"
#include "platform_qt/termination_signals.hpp"
#include "platform_qt/wake_up.hpp"
#include "support.hpp"

#include <sys/time.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <ctime>

using namespace brinewright;

namespace {

// The zone of the process for one test.
struct Zone_Of_Test {
    explicit Zone_Of_Test(const char* Zone) { Set(Zone); }
    ~Zone_Of_Test() {
        ::unsetenv("TZ");
        ::tzset();
    }
    void Set(const char* Zone) {
        ::setenv("TZ", Zone, 1);
        ::tzset();
    }
};

std::int64_t Clock_ns(clockid_t Which) {
    timespec Now{};
    ::clock_gettime(Which, &Now);
    return Now.tv_sec * 1'000'000'000 + Now.tv_nsec;
}

constexpr std::int64_t Summer_Start_2026 = 1774746000; // 2026-03-29 01:00:00 UTC
constexpr std::int64_t Winter_Start_2026 = 1792890000; // 2026-10-25 01:00:00 UTC

} // namespace

TEST(Machine_Clock_, Zone_offset_follows_summer_time_and_steps_of_the_clock) {
    Zone_Of_Test Zone("CET-1CEST,M3.5.0,M10.5.0/3");
    Zone_Offset Offset;
    EXPECT_EQ(Offset.At_s(Summer_Start_2026 - 1), 3600);
    EXPECT_EQ(Offset.At_s(Summer_Start_2026), 7200);
    EXPECT_EQ(Offset.At_s(Winter_Start_2026 - 1), 7200);
    EXPECT_EQ(Offset.At_s(Winter_Start_2026), 3600);
    EXPECT_EQ(Offset.At_s(Summer_Start_2026 + 100), 7200) << "the clock was set back";
    EXPECT_EQ(Offset.At_s(-1), 3600) << "before 1970";
    EXPECT_EQ(Offset.At_s(0), 3600);
}

TEST(Machine_Clock_, A_change_of_the_zone_is_met_at_the_next_quarter) {
    Zone_Of_Test Zone("UTC0");
    Zone_Offset Offset;
    constexpr std::int64_t Quarter = 900 * 2'000'000;
    EXPECT_EQ(Offset.At_s(Quarter + 10), 0);
    ::setenv("TZ", "NPT-5:45", 1);
    EXPECT_EQ(Offset.At_s(Quarter + 899), 0) << "kept, as it must cost nothing";
    EXPECT_EQ(Offset.At_s(Quarter + 900), 5 * 3600 + 45 * 60);
}

TEST(Machine_Clock_, Local_time_is_the_systems_and_a_spin_lasts_longer_than_asked) {
    const Zone_Of_Test Zone("XYZ+3:30"); // west of Greenwich
    Machine_Clock Clock;
    const std::int64_t System_s = std::time(nullptr) - 3 * 3600 - 30 * 60;
    EXPECT_NEAR(static_cast<double>(Clock.Local_us() / us_Per_Second), static_cast<double>(System_s), 2);
    for (const std::int64_t Duration_us : {0, 1, 50, 150, 151, 2000, 20'000, 2000}) {
        const std::int64_t Start_ns = Clock_ns(CLOCK_MONOTONIC);
        Clock.Spin_us(Duration_us);
        EXPECT_GT(Clock_ns(CLOCK_MONOTONIC) - Start_ns, Duration_us * 1000);
    }
}

TEST(Machine_Clock_, A_long_wait_leaves_the_processor_to_others_also_between_signals) {
    constexpr std::int64_t Wait_us = 100'000;
    Machine_Clock Clock;
    const auto Usual = std::signal(SIGALRM, [](int) {});
    const itimerval Every_5_ms{{0, 5000}, {0, 5000}};
    ::setitimer(ITIMER_REAL, &Every_5_ms, nullptr);
    const std::int64_t Start_ns = Clock_ns(CLOCK_MONOTONIC), Work_ns = Clock_ns(CLOCK_THREAD_CPUTIME_ID);
    Clock.Spin_us(Wait_us);
    const std::int64_t Worked_ns = Clock_ns(CLOCK_THREAD_CPUTIME_ID) - Work_ns;
    const std::int64_t Passed_ns = Clock_ns(CLOCK_MONOTONIC) - Start_ns;
    const itimerval Never{};
    ::setitimer(ITIMER_REAL, &Never, nullptr);
    std::signal(SIGALRM, Usual);
    EXPECT_GT(Passed_ns, Wait_us * 1000);
    EXPECT_LT(Worked_ns, Wait_us * 1000 / 4);
}

TEST(Wake_Up_, Timers_keep_their_rates_and_a_stopped_one_is_silent) {
    Machine_Clock Clock;
    Timer_Queue Queue(Clock);
    Timer_Queue::Entry Fast, Slow, Early, Far_Off;
    const Wake_Up Waker(Queue);
    int Fast_Ticks = 0, Slow_Ticks = 0, Early_Ticks = 0;
    Fast.Tick = [&] { ++Fast_Ticks; };
    Slow.Tick = [&] {
        if (++Slow_Ticks == 2) Queue.Stop(Early);
    };
    Early.Tick = [&] { ++Early_Ticks; };
    const std::int64_t Start_us = Clock.Wide_us();
    Queue.Start(Far_Off, 3600 * us_Per_Second);
    Queue.Start(Slow, 60'000); // an earlier due time than the one that is armed
    Queue.Start(Fast, 10'000);
    Queue.Start(Early, 50'000);
    ASSERT_TRUE(Run_Until([&] { return Slow_Ticks == 5; }));
    const std::int64_t Passed_us = Clock.Wide_us() - Start_us;
    EXPECT_GE(Passed_us, 5 * 60'000) << "no tick may come early";
    EXPECT_LE(Fast_Ticks, Passed_us / 10'000);
    // A tick is lost only when the machine holds the process up for a whole period.
    EXPECT_GE(Fast_Ticks, 20);
    EXPECT_LE(Early_Ticks, 2);
    EXPECT_GE(Early_Ticks, 1);
    Queue.Stop(Fast);
    Queue.Stop(Slow);
    Queue.Stop(Far_Off);
    Fast_Ticks = 0;
    Run_For(30);
    EXPECT_EQ(Fast_Ticks, 0);
}

TEST(Wake_Up_, Sockets_get_a_turn_between_the_ticks_of_an_overloaded_simulator) {
    Machine_Clock Clock;
    Timer_Queue Queue(Clock);
    const Wake_Up Waker(Queue);
    std::array<int, 2> Pipe{};
    ASSERT_EQ(::pipe(Pipe.data()), 0);
    const Unique_Fd Reading(Pipe[0]), Writing(Pipe[1]);
    ASSERT_EQ(::write(Writing.Get(), "x", 1), 1); // never read, so always ready
    int Ticks = 0, Ticks_Since_Socket = 0, Most_In_A_Row = 0;
    const auto Watch = Watch_Fd(Reading.Get(), QSocketNotifier::Read, [&] { Ticks_Since_Socket = 0; });
    std::array<Timer_Queue::Entry, 4> Timers;
    for (auto& Timer : Timers) {
        Timer.Tick = [&] {
            ++Ticks;
            Most_In_A_Row = std::max(Most_In_A_Row, ++Ticks_Since_Socket);
            Clock.Spin_us(2000);
        };
        Queue.Start(Timer, 1000);
    }
    ASSERT_TRUE(Run_Until([&] { return Ticks >= 40; }));
    EXPECT_EQ(Most_In_A_Row, 1);
    for (auto& Timer : Timers) Queue.Stop(Timer);
}

TEST(Termination_Signals_, Come_as_calls_from_the_event_loop_and_the_old_state_returns) {
    int Calls = 0;
    {
        const Termination_Signals Signals([&] { ++Calls; });
        int Expected = 0;
        for (const int Signal : {SIGTERM, SIGINT, SIGHUP, SIGTERM}) {
            ::raise(Signal);
            EXPECT_EQ(Calls, Expected) << "not from inside the signal";
            ++Expected;
            EXPECT_TRUE(Run_Until([&] { return Calls == Expected; }));
        }
        ::raise(SIGPIPE);
        Run_For(10);
        EXPECT_EQ(Calls, Expected);
    }
    sigset_t Blocked;
    ::pthread_sigmask(SIG_SETMASK, nullptr, &Blocked);
    EXPECT_EQ(sigismember(&Blocked, SIGTERM), 0);
}
