#pragma once

#include "platform_linux/unique_fd.hpp"
#include "platform_qt/event_loop.hpp"

#include <functional>
#include <memory>

namespace brinewright {

// Takes connections from a listening, non-blocking socket, one for each turn of the event loop. When the
// system has no more descriptors or memory it rests for a moment instead of asking again and again.
class Acceptor {
  public:
    // On_Accept is called from the event loop and may destroy the acceptor.
    Acceptor(Unique_Fd Listening_Socket, std::function<void(Unique_Fd)> On_Accept);

    int Descriptor() const { return Socket.Get(); }
    void Set_Accepting(bool On) { Watch->setEnabled(On); } // who comes meanwhile waits

  private:
    void Accept_One();

    Unique_Fd Socket;
    std::function<void(Unique_Fd)> Accepted;
    std::unique_ptr<QSocketNotifier> Watch;
    Later_Calls Later;
};

} // namespace brinewright
