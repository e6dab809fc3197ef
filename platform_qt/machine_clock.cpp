#include "platform_qt/machine_clock.hpp"

#include <ctime>

namespace brinewright {

namespace {

constexpr std::int64_t Quarter_s = 900;

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

void Machine_Clock::Spin_us(std::int64_t Duration_us) {
    // Both readings are cut to whole microseconds, so more than Duration_us between them is more in truth as
    // well.
    const std::int64_t Start_us = Wide_us();
    while (Wide_us() - Start_us <= Duration_us) {
    }
}

} // namespace brinewright
