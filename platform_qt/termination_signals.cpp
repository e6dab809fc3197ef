#include "platform_qt/termination_signals.hpp"

#include "platform_linux/system_error.hpp"

#include <sys/signalfd.h>

#include <cerrno>
#include <utility>

namespace brinewright {

namespace {

bool Is_Ignored(int Signal) {
    struct sigaction Present {};
    return ::sigaction(Signal, nullptr, &Present) == 0 && Present.sa_handler == SIG_IGN;
}

sigset_t Wanted_Signals() {
    sigset_t Wanted;
    sigemptyset(&Wanted);
    sigaddset(&Wanted, SIGTERM);
    sigaddset(&Wanted, SIGINT);
    if (!Is_Ignored(SIGHUP)) sigaddset(&Wanted, SIGHUP);
    return Wanted;
}

} // namespace

void Hold_Back_Termination() {
    const sigset_t Wanted = Wanted_Signals();
    ::pthread_sigmask(SIG_BLOCK, &Wanted, nullptr);
}

Termination_Signals::Termination_Signals(std::function<void()> On_Terminate) {
    std::signal(SIGPIPE, SIG_IGN);
    const sigset_t Wanted = Wanted_Signals();
    ::pthread_sigmask(SIG_BLOCK, &Wanted, &Mask_Before);
    Signals = Unique_Fd(::signalfd(-1, &Wanted, SFD_NONBLOCK | SFD_CLOEXEC));
    if (!Signals) {
        const int Failure = errno;
        ::pthread_sigmask(SIG_SETMASK, &Mask_Before, nullptr);
        Throw_System_Error(Failure);
    }
    Watch = Watch_Fd(Signals.Get(), QSocketNotifier::Read, [this, Terminate = std::move(On_Terminate)] {
        signalfd_siginfo Told{};
        if (::read(Signals.Get(), &Told, sizeof Told) == sizeof Told) Terminate();
    });
}

Termination_Signals::~Termination_Signals() { ::pthread_sigmask(SIG_SETMASK, &Mask_Before, nullptr); }

} // namespace brinewright
