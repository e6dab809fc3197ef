#pragma once

#include <cstdint>

namespace brinewright {

inline constexpr std::int64_t us_Per_Second = 1'000'000;
inline constexpr std::int64_t us_Per_Day = 86'400 * us_Per_Second;

// The only way to learn the time. There is one implementation on the machine's clocks and one in virtual
// time.
class Clock {
  public:
    virtual ~Clock() = default;

    // Microseconds on a clock that only goes forward and is never set. Timers and waits run on it.
    virtual std::int64_t Wide_us() = 0;

    // The machine's local date and time as microseconds since 1970-01-01 00:00:00 local, as if each day had
    // 86400 s. This is the clock that sentences print.
    virtual std::int64_t Local_us() = 0;

    // Passes Duration_us without giving the event loop a turn: a sleep and a short spin on Wide_us() in real
    // time, a step of the clock in virtual time. It ends strictly later than Duration_us after its start.
    virtual void Spin_us(std::int64_t Duration_us) = 0;
};

// Seconds since local midnight as the 32-bit float that the system counts in. Late in the day its steps are
// 1/128 s, which several comparisons rely on.
inline float Time_Of_Day_s(std::int64_t Local_us) {
    const std::int64_t Day_us = ((Local_us % us_Per_Day) + us_Per_Day) % us_Per_Day;
    return static_cast<float>(static_cast<double>(Day_us) / 1e6);
}

} // namespace brinewright
