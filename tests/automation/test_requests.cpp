#include "automation/script.hpp"
#include "tests/automation/automation_test.hpp"

namespace brinewright {
namespace {

struct Requests : Automation_Test {
    // Code and id of the error that a line is answered with.
    std::pair<int, Json> Refusal(const std::string& Line) {
        const Json Response = Json::parse(Session.Handle_Line(Line));
        return {Response.at("error").at("code"), Response.at("id")};
    }
};

TEST_F(Requests, Follow_The_Rules_Of_The_Protocol) {
    EXPECT_EQ(Session.Handle_Line(R"({"jsonrpc":"2.0","id":"a","method":"ping"})"),
              R"({"jsonrpc":"2.0","id":"a","result":"pong"})");
    EXPECT_EQ(Session.Handle_Line(R"({"jsonrpc":"2.0","id":null,"method":"ping"})"),
              R"({"jsonrpc":"2.0","id":null,"result":"pong"})");
    EXPECT_EQ(Refusal("{"), std::pair(-32700, Json()));
    EXPECT_EQ(Refusal(""), std::pair(-32700, Json()));
    EXPECT_EQ(Refusal(R"({"jsonrpc":"2.0","id":1,"method":"ping"} x)"), std::pair(-32700, Json()));
    EXPECT_EQ(Refusal(R"({"jsonrpc":"2.0","id":1e999,"method":"ping"})"), std::pair(-32700, Json()));
    EXPECT_EQ(Refusal("7"), std::pair(-32600, Json()));
    EXPECT_EQ(Refusal(R"({"id":5,"method":"ping"})"), std::pair(-32600, Json(5)));
    EXPECT_EQ(Refusal(R"({"jsonrpc":"2.0","id":5,"method":1})"), std::pair(-32600, Json(5)));
    EXPECT_EQ(Refusal(R"({"jsonrpc":"2.0","id":5,"method":"ping","params":1})"), std::pair(-32600, Json(5)));
    EXPECT_EQ(Refusal(R"({"jsonrpc":"2.0","id":[5],"method":"ping"})"), std::pair(-32600, Json()));
    EXPECT_EQ(Refusal(R"({"jsonrpc":"2.0","id":5,"method":"reboot"})"), std::pair(-32601, Json(5)));
}

TEST_F(Requests, Notifications_Act_And_Are_Not_Answered) {
    EXPECT_EQ(Session.Handle_Line(
                  R"({"jsonrpc":"2.0","method":"click","params":{"path":"frmPosition[1].chkGGA"}})"),
              "");
    EXPECT_TRUE(Window->chkGGA.Value());
    EXPECT_EQ(Session.Handle_Line(R"({"jsonrpc":"2.0","method":"reboot"})"), "");
    EXPECT_EQ(Refusal(R"({"method":"ping"})"), std::pair(-32600, Json())); // no request at all
}

TEST_F(Requests, Batches_Are_Answered_Together) {
    const Json Both = Json::parse(Session.Handle_Line(
        R"([{"jsonrpc":"2.0","id":1,"method":"ping"},{"jsonrpc":"2.0","method":"ping"},3,
            {"jsonrpc":"2.0","id":2,"method":"get","params":["state.TCP_Port"]}])"));
    ASSERT_EQ(Both.size(), 3u);
    EXPECT_EQ(Both[0]["result"], "pong");
    EXPECT_EQ(Both[1]["error"]["code"], -32600);
    EXPECT_EQ(Both[2]["result"], 0);
    EXPECT_EQ(Refusal("[]"), std::pair(-32600, Json()));
    EXPECT_EQ(Session.Handle_Line(R"([{"jsonrpc":"2.0","method":"ping"}])"), "");
}

TEST_F(Requests, Parameters_Go_By_Name_Or_By_Position) {
    Result("set", {"frmPosition[1].chkGGA", true});
    EXPECT_TRUE(Window->chkGGA.Value());
    EXPECT_EQ(Error("set", {{"path", "frmPosition[1].chkGGA"}}), -32602);
    EXPECT_EQ(Error("set", {"frmPosition[1].chkGGA"}), -32602);
    EXPECT_EQ(Error("get", {"state.TCP_Port", 1}), -32602);
    EXPECT_EQ(Error("get", {{"path", 1}}), -32602);
    EXPECT_EQ(Error("get", {{"path", "state.TCP_Port"}, {"pth", 1}}), -32602);
    EXPECT_EQ(Error("click", {{"path", "frmPosition[1].chkGGA"}, {"button", "middle"}}), -32602);
    EXPECT_TRUE(Window->chkGGA.Value());
}

TEST_F(Requests, Huge_Deep_And_Broken_Lines_Are_Refused) {
    EXPECT_EQ(Refusal(std::string(100'000, '[')).first, -32600);
    EXPECT_EQ(Refusal(std::string(200'000, '{')).first, -32600);
    EXPECT_EQ(Refusal(std::string(Automation_Session::Line_Limit_Bytes + 1, ' ')).first, -32600);
    EXPECT_EQ(Json::parse(Automation_Session::Overlong_Response())["error"]["code"], -32600);
    // Brackets within a text do not nest.
    EXPECT_EQ(Error("get", {{"path", std::string(200, '[') + "\\\""}}), -32000);
    EXPECT_EQ(Refusal("{\"jsonrpc\":\"2.0\",\"id\":\"\xFF\",\"method\":\"ping\"}").first, -32700);
    EXPECT_EQ(Refusal(std::string("{\"jsonrpc\":\"2.0\",\0\"id\":1}", 24)).first, -32700);
}

TEST_F(Requests, Texts_Are_Latin_1_Within_And_UTF_8_Without) {
    const std::string Inside("\x00"
                             "A\x7F\x80\xA0\xB0\xFF",
                             7);
    const std::string Outside("\x00"
                              "A\x7F\xC2\x80\xC2\xA0\xC2\xB0\xC3\xBF",
                              11);
    Set("frmPosition[1].txtLat", Outside);
    EXPECT_EQ(Window->txtLat.Text(), Inside);
    EXPECT_EQ(Get("frmPosition[1].txtLat"), Outside);
    for (const char* Beyond : {"\xC4\x80", "\xE2\x82\xAC", "\xF0\x9F\x9A\xA2"})
        EXPECT_EQ(Set_Error("frmPosition[1].txtLat", std::string("x") + Beyond), -32003);
    EXPECT_EQ(Window->txtLat.Text(), Inside);
    EXPECT_EQ(Get("frmPosition[1].lblTip"), "5\xC2\xB0");
    EXPECT_EQ(Get_Error("state.\xC3\xA9"), -32000); // the message quotes the path
}

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
