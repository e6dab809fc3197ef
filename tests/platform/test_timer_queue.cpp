#include "platform/timer_queue.hpp"
#include "platform/virtual_platform.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace brinewright;

namespace {

struct Timers_In_Virtual_Time : testing::Test {
    Memory_Files Disk;
    Memory_Settings Settings;
    Virtual_Platform World{Disk, Settings};
    Timer_Queue Queue{World.Time()};
    std::vector<std::pair<std::string, std::int64_t>> Fired; // name, milliseconds

    Timer_Queue::Entry Named(const std::string& Name) {
        Timer_Queue::Entry E;
        E.Tick = [this, Name] { Fired.emplace_back(Name, World.Time().Wide_us() / 1000); };
        return E;
    }
    void Run_To_ms(std::int64_t Time_ms) { World.Run_Until(Queue, Time_ms * 1000); }
};

using Firings = std::vector<std::pair<std::string, std::int64_t>>;

TEST_F(Timers_In_Virtual_Time, Ticks_keep_their_period_and_equal_due_times_keep_the_start_order) {
    auto A = Named("A");
    auto B = Named("B");
    Queue.Start(B, 100'000);
    Queue.Start(A, 100'000);
    Run_To_ms(200);
    EXPECT_EQ(Fired, (Firings{{"B", 100}, {"A", 100}, {"B", 200}, {"A", 200}}));
    // A restart puts the timer behind the other one at equal times, and a stopped one ticks no more.
    Queue.Start(B, 100'000);
    Fired.clear();
    Run_To_ms(300);
    EXPECT_EQ(Fired, (Firings{{"A", 300}, {"B", 300}}));
    Queue.Stop(A);
    Queue.Start(B, 0);
    Run_To_ms(1000);
    EXPECT_EQ(Fired.size(), 2U);
}

TEST_F(Timers_In_Virtual_Time, A_late_tick_is_not_made_up_for_and_the_phase_is_kept) {
    auto A = Named("A");
    Queue.Start(A, 100'000);
    Run_To_ms(100);
    Queue.Spin_us(349'999); // passes the due times 200, 300 and 400
    Run_To_ms(650);
    EXPECT_EQ(Fired, (Firings{{"A", 100}, {"A", 450}, {"A", 500}, {"A", 600}}));
    EXPECT_EQ(Queue.Lateness.Largest_us, 250'000);
    EXPECT_LE(Queue.Own_Lateness.Largest_us, 1); // all of the delay was a wait that was asked for
}

// Late in the day the staggers of a start with many sentences are hundreds of small waits.
TEST_F(Timers_In_Virtual_Time, The_own_lateness_behind_hundreds_of_waits_has_none_of_them) {
    auto A = Named("A");
    Queue.Start(A, 100'000);
    for (int I = 0; I < 500; ++I) Queue.Spin_us(1000);
    Run_To_ms(501);
    EXPECT_GE(Queue.Lateness.Largest_us, 400'000);
    EXPECT_EQ(Queue.Own_Lateness.Largest_us, 0);
}

TEST_F(Timers_In_Virtual_Time, Setting_the_interval_inside_the_tick_restarts_the_phase) {
    Timer_Queue::Entry A;
    A.Tick = [&] {
        Fired.emplace_back("A", World.Time().Wide_us() / 1000);
        if (Fired.size() == 1) Queue.Start(A, 30'000);
    };
    Queue.Start(A, 100'000);
    Run_To_ms(165);
    EXPECT_EQ(Fired, (Firings{{"A", 100}, {"A", 130}, {"A", 160}}));
    Queue.Stop(A);
}

TEST_F(Timers_In_Virtual_Time, A_timer_may_stop_itself_and_others_while_it_ticks) {
    Timer_Queue::Entry A;
    auto B = Named("B");
    A.Tick = [&] {
        Fired.emplace_back("A", World.Time().Wide_us() / 1000);
        Queue.Stop(A);
        Queue.Stop(B);
    };
    Queue.Start(A, 50'000);
    Queue.Start(B, 50'000);
    Run_To_ms(500);
    EXPECT_EQ(Fired, (Firings{{"A", 50}}));
    EXPECT_FALSE(Queue.Next_Due_us());
}

TEST(Latency_Histogram_Test, Percentiles_are_within_their_bucket) {
    Latency_Histogram H;
    for (int I = 1; I <= 10'000; ++I) H.Add(I);
    for (const double Share : {0.5, 0.9, 0.99}) {
        const double Exact = Share * 10'000;
        EXPECT_LE(static_cast<double>(H.Percentile_us(Share)), Exact * 1.001);
        EXPECT_GE(static_cast<double>(H.Percentile_us(Share)), Exact * 0.93);
    }
    EXPECT_EQ(H.Largest_us, 10'000);
    for (std::size_t I = 0; I + 1 < 40 * Latency_Histogram::Steps; ++I)
        EXPECT_EQ(Latency_Histogram::Bucket(Latency_Histogram::Floor_us(I)), I) << I;
}

} // namespace
