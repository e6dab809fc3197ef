#pragma once

#include "platform_linux/unique_fd.hpp"
#include "platform_qt/event_loop.hpp"

#include <csignal>
#include <functional>
#include <memory>

namespace brinewright {

// Lets SIGTERM, SIGINT and SIGHUP wait until there is a Termination_Signals. To be called before any thread
// is started, the toolkit's own among them: one that knows nothing of this would take a signal and die of it.
void Hold_Termination_Signals();

// SIGTERM, SIGINT and SIGHUP call Terminate from the event loop, as often as they come; SIGPIPE is
// ignored. A SIGHUP that was ignored at the start (nohup) stays ignored. Throws Run_Time_Error.
class Termination_Signals {
  public:
    explicit Termination_Signals(std::function<void()> Terminate);
    ~Termination_Signals();
    Termination_Signals(const Termination_Signals&) = delete;
    Termination_Signals& operator=(const Termination_Signals&) = delete;

    // Looks now, for work that gives the event loop no turn.
    void Look();
    bool Came() const { return Has_Come; }
    int Fd() const { return Signals.Get(); } // readable: one has come that was not looked at

  private:
    std::function<void()> On_Terminate;
    bool Has_Come = false;
    sigset_t Mask_Before{};
    Unique_Fd Signals;
    std::unique_ptr<QSocketNotifier> Watch;
};

} // namespace brinewright
