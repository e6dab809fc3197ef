#include "platform_qt/tcp_server.hpp"
#include "support.hpp"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>

#include <algorithm>
#include <ctime>
#include <vector>

using namespace brinewright;

namespace {

// A listener whose connections are kept, with a note of each closing.
struct Server {
    std::int32_t Port = Free_Port(SOCK_STREAM);
    std::vector<std::unique_ptr<TCP_Connection>> Connections;
    int Closings = 0;
    Socket_TCP_Listener Listener;

    Server() {
        Listener.On_Connection = [this](std::unique_ptr<TCP_Connection> Fresh) {
            Fresh->On_Close = [this] { ++Closings; };
            Connections.push_back(std::move(Fresh));
        };
        Listener.Listen(Port);
    }
    Unique_Fd Connect(int Receive_Buffer_Bytes = 0) {
        const std::size_t Before = Connections.size();
        Unique_Fd Client = Connect_TCP(Port, Receive_Buffer_Bytes);
        EXPECT_TRUE(Run_Until([&] { return Connections.size() == Before + 1; }));
        return Client;
    }
};

std::string Numbered_Sentence(int Number) {
    std::string Digits = std::to_string(Number);
    return "$GPXXX," + std::string(6 - Digits.size(), '0') + Digits + "," + std::string(60, 'x') + "*00\r\n";
}

// The numbers of the sentences in Stream; adds a failure for each line that is not whole.
std::vector<int> Numbers_Of_Whole_Sentences(const std::string& Stream) {
    std::vector<int> Numbers;
    const std::size_t Size = Numbered_Sentence(0).size();
    EXPECT_EQ(Stream.size() % Size, 0u);
    for (std::size_t At = 0; At + Size <= Stream.size(); At += Size) {
        Numbers.push_back(std::stoi(Stream.substr(At + 7, 6)));
        EXPECT_EQ(Stream.substr(At, Size), Numbered_Sentence(Numbers.back()));
    }
    return Numbers;
}

} // namespace

TEST(TCP_Server, A_stalled_client_skips_whole_sentences_and_disturbs_nobody) {
    Server At;
    const Unique_Fd Reader = At.Connect(), Stalled = At.Connect(2048);
    std::string Read, Read_Late;
    constexpr int Count = 6000; // half a megabyte
    for (int Number = 0; Number < Count; ++Number) {
        EXPECT_TRUE(At.Connections[0]->Send(Numbered_Sentence(Number)));
        At.Connections[1]->Send(Numbered_Sentence(Number));
        Read_More(Reader, Read);
    }
    const auto All_Read = [&] {
        Read_More(Reader, Read);
        return Read.size() >= Count * Numbered_Sentence(0).size();
    };
    EXPECT_TRUE(Run_Until(All_Read));
    EXPECT_EQ(Numbers_Of_Whole_Sentences(Read).size(), static_cast<std::size_t>(Count));
    EXPECT_EQ(At.Connections[0]->Skipped_Count(), 0u);

    const std::uint64_t Skipped = At.Connections[1]->Skipped_Count();
    EXPECT_GT(Skipped, 1000u) << "about 64 KiB in the program and twice that in the system may wait";
    // It is not cut, and once it reads it gets what was kept, whole, and then what is new.
    EXPECT_EQ(At.Closings, 0);
    const std::size_t Kept_Bytes = (Count - Skipped) * Numbered_Sentence(0).size();
    EXPECT_TRUE(Run_Until([&] {
        Read_More(Stalled, Read_Late);
        return Read_Late.size() >= Kept_Bytes;
    }));
    EXPECT_TRUE(At.Connections[1]->Send(Numbered_Sentence(Count)));
    EXPECT_TRUE(Run_Until([&] {
        Read_More(Stalled, Read_Late);
        return Read_Late.size() > Kept_Bytes;
    }));
    const auto Numbers = Numbers_Of_Whole_Sentences(Read_Late);
    EXPECT_TRUE(std::is_sorted(Numbers.begin(), Numbers.end()));
    EXPECT_EQ(std::adjacent_find(Numbers.begin(), Numbers.end()), Numbers.end());
    EXPECT_EQ(Numbers.back(), Count);
}

TEST(TCP_Server, Clients_that_close_or_reset_are_told_once_from_the_event_loop) {
    Server At;
    Unique_Fd Leaving = At.Connect(), Resetting = At.Connect();
    const Unique_Fd Staying = At.Connect();
    EXPECT_EQ(At.Connections[2]->Remote_IP(), "127.0.0.1");
    Leaving.Reset();
    EXPECT_TRUE(Run_Until([&] { return At.Closings == 1; }));

    const linger At_Once{1, 0};
    ::setsockopt(Resetting.Get(), SOL_SOCKET, SO_LINGER, &At_Once, sizeof At_Once);
    Resetting.Reset();
    // Sent before the event loop has seen the reset: the failure shows in Send, yet is told later.
    for (int Number = 0; Number < 3; ++Number) EXPECT_FALSE(At.Connections[1]->Send("lost\r\n"));
    EXPECT_EQ(At.Closings, 1);
    EXPECT_TRUE(Run_Until([&] { return At.Closings == 2; }));
    EXPECT_TRUE(At.Connections[2]->Send("kept\r\n"));
    At.Connections[2]->Close();
    EXPECT_FALSE(At.Connections[2]->Send("closed by ourselves\r\n"));
    std::string Read;
    EXPECT_TRUE(Run_Until([&] { return !Read_More(Staying, Read); }));
    EXPECT_EQ(Read, "kept\r\n");
    Run_For(30);
    EXPECT_EQ(At.Closings, 2);
}

