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

} // namespace
} // namespace brinewright
