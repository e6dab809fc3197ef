#include "platform_qt/local_line_server.hpp"
#include "support.hpp"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <vector>

using namespace brinewright;

namespace {

// Writes down all that a server tells.
struct Recorded {
    Scratch_Folder Folder;
    std::string Path = Folder / "automation";
    std::vector<std::string> Told;
    Local_Line_Server Server{Path};

    Recorded() {
        Server.On_Open = [this](std::int64_t Id) { Told.push_back("open " + std::to_string(Id)); };
        Server.On_Close = [this](std::int64_t Id) { Told.push_back("close " + std::to_string(Id)); };
        Server.On_Line = [this](std::int64_t Id, const std::string& Line) {
            Told.push_back(std::to_string(Id) + ": " + Line);
        };
        Server.On_Overlong = [this](std::int64_t Id) { Server.Send_Line(Id, "too long"); };
    }
    bool Run_Until_Told(std::size_t Count) {
        return Run_Until([&] { return Told.size() >= Count; });
    }
};

} // namespace

TEST(Local_Line_Server_, Lines_come_whole_in_order_and_answers_go_back) {
    Recorded At;
    const Unique_Fd First = Connect_Local(At.Path), Second = Connect_Local(At.Path);
    ASSERT_TRUE(At.Run_Until_Told(2));
    Send_All(First, "one\n\ntwo");
    ASSERT_TRUE(At.Run_Until_Told(4));
    Send_All(First, " and a half\nthree\n");
    ASSERT_TRUE(At.Run_Until_Told(6));
    EXPECT_EQ(At.Told, (std::vector<std::string>{"open 1", "open 2", "1: one", "1: ", "1: two and a half",
                                                 "1: three"}));
    EXPECT_TRUE(At.Server.Send_Line(2, "answer"));
    std::string Read;
    EXPECT_TRUE(Run_Until([&] { return Read_More(Second, Read) && Read == "answer\n"; }));
    EXPECT_FALSE(At.Server.Send_Line(3, "nobody"));
}

TEST(Local_Line_Server_, A_client_that_ended_its_sending_gets_its_answers_before_the_end) {
    Recorded At;
    const std::string Long_Answer(3'000'000, 'a');
    At.Server.On_Line = [&](std::int64_t Id, const std::string& Line) {
        At.Server.Send_Line(Id, Line + Long_Answer);
    };
    const Unique_Fd Client = Connect_Local(At.Path);
    Send_All(Client, "1\n2\nnot whole");
    ::shutdown(Client.Get(), SHUT_WR);
    std::string Read;
    EXPECT_TRUE(Run_Until([&] { return !Read_More(Client, Read); }));
    EXPECT_EQ(Read, "1" + Long_Answer + "\n2" + Long_Answer + "\n");
    ASSERT_TRUE(At.Run_Until_Told(2));
    EXPECT_EQ(At.Told.back(), "close 1");
}

TEST(Local_Line_Server_, An_overlong_line_is_answered_and_ends_the_connection) {
    Recorded At;
    const std::string Longest(Local_Line_Server::Line_Limit_Bytes, 'x');
    const Unique_Fd Good = Connect_Local(At.Path), Bad = Connect_Local(At.Path);
    ASSERT_TRUE(At.Run_Until_Told(2));
    Send_All(Good, Longest + "\n");
    ASSERT_TRUE(At.Run_Until_Told(3));
    EXPECT_EQ(At.Told.back(), "1: " + Longest);
    Send_All(Bad, Longest + "x");
    std::string Read;
    EXPECT_TRUE(Run_Until([&] { return !Read_More(Bad, Read); }));
    EXPECT_EQ(Read, "too long\n");
    ASSERT_TRUE(At.Run_Until_Told(4));
    EXPECT_EQ(At.Told.back(), "close 2");
}

TEST(Local_Line_Server_, A_client_that_lets_too_much_wait_is_cut) {
    Recorded At;
    const Unique_Fd Client = Connect_Local(At.Path);
    ASSERT_TRUE(At.Run_Until_Told(1));
    const std::string Megabyte(1024 * 1024, 'm');
    int Taken = 0;
    while (Taken < 20 && At.Server.Send_Line(1, Megabyte)) ++Taken;
    EXPECT_GE(Taken, 7);
    EXPECT_LE(Taken, 9);
    ASSERT_TRUE(At.Run_Until_Told(2));
    EXPECT_EQ(At.Told.back(), "close 1");
}

TEST(Local_Line_Server_, Closing_within_a_line_keeps_the_lines_behind_it_back) {
    Recorded At;
    At.Server.On_Line = [&](std::int64_t Id, const std::string& Line) {
        At.Told.push_back(Line);
        At.Server.Send_Line(Id, "bye");
        At.Server.Close(Id);
    };
    const Unique_Fd Client = Connect_Local(At.Path);
    Send_All(Client, "quit\nmore\n");
    std::string Read;
    EXPECT_TRUE(Run_Until([&] { return !Read_More(Client, Read); }));
    ASSERT_TRUE(At.Run_Until_Told(3));
    Run_For(10);
    EXPECT_EQ(At.Told, (std::vector<std::string>{"open 1", "quit", "close 1"}));
    EXPECT_EQ(Read, "bye\n");
}

TEST(Local_Line_Server_, The_socket_file_is_the_users_own_and_only_a_dead_one_is_replaced) {
    Scratch_Folder Folder;
    const std::string Path = Folder / "socket";
    {
        // What a killed process leaves: a bound socket file that nobody listens to.
        const Unique_Fd Dead(::socket(AF_UNIX, SOCK_STREAM, 0));
        sockaddr_un Address{};
        Address.sun_family = AF_UNIX;
        std::memcpy(Address.sun_path, Path.data(), Path.size());
        ASSERT_EQ(::bind(Dead.Get(), reinterpret_cast<sockaddr*>(&Address), sizeof Address), 0);
    }
    {
        const Local_Line_Server Server(Path);
        struct stat Found {};
        ASSERT_EQ(::lstat(Path.c_str(), &Found), 0);
        EXPECT_EQ(Found.st_mode & 0777, 0600u);
        EXPECT_EQ(Error_Of([&] { Local_Line_Server Second(Path); }), Path + " is in use by another process");
        EXPECT_TRUE(std::filesystem::exists(Path)) << "the refused one must not remove it";
    }
    EXPECT_FALSE(std::filesystem::exists(Path));
    {
        const Local_Line_Server Server(Path);
        std::filesystem::remove(Path);
        std::ofstream(Path) << "by somebody else";
    }
    EXPECT_TRUE(std::filesystem::exists(Path)) << "only its own file is removed";

    std::ofstream(Path) << "a document";
    EXPECT_EQ(Error_Of([&] { Local_Line_Server Server(Path); }), Path + " exists and is not a socket");
    EXPECT_EQ(std::filesystem::file_size(Path), 10u);
    EXPECT_NE(Error_Of([&] { Local_Line_Server Server(Folder / std::string(200, 'x')); }), "");
    EXPECT_NE(Error_Of([&] { Local_Line_Server Server(Folder / "no/such/folder"); }).find("No such file"),
              std::string::npos);
}
