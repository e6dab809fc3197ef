#pragma once

#include "platform_qt/stream.hpp"

#include <QTimer>

#include <cstdint>
#include <vector>

namespace brinewright {

// What the system's TCP tells of a peer that owes us acknowledgements.
struct Peer_Signs {
    std::uint32_t Unanswered_Retransmits = 0;
    std::uint32_t Unanswered_Window_Probes = 0;
    std::uint32_t Since_Last_Ack_ms = 0;
};

// True when a peer has gone without a word while data was on its way. A peer that merely does not read
// answers each window probe and is never taken for gone, which is why TCP_USER_TIMEOUT, which cuts such
// peers, is not used. Peers without data on the way are left to keepalive; the times agree.
bool Has_Vanished(const Peer_Signs& Signs);

// Keepalive and the other options of a sentence stream.
void Set_Stream_Options(int Socket);

// Looks at all its streams every few seconds and gives up those whose peer has vanished.
class Vanished_Peer_Watch {
  public:
    Vanished_Peer_Watch();
    void Add(Stream& Watched);
    void Remove(Stream& Watched);

  private:
    void Look();

    std::vector<Stream*> Streams;
    QTimer Timer;
};

} // namespace brinewright
