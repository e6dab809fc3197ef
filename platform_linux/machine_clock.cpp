#include "platform_linux/machine_clock.hpp"

#include <sys/prctl.h>

#include <algorithm>
#include <cerrno>
#include <ctime>

namespace brinewright {

namespace {

constexpr std::int64_t Quarter_s = 900;

// A machine that wakes its programs at once needs no more than the least. More than the most would burn what
// the sleep saves, and an end that is this late was the scheduler's choice, which no margin foresees.
constexpr std::int64_t Least_Margin_us = 20;
constexpr std::int64_t Most_Margin_us = 150;

timespec Read_Clock(clockid_t Which) {
    timespec Now{};
    ::clock_gettime(Which, &Now);
    return Now;
}

} // namespace

std::int64_t Zone_Offset::At_s(std::int64_t UTC_s) {
    std::int64_t Present = UTC_s / Quarter_s;
    if (UTC_s % Quarter_s < 0) --Present;
    if (Present == Quarter) return Offset_s;
    ::tzset(); // meets a zone of the machine that was changed while the program runs
    const std::time_t At = UTC_s;
    std::tm Broken_Down{};
    if (::localtime_r(&At, &Broken_Down) == nullptr) return Offset_s;
    Quarter = Present;
    Offset_s = Broken_Down.tm_gmtoff;
    return Offset_s;
}

std::int64_t Machine_Clock::Wide_us() {
    const timespec Now = Read_Clock(CLOCK_MONOTONIC);
    return Now.tv_sec * us_Per_Second + Now.tv_nsec / 1000;
}

std::int64_t Machine_Clock::Local_us() {
    const timespec Now = Read_Clock(CLOCK_REALTIME);
    return (Now.tv_sec + Zone.At_s(Now.tv_sec)) * us_Per_Second + Now.tv_nsec / 1000;
}

// The slack is what the system may add to a sleep of this thread so that it can wake several at once, 50 us
// where nobody asks. The margin would have to be that much longer.
Machine_Clock::Machine_Clock() : Margin_us(Most_Margin_us) { ::prctl(PR_SET_TIMERSLACK, 1UL, 0UL, 0UL, 0UL); }

void Machine_Clock::Spin_us(std::int64_t Duration_us) {
    const std::int64_t Start_us = Wide_us();
    Sleep_Until(Start_us + Duration_us - Margin_us);
    // Both readings are cut to whole microseconds, so more than Duration_us between them is more in truth as
    // well.
    while (Wide_us() - Start_us <= Duration_us) {
    }
}

// Absolute, so that a sleep that a signal cut short goes on to the same end. The margin follows how late the
// machine wakes the program: at once when it was too short for it, and slowly back, so that the spin behind
// most sleeps is short and few waits end late.
void Machine_Clock::Sleep_Until(std::int64_t Wake_us) {
    if (Wake_us <= Wide_us()) return;
    timespec When{};
    When.tv_sec = Wake_us / us_Per_Second;
    When.tv_nsec = Wake_us % us_Per_Second * 1000;
    while (::clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &When, nullptr) == EINTR) {
    }
    const std::int64_t Late_us = Wide_us() - Wake_us;
    Margin_us = std::clamp(std::max(Late_us, Margin_us - 1), Least_Margin_us, Most_Margin_us);
}

} // namespace brinewright
