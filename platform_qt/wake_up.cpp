#include "platform_qt/wake_up.hpp"

#include "platform_linux/system_error.hpp"

#include <sys/timerfd.h>

#include <algorithm>
#include <cerrno>

namespace brinewright {

Wake_Up::Wake_Up(Timer_Queue& Its_Queue)
    : Queue(Its_Queue), Timer(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)) {
    if (!Timer) Throw_System_Error(errno);
    Watch = Watch_Fd(Timer.Get(), QSocketNotifier::Read, [this] { Fire(); });
    Queue.On_Next_Due = [this] { Arm(); };
    Arm();
}

Wake_Up::~Wake_Up() { Queue.On_Next_Due = nullptr; }

// Absolute and in microseconds: no rounding to whole milliseconds, and no timer slack, which this kind of
// timer does not know. A due time that has passed fires in the next turn of the event loop.
void Wake_Up::Arm() {
    const std::int64_t Due_us = std::max<std::int64_t>(Queue.Next_Due_us().value_or(0), 0);
    if (Due_us == Armed_us) return;
    itimerspec When{};
    When.it_value.tv_sec = Due_us / us_Per_Second;
    When.it_value.tv_nsec = Due_us % us_Per_Second * 1000;
    ::timerfd_settime(Timer.Get(), TFD_TIMER_ABSTIME, &When, nullptr);
    Armed_us = Due_us;
}

void Wake_Up::Fire() {
    std::uint64_t Expirations = 0;
    if (::read(Timer.Get(), &Expirations, sizeof Expirations) < 0) return;
    Armed_us = 0;
    Queue.Fire_One();
    Arm();
}

} // namespace brinewright
