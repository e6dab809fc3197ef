#pragma once

#include "platform_linux/unique_fd.hpp"
#include "platform_qt/event_loop.hpp"

#include <csignal>
#include <functional>
#include <memory>

namespace brinewright {

// Called first of all: what is blocked here the threads of the toolkit take over, and the signals wait for
// Termination_Signals. One that reached such a thread would end the program at once, without a save.
void Hold_Back_Termination();

// SIGTERM, SIGINT and SIGHUP call On_Terminate from the event loop, as often as they come; SIGPIPE is
// ignored. A SIGHUP that was ignored at the start (nohup) stays ignored. Throws Run_Time_Error.
class Termination_Signals {
  public:
    explicit Termination_Signals(std::function<void()> On_Terminate);
    ~Termination_Signals();
    Termination_Signals(const Termination_Signals&) = delete;
    Termination_Signals& operator=(const Termination_Signals&) = delete;

  private:
    sigset_t Mask_Before{};
    Unique_Fd Signals;
    std::unique_ptr<QSocketNotifier> Watch;
};

} // namespace brinewright
