#include "platform_qt/udp_link.hpp"

#include "platform/run_time_error.hpp"
#include "platform_linux/ipv4.hpp"
#include "platform_linux/system_error.hpp"

#include <net/if.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <utility>

namespace brinewright {

namespace {

constexpr std::size_t Kept_Datagrams = 64;
constexpr std::size_t Largest_Datagram_Bytes = 65536;

template <class T>
void Set_Option(const Unique_Fd& Socket, int Level, int Option, const T& Value) {
    if (::setsockopt(Socket.Get(), Level, Option, &Value, sizeof Value) != 0) Throw_System_Error(errno);
}

Unique_Fd Make_Socket() {
    Unique_Fd Fresh(::socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    if (!Fresh) Throw_System_Error(errno);
    return Fresh;
}

int Multicast_TTL(const App_Settings& Settings) {
    const std::string Text = Settings.Get("UDP_Multicast_TTL", "1");
    int TTL = -1;
    const auto [End, Failure] = std::from_chars(Text.data(), Text.data() + Text.size(), TTL);
    if (Failure != std::errc{} || End != Text.data() + Text.size() || TTL < 0 || TTL > 255) {
        throw Run_Time_Error("UDP_Multicast_TTL \"" + Text + "\" is not in the range 0 to 255.");
    }
    return TTL;
}

void Set_Multicast(const Unique_Fd& Socket, const App_Settings& Settings) {
    Set_Option(Socket, IPPROTO_IP, IP_MULTICAST_TTL, Multicast_TTL(Settings));
    Set_Option(Socket, IPPROTO_IP, IP_MULTICAST_LOOP, 1); // listeners on this machine hear it too
    const std::string Interface = Settings.Get("UDP_Multicast_Interface", "");
    if (Interface.empty()) return;
    ip_mreqn Chosen{};
    if (const auto Address = Parse_IPv4(Interface)) {
        Chosen.imr_address = *Address;
    } else {
        Chosen.imr_ifindex = static_cast<int>(::if_nametoindex(Interface.c_str()));
        if (Chosen.imr_ifindex == 0)
            throw Run_Time_Error("There is no network interface \"" + Interface + "\".");
    }
    Set_Option(Socket, IPPROTO_IP, IP_MULTICAST_IF, Chosen);
}

Unique_Fd Make_Sender(in_addr Host, const App_Settings& Settings) {
    Unique_Fd Fresh = Make_Socket();
    Set_Option(Fresh, SOL_SOCKET, SO_BROADCAST, 1);
    if (Is_Multicast(Host)) Set_Multicast(Fresh, Settings);
    return Fresh;
}

} // namespace

void Socket_UDP::Open(const std::string& Remote_Host, std::int32_t Remote_Port) {
    Close();
    const auto Host = Parse_IPv4(Remote_Host);
    if (!Host) throw Run_Time_Error("\"" + Remote_Host + "\" is not an IPv4 address.");
    Require_Port(Remote_Port);
    const sockaddr_in Address = IPv4_Address(*Host, Remote_Port);
    const Unique_Fd Probe = Make_Sender(*Host, Settings);
    if (::connect(Probe.Get(), reinterpret_cast<const sockaddr*>(&Address), sizeof Address) != 0)
        Throw_System_Error(errno);
    Use(Make_Sender(*Host, Settings), Address);
}

void Socket_UDP::Bind(std::int32_t Local_Port) {
    Close();
    Require_Port(Local_Port);
    Unique_Fd Fresh = Make_Socket();
    // Not shared: of two programs that steer by one port, only one would hear anything.
    const sockaddr_in Local = IPv4_Address({htonl(INADDR_ANY)}, Local_Port);
    if (::bind(Fresh.Get(), reinterpret_cast<const sockaddr*>(&Local), sizeof Local) != 0)
        Throw_System_Error(errno);
    Use(std::move(Fresh), {});
}

void Socket_UDP::Use(Unique_Fd Opened, sockaddr_in Its_Remote) {
    Socket = std::move(Opened);
    Remote = Its_Remote;
    Watch = Watch_Fd(Socket.Get(), QSocketNotifier::Read, [this] { Take_Datagram(); });
}

void Socket_UDP::Close() {
    Watch.reset();
    Socket.Reset();
    Received.clear();
}

bool Socket_UDP::Send(std::string_view Text) {
    if (!Socket) throw Run_Time_Error("Socket not open");
    const auto* Address = reinterpret_cast<const sockaddr*>(&Remote);
    while (::sendto(Socket.Get(), Text.data(), Text.size(), MSG_DONTWAIT | MSG_NOSIGNAL, Address,
                    sizeof Remote) < 0) {
        if (errno == EAGAIN || errno == ENOBUFS) return false;
        if (errno != EINTR) Throw_System_Error(errno);
    }
    return true;
}

std::string Socket_UDP::Receive() {
    if (Received.empty()) return {};
    std::string Oldest = std::move(Received.front());
    Received.pop_front();
    return Oldest;
}

void Socket_UDP::Take_Datagram() {
    std::array<char, Largest_Datagram_Bytes> Buffer;
    const ssize_t Count = ::recv(Socket.Get(), Buffer.data(), Buffer.size(), MSG_DONTWAIT);
    if (Count < 0) return;
    // Where nobody reads the newest ones are kept: who begins to read wants to know how things stand now. An
    // empty one is told and not kept, since Receive says the same of it as of none: a reader of all that
    // waits would stop there.
    if (Count > 0) {
        if (Received.size() == Kept_Datagrams) Received.pop_front();
        Received.emplace_back(Buffer.data(), static_cast<std::size_t>(Count));
    }
    if (const auto Tell = On_Data_Arrival) Tell();
}

} // namespace brinewright
