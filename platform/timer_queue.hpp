#pragma once

#include "platform/clock.hpp"
#include "platform/latency_histogram.hpp"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>

namespace brinewright {

// Feeds every timer of the program from one wake-up source; the same code runs on the real and the virtual
// clock.
//
// A late tick is not made up for: periods that were missed are skipped and the phase is kept. Equal due times
// fire in the order in which the timers were started. Starting a timer always restarts its phase.
class Timer_Queue {
  public:
    struct Entry {
        std::function<void()> Tick;
        std::int64_t Period_us = 0; // 0 = stopped
        std::int64_t Due_us = 0;    // on the wide clock
        std::uint64_t Start_Order = 0;
    };

    explicit Timer_Queue(Clock& Machine_Clock) : Time(Machine_Clock) {}

    void Start(Entry& Timer, std::int64_t Period_us); // Period_us of 0 or less stops it
    void Stop(Entry& Timer);

    std::optional<std::int64_t> Next_Due_us() const;
    // Fires the one timer that is due longest, if any is due. One tick, then back to the caller's event loop,
    // so that an overloaded simulator still answers its user.
    bool Fire_One();

    // A wait that gives the event loop no turn (pacing, staggering). It is booked, so that lateness can be
    // told with and without the waits that are asked for.
    void Spin_us(std::int64_t Duration_us);

    Clock& Time;
    // Runs a tick; the desktop puts its error net around it.
    std::function<void(Entry&)> Dispatch = [](Entry& Timer) { Timer.Tick(); };
    std::function<void()> On_Next_Due; // the earliest due time may have changed
    // Told of each wait by Spin_us before it begins, so that a desktop can show how far a long opening has
    // come.
    std::function<void(std::int64_t Duration_us)> Before_Spin;
    Latency_Histogram Lateness;     // of ticks, all causes
    Latency_Histogram Own_Lateness; // of ticks, less the waits by Spin_us that fell into the delay

  private:
    struct Earlier {
        bool operator()(const Entry* A, const Entry* B) const {
            return A->Due_us != B->Due_us ? A->Due_us < B->Due_us : A->Start_Order < B->Start_Order;
        }
    };
    struct Spin {
        std::int64_t Start_us = 0;
        std::int64_t End_us = 0;
    };

    std::int64_t Spun_Since_us(std::int64_t From_us) const;

    std::set<Entry*, Earlier> Running;
    std::uint64_t Last_Order = 0;
    std::array<Spin, 1024> Recent_Spins{}; // more than the waits of a start with every window open
    std::size_t Spin_Count = 0;
};

} // namespace brinewright
