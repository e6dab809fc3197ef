#pragma once

#include "platform/link_objects.hpp"
#include "platform_qt/acceptor.hpp"
#include "platform_qt/stream.hpp"
#include "platform_qt/vanished_peer.hpp"

#include <memory>
#include <string>

namespace brinewright {

// One client of the TCP server.
class Socket_TCP_Connection final : public TCP_Connection {
  public:
    Socket_TCP_Connection(Unique_Fd Connected_Socket, std::shared_ptr<Vanished_Peer_Watch> Its_Watch);
    ~Socket_TCP_Connection() override;

    bool Send(std::string_view Text) override;
    void Close() override { Link.Close(); }
    std::string Remote_IP() const override { return Peer_IP; }
    std::uint64_t Skipped_Count() const override { return Skipped; }

  private:
    void Discard_Received();

    std::string Peer_IP;
    std::uint64_t Skipped = 0;
    std::shared_ptr<Vanished_Peer_Watch> Watch;
    Stream Link;
};

class Socket_TCP_Listener final : public TCP_Listener {
  public:
    void Listen(std::int32_t Port) override; // 1 to 65535, on all IPv4 addresses of the machine
    bool Is_Listening() const override { return Listening != nullptr; }
    void Close() override { Listening.reset(); }

  private:
    std::shared_ptr<Vanished_Peer_Watch> Watch; // shared with the connections, which may outlive the listener
    std::unique_ptr<Acceptor> Listening;
};

} // namespace brinewright
