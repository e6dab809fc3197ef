#pragma once

#include "platform/clock.hpp"

#include <cstdint>
#include <limits>

namespace brinewright {

// Local time less UTC. It is asked of the system once for each quarter of an hour of UTC, since zones and
// summer times change on quarters only; keyed by the quarter itself, it stays right when the machine's clock
// is set.
struct Zone_Offset {
    std::int64_t Quarter = std::numeric_limits<std::int64_t>::min();
    std::int64_t Offset_s = 0;

    std::int64_t At_s(std::int64_t UTC_s); // UTC_s since 1970-01-01
};

// The clock of the program in real time, made on the thread that waits on it.
class Machine_Clock final : public Clock {
  public:
    Machine_Clock();
    std::int64_t Wide_us() override; // CLOCK_MONOTONIC
    std::int64_t Local_us() override;
    void Spin_us(std::int64_t Duration_us) override; // asleep but for the last bit of it

  private:
    void Sleep_Until(std::int64_t Wake_us);

    Zone_Offset Zone;
    std::int64_t Margin_us; // between the end of the sleep and the end of the wait
};

} // namespace brinewright
