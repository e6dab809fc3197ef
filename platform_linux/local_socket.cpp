#include "platform_linux/local_socket.hpp"

#include "platform/run_time_error.hpp"
#include "platform_linux/system_error.hpp"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace brinewright {

namespace {

Unique_Fd New_Socket() {
    Unique_Fd Socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    if (!Socket) Throw_System_Error(errno);
    return Socket;
}

sockaddr_un Local_Address(const std::string& Path) {
    sockaddr_un Address{};
    Address.sun_family = AF_UNIX;
    if (Path.empty() || Path.find('\0') != std::string::npos || Path.size() >= sizeof Address.sun_path) {
        throw Run_Time_Error(Path + ": a local socket needs a path of 1 to " +
                             std::to_string(sizeof Address.sun_path - 1) + " bytes");
    }
    std::memcpy(Address.sun_path, Path.data(), Path.size());
    return Address;
}

bool Bind(const Unique_Fd& Socket, const sockaddr_un& Address) {
    const mode_t Mask_Before = ::umask(0177); // no moment in which others could open it
    const int Result = ::bind(Socket.Get(), reinterpret_cast<const sockaddr*>(&Address), sizeof Address);
    const int Failure = errno;
    ::umask(Mask_Before);
    errno = Failure;
    return Result == 0;
}

// Removes the file at Path if it is a socket that nobody listens to.
void Remove_Stale(const std::string& Path, const sockaddr_un& Address) {
    struct stat Found {};
    if (::lstat(Path.c_str(), &Found) != 0) Throw_System_Error(errno);
    if (!S_ISSOCK(Found.st_mode)) throw Run_Time_Error(Path + " exists and is not a socket");
    const Unique_Fd Trial = New_Socket();
    const bool Dead =
        ::connect(Trial.Get(), reinterpret_cast<const sockaddr*>(&Address), sizeof Address) != 0 &&
        errno == ECONNREFUSED;
    if (!Dead) throw Run_Time_Error(Path + " is in use by another process");
    if (::unlink(Path.c_str()) != 0) throw Run_Time_Error(Path + ": " + System_Text(errno));
}

} // namespace

Unique_Fd Listen_Locally(const std::string& Path) {
    const sockaddr_un Address = Local_Address(Path);
    Unique_Fd Socket = New_Socket();
    if (!Bind(Socket, Address)) {
        if (errno != EADDRINUSE) throw Run_Time_Error(Path + ": " + System_Text(errno));
        Remove_Stale(Path, Address);
        if (!Bind(Socket, Address)) throw Run_Time_Error(Path + ": " + System_Text(errno));
    }
    if (::listen(Socket.Get(), SOMAXCONN) != 0) throw Run_Time_Error(Path + ": " + System_Text(errno));
    return Socket;
}

bool Is_Same_User(int Socket) {
    ucred Peer{};
    socklen_t Size = sizeof Peer;
    return ::getsockopt(Socket, SOL_SOCKET, SO_PEERCRED, &Peer, &Size) == 0 && Peer.uid == ::geteuid();
}

} // namespace brinewright
