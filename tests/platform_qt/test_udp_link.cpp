#include "platform/virtual_platform.hpp"
#include "platform_linux/ipv4.hpp"
#include "platform_qt/udp_link.hpp"
#include "support.hpp"

#include <QCoreApplication>

#include <sys/socket.h>

#include <vector>

using namespace brinewright;

namespace {

Unique_Fd Receiver(std::int32_t Port, const char* Group = nullptr) {
    Unique_Fd Socket(::socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK, 0));
    const sockaddr_in Address = IPv4_Address({htonl(INADDR_ANY)}, Port);
    EXPECT_EQ(::bind(Socket.Get(), reinterpret_cast<const sockaddr*>(&Address), sizeof Address), 0);
    if (Group != nullptr) {
        ip_mreqn Membership{};
        Membership.imr_multiaddr = *Parse_IPv4(Group);
        Membership.imr_address = {htonl(INADDR_LOOPBACK)};
        EXPECT_EQ(::setsockopt(Socket.Get(), IPPROTO_IP, IP_ADD_MEMBERSHIP, &Membership, sizeof Membership),
                  0);
        const int On = 1;
        ::setsockopt(Socket.Get(), IPPROTO_IP, IP_RECVTTL, &On, sizeof On);
    }
    return Socket;
}

struct Datagram {
    std::string Text;
    sockaddr_in From{};
    int TTL = -1;
};

Datagram Next_Datagram(const Unique_Fd& Socket) {
    Datagram Result;
    char Text[2000], Control[200];
    iovec Part{Text, sizeof Text};
    msghdr Message{};
    Message.msg_name = &Result.From;
    Message.msg_namelen = sizeof Result.From;
    Message.msg_iov = &Part;
    Message.msg_iovlen = 1;
    Message.msg_control = Control;
    Message.msg_controllen = sizeof Control;
    ssize_t Count = -1;
    EXPECT_TRUE(Run_Until([&] { return (Count = ::recvmsg(Socket.Get(), &Message, 0)) >= 0; }));
    if (Count > 0) Result.Text.assign(Text, static_cast<std::size_t>(Count));
    const cmsghdr* Header = CMSG_FIRSTHDR(&Message);
    if (Header != nullptr && Header->cmsg_type == IP_TTL) {
        Result.TTL = *reinterpret_cast<const int*>(CMSG_DATA(Header));
    }
    return Result;
}

} // namespace

TEST(UDP_Link, Sends_whole_datagrams_and_keeps_the_newest_64_that_come_back) {
    Memory_Settings Settings;
    Socket_UDP Link(Settings);
    const std::int32_t Port = Free_Port(SOCK_DGRAM);
    const Unique_Fd Peer = Receiver(Port);
    Link.Open("127.0.0.1", Port);
    const std::string With_NUL("UdPbC\0$GPGGA\r\n", 14);
    Link.Send(With_NUL);
    Link.Send("");
    const Datagram First = Next_Datagram(Peer);
    EXPECT_EQ(First.Text, With_NUL);
    EXPECT_EQ(Next_Datagram(Peer).Text, "");

    int Arrivals = 0;
    Link.On_Data_Arrival = [&] { ++Arrivals; };
    for (int Number = 0; Number < 70; ++Number) {
        const std::string Text = std::to_string(Number);
        ::sendto(Peer.Get(), Text.data(), Text.size(), 0, reinterpret_cast<const sockaddr*>(&First.From),
                 sizeof First.From);
    }
    EXPECT_TRUE(Run_Until([&] { return Arrivals == 70; }));
    for (int Number = 6; Number < 70; ++Number) EXPECT_EQ(Link.Receive(), std::to_string(Number));
    EXPECT_EQ(Link.Receive(), "");
    Link.Close();
    EXPECT_FALSE(Link.Is_Open());
    EXPECT_NE(Error_Of([&] { Link.Send("x"); }), "");
}

TEST(UDP_Link, Multicast_goes_to_the_group_on_the_interface_and_with_the_TTL_of_the_settings) {
    Memory_Settings Settings;
    const std::int32_t Port = Free_Port(SOCK_DGRAM);
    const Unique_Fd Peer = Receiver(Port, "239.192.0.1");
    for (const char* Interface : {"127.0.0.1", "lo"}) {
        Settings.Set("UDP_Multicast_Interface", Interface);
        Socket_UDP Link(Settings);
        Settings.Values.erase("UDP_Multicast_TTL");
        Link.Open("239.192.0.1", Port);
        Link.Send("first");
        Settings.Set("UDP_Multicast_TTL", "7");
        Link.Send("settings are read at opening only");
        Link.Open("239.192.0.1", Port);
        Link.Send("second");
        const Datagram First = Next_Datagram(Peer), Unchanged = Next_Datagram(Peer),
                       Second = Next_Datagram(Peer);
        EXPECT_EQ(First.Text, "first");
        EXPECT_EQ(First.TTL, 1);
        EXPECT_EQ(Unchanged.TTL, 1);
        EXPECT_EQ(Second.Text, "second");
        EXPECT_EQ(Second.TTL, 7);
    }
}

