#include "platform_qt/tcp_server.hpp"

#include "platform_linux/ipv4.hpp"
#include "platform_linux/system_error.hpp"

#include <netinet/in.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <utility>

namespace brinewright {

namespace {

// Both bound what a client that does not read can hold back: about 800 sentences each.
constexpr std::size_t Waiting_Limit_Bytes = 64 * 1024;
constexpr int Send_Buffer_Bytes = 64 * 1024;

std::string Remote_Address(int Socket) {
    sockaddr_in Address{};
    socklen_t Size = sizeof Address;
    if (::getpeername(Socket, reinterpret_cast<sockaddr*>(&Address), &Size) != 0) return {};
    return IPv4_Text(Address.sin_addr);
}

} // namespace

Socket_TCP_Connection::Socket_TCP_Connection(Unique_Fd Connected_Socket,
                                             std::shared_ptr<Vanished_Peer_Watch> Its_Watch)
    : Peer_IP(Remote_Address(Connected_Socket.Get())), Watch(std::move(Its_Watch)),
      Link(std::move(Connected_Socket), Waiting_Limit_Bytes) {
    Set_Stream_Options(Link.Descriptor());
    Link.On_Readable = [this] { Discard_Received(); };
    Link.On_Lost = [this] {
        if (const auto Tell = std::move(On_Close)) Tell();
    };
    Watch->Add(Link);
}

Socket_TCP_Connection::~Socket_TCP_Connection() { Watch->Remove(Link); }

bool Socket_TCP_Connection::Send(std::string_view Text) {
    const Stream::Sent Result = Link.Send(Text);
    if (Result == Stream::Sent::Skipped) ++Skipped;
    return Result == Stream::Sent::Taken;
}

// One piece for each turn of the event loop, so that a client that pours rubbish in delays nobody.
void Socket_TCP_Connection::Discard_Received() {
    std::array<char, 16 * 1024> Rubbish;
    if (Link.Receive(Rubbish.data(), Rubbish.size()) == 0) Link.Lose();
}

void Socket_TCP_Listener::Listen(std::int32_t Port) {
    Close();
    Require_Port(Port);
    Unique_Fd Socket(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    if (!Socket) Throw_System_Error(errno);
    const int On = 1;
    ::setsockopt(Socket.Get(), SOL_SOCKET, SO_REUSEADDR, &On, sizeof On);
    // Accepted sockets take it over. Set before listening, as TCP settles its windows by it.
    ::setsockopt(Socket.Get(), SOL_SOCKET, SO_SNDBUF, &Send_Buffer_Bytes, sizeof Send_Buffer_Bytes);
    const sockaddr_in Address = IPv4_Address({htonl(INADDR_ANY)}, Port);
    if (::bind(Socket.Get(), reinterpret_cast<const sockaddr*>(&Address), sizeof Address) != 0 ||
        ::listen(Socket.Get(), SOMAXCONN) != 0) {
        Throw_System_Error(errno);
    }
    if (!Watch) Watch = std::make_shared<Vanished_Peer_Watch>();
    Listening = std::make_unique<Acceptor>(std::move(Socket), [this](Unique_Fd Client) {
        auto Connection = std::make_unique<Socket_TCP_Connection>(std::move(Client), Watch);
        if (On_Connection) On_Connection(std::move(Connection));
    });
}

} // namespace brinewright
