#include "platform_qt/vanished_peer.hpp"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <algorithm>

namespace brinewright {

namespace {

constexpr int Keepalive_Idle_s = 10;
constexpr int Keepalive_Interval_s = 3;
constexpr int Keepalive_Probes = 3;
constexpr std::uint32_t Silence_ms = 1000 * (Keepalive_Idle_s + Keepalive_Interval_s * Keepalive_Probes);
constexpr int Look_Period_ms = 5000;

void Set_Option(int Socket, int Level, int Option, int Value) {
    ::setsockopt(Socket, Level, Option, &Value, sizeof Value); // none of them is vital
}

} // namespace

bool Has_Vanished(const Peer_Signs& Signs) {
    return Signs.Since_Last_Ack_ms > Silence_ms &&
           std::max(Signs.Unanswered_Retransmits, Signs.Unanswered_Window_Probes) >= Keepalive_Probes;
}

void Set_Stream_Options(int Socket) {
    Set_Option(Socket, IPPROTO_TCP, TCP_NODELAY, 1);
    Set_Option(Socket, SOL_SOCKET, SO_KEEPALIVE, 1);
    Set_Option(Socket, IPPROTO_TCP, TCP_KEEPIDLE, Keepalive_Idle_s);
    Set_Option(Socket, IPPROTO_TCP, TCP_KEEPINTVL, Keepalive_Interval_s);
    Set_Option(Socket, IPPROTO_TCP, TCP_KEEPCNT, Keepalive_Probes);
}

Vanished_Peer_Watch::Vanished_Peer_Watch() {
    Timer.setTimerType(Qt::VeryCoarseTimer);
    Timer.setInterval(Look_Period_ms);
    QObject::connect(&Timer, &QTimer::timeout, &Timer, [this] { Look(); });
}

void Vanished_Peer_Watch::Add(Stream& Watched) {
    Streams.push_back(&Watched);
    if (!Timer.isActive()) Timer.start();
}

void Vanished_Peer_Watch::Remove(Stream& Watched) {
    std::erase(Streams, &Watched);
    if (Streams.empty()) Timer.stop();
}

void Vanished_Peer_Watch::Look() {
    for (Stream* Watched : Streams) {
        tcp_info Info{};
        socklen_t Size = sizeof Info;
        if (!Watched->Is_Open() ||
            ::getsockopt(Watched->Descriptor(), IPPROTO_TCP, TCP_INFO, &Info, &Size) != 0) {
            continue;
        }
        if (Has_Vanished({Info.tcpi_retransmits, Info.tcpi_probes, Info.tcpi_last_ack_recv})) Watched->Lose();
    }
}

} // namespace brinewright
