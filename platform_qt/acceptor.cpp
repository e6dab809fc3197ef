#include "platform_qt/acceptor.hpp"

#include <sys/socket.h>

#include <cerrno>
#include <utility>

namespace brinewright {

namespace {

constexpr int Rest_ms = 250;

bool Out_Of_Resources(int Error_Number) {
    return Error_Number == EMFILE || Error_Number == ENFILE || Error_Number == ENOBUFS ||
           Error_Number == ENOMEM;
}

} // namespace

Acceptor::Acceptor(Unique_Fd Listening_Socket, std::function<void(Unique_Fd)> On_Accept)
    : Socket(std::move(Listening_Socket)), Accepted(std::move(On_Accept)) {
    Watch = Watch_Fd(Socket.Get(), QSocketNotifier::Read, [this] { Accept_One(); });
}

void Acceptor::Accept_One() {
    Unique_Fd Peer(::accept4(Socket.Get(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
    if (Peer) {
        const auto Tell = Accepted; // outlives this object, which the listener may destroy
        Tell(std::move(Peer));
    } else if (Out_Of_Resources(errno)) {
        Watch->setEnabled(false);
        Later.Call_After(Rest_ms, [this] { Watch->setEnabled(true); });
    }
}

} // namespace brinewright