TEST(UDP_Link, A_host_that_does_not_listen_costs_no_datagram) {
    Memory_Settings Settings;
    Socket_UDP Link(Settings);
    const std::int32_t Port = Free_Port(SOCK_DGRAM);
    Link.Open("127.0.0.1", Port);
    for (int Number = 0; Number < 3; ++Number) {
        EXPECT_EQ(Error_Of([&] { Link.Send("refused"); }), "");
        Run_For(10); // for the answer that nobody is there
    }
    const Unique_Fd Peer = Receiver(Port);
    EXPECT_EQ(Error_Of([&] { Link.Send("heard"); }), "");
    EXPECT_EQ(Next_Datagram(Peer).Text, "heard");
    EXPECT_EQ(Error_Of([&] { Link.Send(std::string(70'000, 'x')); }), "Message too long");
}

TEST(UDP_Link, Wrong_hosts_ports_and_settings_are_refused_and_the_broadcast_address_is_not) {
    Memory_Settings Settings;
    Socket_UDP Link(Settings);
    for (const std::int32_t Port : {0, -5, 65536}) {
        EXPECT_NE(Error_Of([&] { Link.Open("127.0.0.1", Port); }).find(std::to_string(Port)),
                  std::string::npos);
    }
    for (const char* Host : {"", "localhost", "1.2.3", "1.2.3.256", "1.2.3.4 ", "::1"}) {
        const std::string Told = Error_Of([&] { Link.Open(Host, 1000); });
        EXPECT_NE(Told.find("is not an IPv4 address"), std::string::npos) << Host;
        EXPECT_NE(Told.find(Host), std::string::npos) << Host;
    }
    EXPECT_EQ(Error_Of([&] { Link.Open("255.255.255.255", 60001); }), "");
    EXPECT_TRUE(Link.Is_Open());
    Settings.Set("UDP_Multicast_TTL", "256");
    EXPECT_NE(Error_Of([&] { Link.Open("239.1.1.1", 1000); }).find("UDP_Multicast_TTL"), std::string::npos);
    EXPECT_FALSE(Link.Is_Open());
    Settings.Set("UDP_Multicast_TTL", "0");
    Settings.Set("UDP_Multicast_Interface", "nosuchinterface");
    EXPECT_NE(Error_Of([&] { Link.Open("239.1.1.1", 1000); }).find("nosuchinterface"), std::string::npos);
}

TEST(UDP_Link, A_bound_port_takes_whole_datagrams_up_to_the_largest_and_keeps_the_newest_64) {
    Memory_Settings Settings;
    Socket_UDP Link(Settings);
    const std::int32_t Port = Free_Port(SOCK_DGRAM);
    Link.Open("127.0.0.1", Port); // a link may change its use
    Link.Bind(Port);
    EXPECT_TRUE(Link.Is_Open());
    std::vector<std::size_t> Told; // how many were received at each arrival
    std::vector<std::string> Read;
    bool Reading = true;
    Link.On_Data_Arrival = [&] {
        Told.push_back(Read.size());
        if (Reading) Read.push_back(Link.Receive());
    };
    Socket_UDP Peer(Settings);
    const std::string Largest(65507, 'L'), With_NUL("$HEROT\0,5\xFF", 11);
    for (const char* Address : {"127.0.0.1", "127.0.0.2"}) {
        Peer.Open(Address, Port);
        for (const std::string& Text : {Largest, std::string(), With_NUL}) {
            Peer.Send(Text);
            const std::size_t Before = Read.size();
            ASSERT_TRUE(Run_Until([&] { return Read.size() > Before; }));
            EXPECT_EQ(Read.back(), Text);
        }
    }
    EXPECT_NE(Error_Of([&] { Link.Send("to whom"); }), "");

    // An empty datagram is told of but not kept: behind it, all that waits can be read in one go.
    Reading = false;
    Told.clear();
    const auto Send = [&](const std::string& Text) {
        const std::size_t Before = Told.size();
        Peer.Send(Text);
        ASSERT_TRUE(Run_Until([&] { return Told.size() > Before; }));
    };
    Send("");
    for (int Number = 0; Number < 70; ++Number) Send(std::to_string(Number));
    EXPECT_EQ(Told.size(), 71u);
    for (int Number = 6; Number < 70; ++Number) EXPECT_EQ(Link.Receive(), std::to_string(Number));
    EXPECT_EQ(Link.Receive(), "");
}

TEST(UDP_Link, A_port_that_is_taken_or_none_is_refused_and_leaves_the_link_closed) {
    Memory_Settings Settings;
    Socket_UDP First(Settings), Second(Settings);
    const std::int32_t Port = Free_Port(SOCK_DGRAM);
    First.Bind(Port);
    EXPECT_EQ(Error_Of([&] { Second.Bind(Port); }), "Address already in use");
    EXPECT_FALSE(Second.Is_Open());
    for (const std::int32_t Wrong : {0, -1, 65536, 65536 + Port}) {
        EXPECT_NE(Error_Of([&] { Second.Bind(Wrong); }).find("is not in the range 1 to 65535"),
                  std::string::npos);
        EXPECT_FALSE(Second.Is_Open());
    }
    First.Close();
    EXPECT_EQ(Error_Of([&] { Second.Bind(Port); }), "");
    EXPECT_TRUE(Second.Is_Open());
}

// A flood does not keep the timers from their turns: between two datagrams the event loop goes on.
TEST(UDP_Link, Each_datagram_of_a_flood_is_a_turn_of_the_event_loop) {
    Memory_Settings Settings;
    Socket_UDP Link(Settings), Peer(Settings);
    const std::int32_t Port = Free_Port(SOCK_DGRAM);
    Link.Bind(Port);
    Peer.Open("127.0.0.1", Port);
    int Arrivals = 0, Arrivals_Before_Turn = -1;
    Link.On_Data_Arrival = [&] {
        if (++Arrivals > 1) return;
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [&] { Arrivals_Before_Turn = Arrivals; }, Qt::QueuedConnection);
    };
    for (int Number = 0; Number < 50; ++Number) Peer.Send("$GPVTG,,,,,5");
    ASSERT_TRUE(Run_Until([&] { return Arrivals == 50; }));
    EXPECT_EQ(Arrivals_Before_Turn, 1);
}