TEST(TCP_Server, A_connection_may_be_destroyed_where_its_closing_is_told_or_before_that) {
    Server At;
    Unique_Fd First = At.Connect(), Second = At.Connect();
    At.Connections[0]->On_Close = [&] { At.Connections[0].reset(); };
    First.Reset();
    EXPECT_TRUE(Run_Until([&] { return At.Connections[0] == nullptr; }));

    const linger At_Once{1, 0};
    ::setsockopt(Second.Get(), SOL_SOCKET, SO_LINGER, &At_Once, sizeof At_Once);
    Second.Reset();
    EXPECT_FALSE(At.Connections[1]->Send("x"));
    At.Connections[1].reset(); // with its closing still to be told
    Run_For(20);
    EXPECT_EQ(At.Closings, 0);
}

TEST(TCP_Server, Rubbish_from_many_clients_is_thrown_away) {
    Server At;
    std::vector<Unique_Fd> Clients;
    for (int Number = 0; Number < 50; ++Number) Clients.push_back(At.Connect());
    const std::string Rubbish(1'000'000, '\377');
    for (int Number = 0; Number < 3; ++Number) Send_All(Clients[static_cast<std::size_t>(Number)], Rubbish);
    for (auto& Connection : At.Connections) EXPECT_TRUE(Connection->Send("sentence\r\n"));
    for (const Unique_Fd& Client : Clients) {
        std::string Read;
        EXPECT_TRUE(Run_Until([&] { return Read_More(Client, Read) && Read == "sentence\r\n"; }));
    }
    EXPECT_EQ(At.Closings, 0);
}

TEST(TCP_Server, Ports_that_are_taken_or_out_of_range_are_refused_with_the_reason) {
    Server At;
    Socket_TCP_Listener Second;
    EXPECT_EQ(Error_Of([&] { Second.Listen(At.Port); }), "Address already in use");
    EXPECT_FALSE(Second.Is_Listening());
    for (const std::int32_t Port : {0, -1, 65536}) {
        EXPECT_NE(Error_Of([&] { Second.Listen(Port); }).find(std::to_string(Port)), std::string::npos);
    }
    // The port is free again at once, although a connection of it is still closing.
    const Unique_Fd Client = At.Connect();
    At.Connections.clear();
    At.Listener.Close();
    EXPECT_FALSE(At.Listener.Is_Listening());
    EXPECT_EQ(Error_Of([&] { Second.Listen(At.Port); }), "");
}

TEST(TCP_Server, Without_descriptors_left_it_rests_and_goes_on_later) {
    Server At;
    const Unique_Fd Client = Connect_TCP(At.Port);
    rlimit Before{};
    ::getrlimit(RLIMIT_NOFILE, &Before);
    rlimit None_Left = Before;
    None_Left.rlim_cur = static_cast<rlim_t>(::fcntl(Client.Get(), F_DUPFD, 0));
    ::close(static_cast<int>(None_Left.rlim_cur));
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &None_Left), 0);
    const std::clock_t CPU_Before = std::clock();
    Run_For(400);
    const double CPU_s = static_cast<double>(std::clock() - CPU_Before) / CLOCKS_PER_SEC;
    ::setrlimit(RLIMIT_NOFILE, &Before);
    EXPECT_TRUE(At.Connections.empty());
    EXPECT_LT(CPU_s, 0.2) << "it must not ask again and again";
    EXPECT_TRUE(Run_Until([&] { return At.Connections.size() == 1; }));
}

TEST(TCP_Server, Only_peers_that_answer_nothing_count_as_vanished) {
    struct Case {
        Peer_Signs Signs;
        bool Vanished;
        const char* What;
    };
    const Case Cases[] = {
        {{0, 0, 3'600'000}, false, "idle for an hour"},
        {{0, 1, 119'000}, false, "does not read; the next window probe is on its way"},
        {{6, 0, 12'000}, false, "a network that was away for some seconds"},
        {{7, 0, 26'000}, true, "sentences unanswered"},
        {{0, 3, 26'000}, true, "did not read, then left"},
    };
    for (const Case& Each : Cases) EXPECT_EQ(Has_Vanished(Each.Signs), Each.Vanished) << Each.What;
}
