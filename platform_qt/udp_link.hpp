#pragma once

#include "platform/platform.hpp"
#include "platform_linux/unique_fd.hpp"
#include "platform_qt/event_loop.hpp"

#include <netinet/in.h>

#include <deque>
#include <memory>
#include <string>

namespace brinewright {

// A UDP socket that is never connected: an unreachable host is told by ICMP to connected sockets only, where
// it would cost the next datagram. It gets its own port from the system with the first datagram that it
// sends. Whether a route leads to the host is asked of a socket that is thrown away.
//
// Two application settings are read at each Open to a multicast group: "UDP_Multicast_TTL" (0 to 255, default
// 1: the local network) and "UDP_Multicast_Interface" (an address or a name of an interface; empty: the
// system's choice).
class Socket_UDP final : public UDP_Socket {
  public:
    explicit Socket_UDP(const App_Settings& Its_Settings) : Settings(Its_Settings) {}

    void Open(const std::string& Remote_Host, std::int32_t Remote_Port) override;
    void Bind(std::int32_t Local_Port) override;
    bool Is_Open() const override { return static_cast<bool>(Socket); }
    void Close() override;
    bool Send(std::string_view Text) override;
    std::string Receive() override;

  private:
    void Use(Unique_Fd Opened, sockaddr_in Its_Remote);
    void Take_Datagram();

    const App_Settings& Settings;
    Unique_Fd Socket;
    sockaddr_in Remote{};
    std::unique_ptr<QSocketNotifier> Watch;
    std::deque<std::string> Received;
};

} // namespace brinewright
