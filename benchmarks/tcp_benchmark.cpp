// One sentence to 200 TCP clients, one of which never reads, against a bare epoll loop that writes the same
// bytes to 200 clients of its own. Both servers stand in this process and take turns; a second process holds
// the far ends of both and reads them.

#include "benchmarks/verdict.hpp"
#include "links/tcp_server.hpp"
#include "platform_linux/unique_fd.hpp"
#include "platform_qt/qt_platform.hpp"
#include "shell/main/frm_main.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/epoll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <thread>

namespace brinewright {
namespace {

constexpr int Clients = 200; // of each server; the first of them is the one that does not read
constexpr int Sentences_Per_Round = 20;
constexpr int Rounds = 300; // together a minute at 100 sentences a second
const std::string Sentence = "$GPGGA,120000,6228.3320,N,00608.9700,E,1,8,1.4,12.0,M,40.0,M,0.0,0000*57\r\n";

// What the two processes share.
struct Far_End {
    std::array<std::atomic<std::uint64_t>, 2> Read_Bytes{};
    pid_t Process = 0;
};

void Require(bool Good, const char* What) {
    if (!Good) throw std::runtime_error(std::string(What) + ": " + std::strerror(errno));
}

sockaddr_in Loopback(std::uint16_t Port) {
    sockaddr_in Address{};
    Address.sin_family = AF_INET;
    Address.sin_port = htons(Port);
    Address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return Address;
}

int Connect(std::uint16_t Port) {
    const int Socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_in Address = Loopback(Port);
    Require(::connect(Socket, reinterpret_cast<const sockaddr*>(&Address), sizeof Address) == 0, "connect");
    return Socket;
}

[[noreturn]] void Read_For_Ever(Far_End& Shared, const std::array<std::uint16_t, 2>& Ports) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    const int Poll = ::epoll_create1(0);
    for (std::uint32_t Server = 0; Server < Ports.size(); ++Server)
        for (int Client = 0; Client < Clients; ++Client) {
            const int Socket = Connect(Ports[Server]);
            epoll_event Wanted{};
            Wanted.events = EPOLLIN;
            Wanted.data.u64 = std::uint64_t{Server} << 32 | static_cast<std::uint32_t>(Socket);
            if (Client > 0) ::epoll_ctl(Poll, EPOLL_CTL_ADD, Socket, &Wanted);
        }
    static std::array<char, 64 * 1024> Text;
    for (;;) {
        std::array<epoll_event, 64> Ready;
        const int Count = ::epoll_wait(Poll, Ready.data(), static_cast<int>(Ready.size()), -1);
        for (int I = 0; I < Count; ++I) {
            const std::uint64_t Which = Ready[static_cast<std::size_t>(I)].data.u64;
            const ssize_t Bytes = ::recv(static_cast<int>(Which & 0xFFFFFFFF), Text.data(), Text.size(), 0);
            if (Bytes <= 0) ::_exit(1);
            Shared.Read_Bytes[Which >> 32] += static_cast<std::uint64_t>(Bytes);
        }
    }
}

// A listening socket like that of the program, on a port that the system chooses.
Unique_Fd Listen_Somewhere(std::uint16_t& Port) {
    Unique_Fd Socket(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    constexpr int Send_Buffer_Bytes = 64 * 1024;
    ::setsockopt(Socket.Get(), SOL_SOCKET, SO_SNDBUF, &Send_Buffer_Bytes, sizeof Send_Buffer_Bytes);
    sockaddr_in Address = Loopback(0);
    socklen_t Size = sizeof Address;
    Require(::bind(Socket.Get(), reinterpret_cast<const sockaddr*>(&Address), Size) == 0 &&
                ::listen(Socket.Get(), 2 * Clients) == 0 &&
                ::getsockname(Socket.Get(), reinterpret_cast<sockaddr*>(&Address), &Size) == 0,
            "listen");
    Port = ntohs(Address.sin_port);
    return Socket;
}

// The yardstick: no more than is needed to write to each client that can take it.
class Bare_Server {
  public:
    explicit Bare_Server(Unique_Fd Its_Socket)
        : Socket(std::move(Its_Socket)), Poll(::epoll_create1(EPOLL_CLOEXEC)) {}

    void Accept_All() {
        while (Peers.size() < Clients) {
            Unique_Fd Client(::accept4(Socket.Get(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
            if (!Client) continue;
            const int On = 1;
            ::setsockopt(Client.Get(), IPPROTO_TCP, TCP_NODELAY, &On, sizeof On);
            Peers.push_back({std::move(Client), {}});
            Watch(Peers.size() - 1, EPOLL_CTL_ADD, EPOLLIN);
        }
    }

    void Send(const std::string& Text) {
        for (std::size_t I = 0; I < Peers.size(); ++I)
            if (Peers[I].Rest.empty()) Write(I, Text);
    }

    void Turn() {
        std::array<epoll_event, 64> Ready;
        const int Count = ::epoll_wait(Poll.Get(), Ready.data(), static_cast<int>(Ready.size()), 0);
        for (int I = 0; I < Count; ++I) {
            const epoll_event& Event = Ready[static_cast<std::size_t>(I)];
            if ((Event.events & EPOLLOUT) == 0) continue;
            const std::string Rest = std::move(Peers[Event.data.u64].Rest);
            Peers[Event.data.u64].Rest.clear();
            Watch(Event.data.u64, EPOLL_CTL_MOD, EPOLLIN);
            Write(Event.data.u64, Rest);
        }
    }

    bool Has_Stalled() const { return !Peers.front().Rest.empty(); }

  private:
    struct Peer {
        Unique_Fd Socket;
        std::string Rest; // of a text that went out in part; while it waits nothing else goes out
    };

    void Watch(std::size_t I, int Operation, std::uint32_t Events) {
        epoll_event Wanted{};
        Wanted.events = Events;
        Wanted.data.u64 = I;
        ::epoll_ctl(Poll.Get(), Operation, Peers[I].Socket.Get(), &Wanted);
    }

    void Write(std::size_t I, std::string_view Text) {
        const ssize_t Count = ::send(Peers[I].Socket.Get(), Text.data(), Text.size(), MSG_NOSIGNAL);
        const std::size_t Written = Count > 0 ? static_cast<std::size_t>(Count) : 0;
        if (Written == Text.size()) return;
        Peers[I].Rest = Text.substr(Written);
        Watch(I, EPOLL_CTL_MOD, EPOLLIN | EPOLLOUT);
    }

    Unique_Fd Socket;
    Unique_Fd Poll;
    std::vector<Peer> Peers;
};

std::uint64_t Resident_kB() {
    std::ifstream Status("/proc/self/status");
    for (std::string Word; Status >> Word;)
        if (Word == "VmRSS:") {
            std::uint64_t Size_kB = 0;
            Status >> Size_kB;
            return Size_kB;
        }
    return 0;
}

// Sends a round and returns the time of one sentence; then waits until the far end has read all of it.
template <class F, class G>
double Round_us(std::atomic<std::uint64_t>& Read_Bytes, F&& Send, G&& Turn) {
    const std::uint64_t Wanted =
        Read_Bytes + std::uint64_t{Clients - 1} * Sentences_Per_Round * Sentence.size();
    const auto Start = std::chrono::steady_clock::now();
    for (int I = 0; I < Sentences_Per_Round; ++I) {
        Send();
        Turn();
    }
    const std::chrono::duration<double, std::micro> Passed = std::chrono::steady_clock::now() - Start;
    while (Read_Bytes < Wanted) {
        Turn();
        std::this_thread::yield();
    }
    return Passed.count() / Sentences_Per_Round;
}

std::uint16_t Free_Port() {
    std::uint16_t Port = 0;
    Listen_Somewhere(Port);
    return Port;
}

class Process_End {
  public:
    explicit Process_End(pid_t Its_Process) : Process(Its_Process) {}
    Process_End(const Process_End&) = delete;
    Process_End& operator=(const Process_End&) = delete;
    ~Process_End() {
        ::kill(Process, SIGKILL);
        ::waitpid(Process, nullptr, 0);
    }

  private:
    pid_t Process;
};

void One_Sentence_To_200_Clients(benchmark::State& State) {
    void* const Memory =
        ::mmap(nullptr, sizeof(Far_End), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    Require(Memory != MAP_FAILED, "mmap");
    Far_End& Shared = *new (Memory) Far_End;

    int Argument_Count = 0;
    QCoreApplication Loop(Argument_Count, nullptr);
    const QTemporaryDir Folder;
    Qt_Platform_Options World_Options;
    World_Options.Settings_File = Folder.filePath("settings.ini").toStdString();
    Qt_Platform World(World_Options);
    const std::unique_ptr<Simulator> Made = Make_Simulator(World, {});
    Simulator& Sim = *Made;
    Sim.State.Of<Link_State>().TCP_Port = Free_Port();
    TCP_Listen(Sim);
    std::uint16_t Bare_Port = 0;
    Bare_Server Bare(Listen_Somewhere(Bare_Port));

    const pid_t Reader = ::fork();
    Require(Reader >= 0, "fork");
    if (Reader == 0)
        Read_For_Ever(Shared, {static_cast<std::uint16_t>(Sim.State.Of<Link_State>().TCP_Port), Bare_Port});
    const Process_End Ending(Reader);
    while (Sim.State.Of<Link_State>().TCP_Client_Count < Clients) QCoreApplication::processEvents();
    Bare.Accept_All();

    const auto Our_Round = [&] {
        return Round_us(
            Shared.Read_Bytes[0], [&] { Write_TCP(Sim, Sentence); },
            [] { QCoreApplication::processEvents(); });
    };
    const auto Bare_Round = [&] {
        return Round_us(
            Shared.Read_Bytes[1], [&] { Bare.Send(Sentence); }, [&] { Bare.Turn(); });
    };
    const auto& Stalled = *Sim.Links.WinsockArray.front()->Connection;
    const std::uint64_t Before_kB = Resident_kB();
    while (Stalled.Skipped_Count() == 0) Our_Round();
    while (!Bare.Has_Stalled()) Bare_Round();
    const std::uint64_t Stalled_kB = Resident_kB();

    std::vector<double> Ours_us, Bare_us, Ratios;
    for (auto _ : State) {
        Ours_us.push_back(Our_Round());
        Bare_us.push_back(Bare_Round());
        Ratios.push_back(Ours_us.back() / Bare_us.back());
        State.SetIterationTime(Ours_us.back() * 1e-6);
    }
    State.counters["sentence_us"] = Median(Ours_us);
    State.counters["bare_us"] = Median(Bare_us);
    State.counters["skipped"] = static_cast<double>(Stalled.Skipped_Count());
    State.counters["stalled_kB"] = static_cast<double>(Stalled_kB - Before_kB);
    Judge(State, {{"times_bare", Median(Ratios), 1.5},
                  {"minute_kB", static_cast<double>(Resident_kB()) - static_cast<double>(Stalled_kB), 256}});
    TCP_Stop(Sim);
}
BENCHMARK(Guarded<One_Sentence_To_200_Clients>)
    ->Name("One_Sentence_To_200_Clients")
    ->UseManualTime()
    ->Iterations(Rounds);

} // namespace
} // namespace brinewright
