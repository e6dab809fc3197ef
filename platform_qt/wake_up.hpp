#pragma once

#include "platform/timer_queue.hpp"
#include "platform_linux/unique_fd.hpp"
#include "platform_qt/event_loop.hpp"

#include <cstdint>
#include <memory>

namespace brinewright {

// Gives a Timer_Queue on the Machine_Clock its turns in the event loop: one timer of the system for all
// timers of the program, one tick for each wake-up, so that sockets and windows get a turn between ticks that
// are due together. Holds On_Next_Due of the queue while it lives.
class Wake_Up {
  public:
    explicit Wake_Up(Timer_Queue& Its_Queue); // throws Run_Time_Error
    ~Wake_Up();
    Wake_Up(const Wake_Up&) = delete;
    Wake_Up& operator=(const Wake_Up&) = delete;

  private:
    void Arm();
    void Fire();

    Timer_Queue& Queue;
    Unique_Fd Timer;
    std::unique_ptr<QSocketNotifier> Watch;
    std::int64_t Armed_us = 0; // 0 = not armed
};

} // namespace brinewright
