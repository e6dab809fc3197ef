#include "platform_linux/output_stream.hpp"

#include "platform/run_time_error.hpp"
#include "platform_linux/system_error.hpp"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>

namespace brinewright {

namespace {

// Stdout may be shared with a shell, so it must not be switched to be non-blocking: a pipe or a terminal is
// opened anew for that. Where this cannot be done, a piece of a pipe's atomic size after asking is as good.
Unique_Fd Own_Stdout() {
    struct stat Found {};
    if (::fstat(STDOUT_FILENO, &Found) != 0) Throw_System_Error(errno);
    if (S_ISFIFO(Found.st_mode) || S_ISCHR(Found.st_mode)) {
        Unique_Fd Anew(::open("/proc/self/fd/1", O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
        if (Anew) return Anew;
    }
    return Unique_Fd(::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0));
}

Unique_Fd Opened(const std::string& File) {
    if (File.empty()) return Own_Stdout();
    return Unique_Fd(::open(File.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOCTTY | O_CLOEXEC, 0666));
}

} // namespace

Output_Stream::Output_Stream(const std::string& File, std::size_t Limit_Bytes)
    : File_Fd(Opened(File)), Limit(Limit_Bytes) {
    if (!File_Fd) throw Run_Time_Error(System_Text(errno));
}

bool Output_Stream::Put(std::string_view Text) {
    if (Waiting_Bytes() + Text.size() > Limit) return false;
    if (Text.empty()) return true;
    Waiting += Text;
    Lengths.push_back(static_cast<std::uint32_t>(Text.size()));
    return true;
}

void Output_Stream::Write(Patience For_Reader) {
    while (!Lengths.empty()) {
        if (!Await(For_Reader)) return;
        const ssize_t Count = ::write(File_Fd.Get(), Waiting.data() + Head, Piece());
        if (Count >= 0)
            Take_Off(static_cast<std::size_t>(Count));
        else if (errno == EAGAIN && For_Reader.Wait_ms == 0)
            return;
        else if (errno != EINTR && errno != EAGAIN)
            Fail(errno);
    }
}

void Output_Stream::Close() {
    const int Open_Fd = File_Fd.Release();
    if (Open_Fd >= 0 && ::close(Open_Fd) != 0) Fail(errno);
}

bool Output_Stream::Await(Patience For_Reader) const {
    std::array<pollfd, 2> Asked{{{File_Fd.Get(), POLLOUT, 0}, {For_Reader.Interrupt_Fd, POLLIN, 0}}};
    int Ready = 0;
    do {
        Ready = ::poll(Asked.data(), Asked.size(), For_Reader.Wait_ms);
    } while (Ready < 0 && errno == EINTR);
    return Asked[0].revents != 0;
}

// Whole texts, as many as a pipe takes at once or not at all.
std::size_t Output_Stream::Piece() const {
    std::size_t Length = Lengths.front();
    for (std::size_t I = 1; I < Lengths.size() && Length + Lengths[I] <= PIPE_BUF; ++I) Length += Lengths[I];
    return Length;
}

void Output_Stream::Take_Off(std::size_t Count) {
    Head += Count;
    while (Count > 0) {
        if (Count < Lengths.front()) {
            Lengths.front() -= static_cast<std::uint32_t>(Count);
            break;
        }
        Count -= Lengths.front();
        Lengths.pop_front();
    }
    if (Head < Waiting.size() / 2) return;
    Waiting.erase(0, Head);
    Head = 0;
}

void Output_Stream::Fail(int Error_Number) {
    Waiting.clear();
    Lengths.clear();
    Head = 0;
    throw Run_Time_Error(System_Text(Error_Number));
}

} // namespace brinewright
