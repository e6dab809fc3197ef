#pragma once

#include "platform_linux/unique_fd.hpp"
#include "platform_qt/event_loop.hpp"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace brinewright {

// A connected, non-blocking stream socket: whole texts out, in order, without ever waiting for the peer.
// On_Readable and On_Lost come from the event loop only, and never after destruction.
class Stream {
  public:
    enum class Sent { Taken, Skipped, Lost };

    // Waiting_Limit_Bytes bounds what waits for a slow reader. A text that meets an empty queue is always
    // taken.
    Stream(Unique_Fd Connected_Socket, std::size_t Waiting_Limit_Bytes);

    std::function<void()> On_Readable;
    std::function<void()> On_Lost; // once, however the connection ended, but not after Close

    Sent Send(std::string_view Text); // a text that is begun is completed before the next one
    // Up to Size bytes. 0: the peer has ended its sending. -1: nothing now, or the connection is lost.
    std::ptrdiff_t Receive(char* Buffer, std::size_t Size);
    void Set_Reading(bool On);

    void Lose();           // the connection is given up; On_Lost follows
    void Lose_When_Sent(); // the same after what waits has gone out
    void Close();          // at once and silently
    bool Is_Open() const { return static_cast<bool>(Socket); }
    int Descriptor() const { return Socket.Get(); }
    std::size_t Waiting_Bytes() const { return Waiting.size() - Taken_Bytes; }

  private:
    bool Write(std::string_view Text, std::size_t& Written_Bytes); // false: lost
    void Keep(std::string_view Text);
    void Flush();

    Unique_Fd Socket;
    std::size_t Limit_Bytes;
    std::unique_ptr<QSocketNotifier> Read_Watch;
    std::unique_ptr<QSocketNotifier> Write_Watch; // made when a reader first falls behind
    std::string Waiting;
    std::size_t Taken_Bytes = 0; // of Waiting, sent already
    bool Ending = false;
    Later_Calls Later;
};

} // namespace brinewright
