#include "support.hpp"

#include "platform_linux/ipv4.hpp"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>

namespace brinewright {

bool Run_Until(const std::function<bool()>& Reached, int Limit_ms) {
    QTimer Turns; // so that Reached is asked again while nothing happens
    Turns.start(2);
    QElapsedTimer Passed;
    Passed.start();
    while (!Reached()) {
        if (Passed.hasExpired(Limit_ms)) return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

void Run_For(int Duration_ms) {
    Run_Until([] { return false; }, Duration_ms);
}

Scratch_Folder::Scratch_Folder() {
    std::string Pattern = (std::filesystem::temp_directory_path() / "brinewright-test-XXXXXX").string();
    Path = ::mkdtemp(Pattern.data());
}

Scratch_Folder::~Scratch_Folder() { std::filesystem::remove_all(Path); }

std::int32_t Free_Port(int Kind) {
    const Unique_Fd Socket(::socket(AF_INET, Kind, 0));
    sockaddr_in Address = IPv4_Address({htonl(INADDR_LOOPBACK)}, 0);
    socklen_t Size = sizeof Address;
    ::bind(Socket.Get(), reinterpret_cast<sockaddr*>(&Address), Size);
    ::getsockname(Socket.Get(), reinterpret_cast<sockaddr*>(&Address), &Size);
    return ntohs(Address.sin_port);
}

Unique_Fd Connect_TCP(std::int32_t Port, int Receive_Buffer_Bytes) {
    Unique_Fd Socket(::socket(AF_INET, SOCK_STREAM, 0));
    if (Receive_Buffer_Bytes != 0) {
        ::setsockopt(Socket.Get(), SOL_SOCKET, SO_RCVBUF, &Receive_Buffer_Bytes, sizeof Receive_Buffer_Bytes);
    }
    const sockaddr_in Address = IPv4_Address({htonl(INADDR_LOOPBACK)}, Port);
    EXPECT_EQ(::connect(Socket.Get(), reinterpret_cast<const sockaddr*>(&Address), sizeof Address), 0);
    ::fcntl(Socket.Get(), F_SETFL, O_NONBLOCK);
    return Socket;
}

Unique_Fd Connect_Local(const std::string& Path) {
    Unique_Fd Socket(::socket(AF_UNIX, SOCK_STREAM, 0));
    sockaddr_un Address{};
    Address.sun_family = AF_UNIX;
    std::memcpy(Address.sun_path, Path.data(), Path.size());
    EXPECT_EQ(::connect(Socket.Get(), reinterpret_cast<const sockaddr*>(&Address), sizeof Address), 0);
    ::fcntl(Socket.Get(), F_SETFL, O_NONBLOCK);
    return Socket;
}

void Send_All(const Unique_Fd& Socket, const std::string& Text) {
    std::size_t Sent = 0;
    EXPECT_TRUE(Run_Until([&] {
        const ssize_t Count = ::send(Socket.Get(), Text.data() + Sent, Text.size() - Sent, MSG_NOSIGNAL);
        if (Count > 0) Sent += static_cast<std::size_t>(Count);
        return Sent == Text.size();
    }));
}

bool Read_More(const Unique_Fd& Source, std::string& Text) {
    std::array<char, 65536> Chunk;
    for (;;) {
        const ssize_t Count = ::read(Source.Get(), Chunk.data(), Chunk.size());
        if (Count <= 0) return Count < 0 && errno == EAGAIN;
        Text.append(Chunk.data(), static_cast<std::size_t>(Count));
    }
}

std::string Error_Of(const std::function<void()>& Work) {
    try {
        Work();
    } catch (const Run_Time_Error& Failure) {
        return Failure.what();
    }
    return {};
}

} // namespace brinewright
