#include "platform_qt/stream.hpp"

#include <sys/socket.h>

#include <cerrno>
#include <utility>

namespace brinewright {

Stream::Stream(Unique_Fd Connected_Socket, std::size_t Waiting_Limit_Bytes)
    : Socket(std::move(Connected_Socket)), Limit_Bytes(Waiting_Limit_Bytes) {
    Read_Watch = Watch_Fd(Socket.Get(), QSocketNotifier::Read, [this] {
        if (On_Readable) On_Readable();
    });
}

Stream::Sent Stream::Send(std::string_view Text) {
    if (!Socket || Ending) return Sent::Lost;
    if (Waiting_Bytes() != 0 && Waiting_Bytes() + Text.size() > Limit_Bytes) {
        Flush(); // the reader may have caught up since the last turn of the event loop
        if (!Socket) return Sent::Lost;
        if (Waiting_Bytes() != 0 && Waiting_Bytes() + Text.size() > Limit_Bytes) return Sent::Skipped;
    }
    if (Waiting_Bytes() != 0) {
        Keep(Text);
        return Sent::Taken;
    }
    std::size_t Written_Bytes = 0;
    if (!Write(Text, Written_Bytes)) return Sent::Lost;
    if (Written_Bytes < Text.size()) Keep(Text.substr(Written_Bytes));
    return Sent::Taken;
}

bool Stream::Write(std::string_view Text, std::size_t& Written_Bytes) {
    while (Written_Bytes < Text.size()) {
        const ssize_t Count = ::send(Socket.Get(), Text.data() + Written_Bytes, Text.size() - Written_Bytes,
                                     MSG_NOSIGNAL | MSG_DONTWAIT);
        if (Count >= 0) {
            Written_Bytes += static_cast<std::size_t>(Count);
        } else if (errno == EAGAIN || errno == ENOBUFS || errno == ENOMEM) {
            return true;
        } else if (errno != EINTR) {
            Lose();
            return false;
        }
    }
    return true;
}

void Stream::Keep(std::string_view Text) {
    if (Taken_Bytes > Limit_Bytes / 2) {
        Waiting.erase(0, Taken_Bytes);
        Taken_Bytes = 0;
    }
    Waiting += Text;
    if (!Write_Watch) Write_Watch = Watch_Fd(Socket.Get(), QSocketNotifier::Write, [this] { Flush(); });
    if (!Write_Watch->isEnabled()) Write_Watch->setEnabled(true);
}

void Stream::Flush() {
    if (!Write(Waiting, Taken_Bytes) || Taken_Bytes < Waiting.size()) return;
    Waiting.clear();
    Taken_Bytes = 0;
    Write_Watch->setEnabled(false);
    if (Ending) Lose();
}

std::ptrdiff_t Stream::Receive(char* Buffer, std::size_t Size) {
    if (!Socket) return -1;
    const ssize_t Count = ::recv(Socket.Get(), Buffer, Size, MSG_DONTWAIT);
    if (Count < 0 && errno != EAGAIN && errno != EINTR) Lose();
    return Count;
}

void Stream::Set_Reading(bool On) {
    if (Read_Watch) Read_Watch->setEnabled(On);
}

void Stream::Lose() {
    if (!Socket) return;
    Close();
    Later.Call([this] {
        // Moved out, since the listener usually destroys this stream.
        if (const auto Tell = std::move(On_Lost)) Tell();
    });
}

void Stream::Lose_When_Sent() {
    if (Waiting_Bytes() == 0) return Lose();
    Ending = true;
    Set_Reading(false);
}

void Stream::Close() {
    // A watch can be the one that is just calling; it is only switched off here and destroyed with the
    // stream.
    if (Read_Watch) Read_Watch->setEnabled(false);
    if (Write_Watch) Write_Watch->setEnabled(false);
    Socket.Reset();
    std::string().swap(Waiting);
    Taken_Bytes = 0;
    Later.Forget();
}

} // namespace brinewright
