#include "automation/script.hpp"
#include "tests/automation/automation_test.hpp"

namespace brinewright {
namespace {

struct Scripts : Automation_Test {
    std::vector<Script_Line> Read(std::string_view Text) {
        std::vector<Script_Line> Lines;
        EXPECT_EQ(Read_Script(Text, Lines), "");
        return Lines;
    }
};

TEST_F(Scripts, Are_Read_With_Their_Times) {
    const auto Lines = Read("# a script\r\n"
                            "\n"
                            "0.5 {\"jsonrpc\":\"2.0\",\"id\":7,\"method\":\"ping\"}\r\n"
                            "+0.25\t{\"method\":\"leave\"}\n"
                            "  2 [{\"method\":\"ping\"},{\"method\":\"stats\"}]");
    ASSERT_EQ(Lines.size(), 3u);
    EXPECT_EQ(Lines[0].Due_us, 500'000);
    EXPECT_EQ(Lines[1].Due_us, 750'000);
    EXPECT_EQ(Lines[2].Due_us, 2'000'000);
    EXPECT_EQ(Lines[2].Line_Number, 5);
    EXPECT_EQ(Json::parse(Lines[0].Message)["id"], 7);
    EXPECT_EQ(Json::parse(Lines[1].Message), Json::parse(R"({"jsonrpc":"2.0","id":4,"method":"leave"})"));
    EXPECT_TRUE(Read("").empty());
}

TEST_F(Scripts, That_Are_Wrong_Say_Where) {
    for (const char* Line :
         {"{\"method\":\"ping\"}", "1", "1 {", "1 7", "x {\"method\":\"ping\"}", "-1 {\"method\":\"ping\"}",
          "1e3 {\"method\":\"ping\"}", "inf {\"method\":\"ping\"}", "nan {\"method\":\"ping\"}",
          "99999999999 {\"method\":\"ping\"}", "0.5 {\"method\":\"ping\"}", "+ {\"method\":\"ping\"}",
          "+-1 {\"method\":\"ping\"}", "2 {\"method\":\"reboot\"}", "2 {\"method\":\"get\"}",
          "2 {\"method\":\"ping\",\"params\":5}", "2 {\"id\":5}", "2 [5]"}) {
        std::vector<Script_Line> Lines(1);
        const std::string Why = Read_Script("1 {\"method\":\"ping\"}\n\n" + std::string(Line) + "\n", Lines);
        EXPECT_EQ(Why.substr(0, 8), "line 3: ") << Line << " -> " << Why;
        EXPECT_EQ(Lines.size(), 1u); // untouched
        EXPECT_TRUE(Lines[0].Message.empty());
    }
}

TEST_F(Scripts, Play_Each_Line_When_It_Is_Due) {
    Script_Player Player(Target(), Hooks(),
                         Read("0 {\"method\":\"set\",\"params\":[\"frmPosition[1].chkGGA\",true]}\n"
                              "1.5 {\"method\":\"click\",\"params\":[\"frmPosition[1].cmdStart\"]}\n"
                              "+0 {\"method\":\"click\",\"params\":[\"frmPosition[1].cmdStart\"]}\n"
                              "4 {\"method\":\"click\",\"params\":[\"frmPosition[1].chkGGA\"]}\n"));
    EXPECT_FALSE(Window->chkGGA.Value());
    Advance(0.1);
    EXPECT_TRUE(Window->chkGGA.Value());
    Advance(1.3);
    EXPECT_EQ(Window->Done.size(), 0u);
    Advance(0.2);
    EXPECT_EQ(Window->Done.size(), 2u);
    EXPECT_FALSE(Player.Is_Done());
    Timers.Spin_us(5'000'000); // a wait that keeps the last line from its time
    Advance(0);
    EXPECT_FALSE(Window->chkGGA.Value());
    EXPECT_TRUE(Player.Is_Done());
    EXPECT_EQ(Player.Error_Count, 0u);
    EXPECT_EQ(Timers.Next_Due_us(), std::nullopt);
}

TEST_F(Scripts, Tell_Errors_And_Changes) {
    Script_Player Player(
        Target(), Hooks(),
        Read("1 {\"method\":\"watch\",\"params\":[\"frmPosition[1].chkGGA\"]}\n"
             "1 {\"method\":\"get\",\"params\":[\"frmShop.x\"]}\n"
             "1 [{\"method\":\"ping\"},{\"method\":\"click\",\"params\":[\"frmPosition[1].chkGGA\"]}]\n"
             "1 {\"method\":\"advance\",\"params\":[5]}\n"));
    std::vector<int> Errors, Outputs;
    Player.On_Error = [&](int Line, const std::string&) { Errors.push_back(Line); };
    Player.On_Output = [&](int Line, const std::string&) { Outputs.push_back(Line); };
    Advance(2);
    EXPECT_EQ(Errors, std::vector<int>({2, 4})); // a script does not advance the time in which it plays
    EXPECT_EQ(Player.Error_Count, 2u);
    EXPECT_EQ(Outputs, std::vector<int>({1, 2, 3, 0, 4}));
    EXPECT_EQ(Timers.Time.Wide_us(), 2'000'000);
}

TEST_F(Scripts, Stop_With_Their_Player) {
    {
        Script_Player Player(Target(), Hooks(),
                             Read("1 {\"method\":\"click\",\"params\":[\"frmPosition[1].chkGGA\"]}"));
    }
    Advance(2);
    EXPECT_FALSE(Window->chkGGA.Value());
}

} // namespace
} // namespace brinewright
