#include "links/link_record_state.hpp"
#include "shell/state/link_state.hpp"
#include "tests/automation/automation_test.hpp"

namespace brinewright {
namespace {

struct Watching : Automation_Test {
    Json Watch(const std::string& Path) { return Result("watch", {{"path", Path}}); }
    // Paths and values pushed since the last call.
    std::vector<std::pair<std::string, Json>> Changes() {
        std::vector<std::pair<std::string, Json>> All;
        for (const std::string& Line : std::exchange(Pushed, {})) {
            const Json Message = Json::parse(Line);
            EXPECT_EQ(Message.value("method", ""), "changed");
            EXPECT_FALSE(Message.contains("id"));
            All.emplace_back(Message["params"]["path"], Message["params"]["value"]);
        }
        return All;
    }
    using List = std::vector<std::pair<std::string, Json>>;
};

TEST_F(Watching, Tells_Each_Change_Once) {
    EXPECT_EQ(Watch("frmPosition[1].chkGGA"), false);
    EXPECT_EQ(Watch("state.TCP_Port"), 0);
    EXPECT_EQ(Watch("frmPosition[1].Width"), 300);
    EXPECT_EQ(Watch("boxes"), Json::array());
    Windows.Event([] {});
    EXPECT_EQ(Changes(), List());
    Set("frmPosition[1].chkGGA", true);
    EXPECT_EQ(Changes(), List({{"frmPosition[1].chkGGA", true}}));
    Windows.Event([&] { State.Of<Link_State>().TCP_Port = 8040; });
    EXPECT_EQ(Changes(), List({{"state.TCP_Port", 8040}}));
    Windows.Event([&] { Window->Resize(500, 400); });
    EXPECT_EQ(Changes(), List({{"frmPosition[1].Width", 500}}));
    Windows.Event([&] { Windows.Boxes.Show("Hello"); });
    const List Shown = Changes();
    ASSERT_EQ(Shown.size(), 1u);
    EXPECT_EQ(Shown[0].second[0]["text"], "Hello");
    Result("unwatch", {{"path", "state.TCP_Port"}});
    Windows.Event([&] { State.Of<Link_State>().TCP_Port = 1; });
    EXPECT_EQ(Changes(), List());
    EXPECT_EQ(Error("unwatch", {{"path", "state.TCP_Port"}}), -32000);
    Result("unwatch");
    Set("frmPosition[1].chkGGA", false);
    EXPECT_EQ(Changes(), List());
    EXPECT_EQ(Error("watch", {{"path", "frmPosition[2].chkGGA"}}), -32001);
}

TEST_F(Watching, Tells_What_A_Frame_Hides) {
    EXPECT_EQ(Watch("frmPosition[1].chkInFrame.Visible"), true);
    Windows.Event([&] { Window->fraAll.Visible = false; });
    EXPECT_EQ(Changes(), List({{"frmPosition[1].chkInFrame.Visible", false}}));
}

TEST_F(Watching, Goes_On_When_A_Window_Is_Opened_Again) {
    Watch("frmPosition[1].chkGGA");
    Set("frmPosition[1].chkGGA", true);
    Result("close", {{"path", "frmPosition[1]"}});
    Window.reset();
    EXPECT_EQ(Changes(), List({{"frmPosition[1].chkGGA", true}, {"frmPosition[1].chkGGA", nullptr}}));
    Window = Open();
    EXPECT_EQ(Changes(), List({{"frmPosition[1].chkGGA", false}}));
    Set("frmPosition[1].chkGGA", true);
    EXPECT_EQ(Changes(), List({{"frmPosition[1].chkGGA", true}}));
}

TEST_F(Watching, Changes_Come_Before_The_Response_To_The_Advance_That_Made_Them) {
    Watch("frmPosition[1].lblCount");
    Window->timer_GGA.Set_Interval(1000);
    const Json Now = Result("advance", {{"seconds", 3.5}});
    EXPECT_EQ(Changes(), List({{"frmPosition[1].lblCount", "1"},
                               {"frmPosition[1].lblCount", "2"},
                               {"frmPosition[1].lblCount", "3"}}));
    EXPECT_EQ(Now["uptime_s"], 3.5);
    EXPECT_EQ(Now["local_time"], "2026-01-01T00:00:03.500000");
}

TEST_F(Watching, Ends_With_The_Session_Even_While_It_Pushes) {
    auto Second = std::make_unique<Automation_Session>(Target(), Automation_Hooks());
    int Told = 0;
    Second->Push = [&](const std::string&) {
        ++Told;
        Second.reset(); // as when the peer has gone
    };
    Second->Handle_Line(R"([{"jsonrpc":"2.0","method":"watch","params":["frmPosition[1].chkGGA"]},
                            {"jsonrpc":"2.0","method":"watch","params":["frmPosition[1].chkGGA.Value"]}])");
    Second->Handle_Line(R"({"jsonrpc":"2.0","method":"click","params":["frmPosition[1].chkGGA"]})");
    EXPECT_EQ(Told, 1);
    EXPECT_EQ(Second, nullptr);
    Set("frmPosition[1].chkGGA", false);
    // The places that ended sessions held among the hooks are used again.
    const std::size_t Hook_Count = Windows.On_Settled.size();
    for (int I = 0; I < 5; ++I) Automation_Session Third(Target(), Automation_Hooks());
    EXPECT_LE(Windows.On_Settled.size(), Hook_Count + 1);
}

TEST_F(Watching, Time_Is_Advanced_Only_When_It_Is_Virtual) {
    for (const Json& Seconds : {Json(-1), Json(1e9)})
        EXPECT_EQ(Error("advance", {{"seconds", Seconds}}), -32003);
    EXPECT_EQ(Error("advance", {{"seconds", "1"}}), -32602);
    EXPECT_EQ(Timers.Time.Wide_us(), 0);
    Automation_Session Real(Target(), Automation_Hooks());
    const Json Refused = Json::parse(
        Real.Handle_Line(R"({"jsonrpc":"2.0","id":1,"method":"advance","params":{"seconds":1}})"));
    EXPECT_EQ(Refused["error"]["code"], -32005);
}

TEST_F(Watching, Pictures_Are_Taken_Where_There_Are_Windows) {
    const char* Line =
        R"({"jsonrpc":"2.0","id":1,"method":"grab","params":{"path":"frmPosition[1]","file":"a.png"}})";
    EXPECT_EQ(Json::parse(Session.Handle_Line(Line))["error"]["code"], -32006);
    Automation_Hooks With_Pictures;
    std::string Taken, Failure;
    With_Pictures.Grab = [&](const std::string& Form_Path, const std::string& File) {
        Taken = Form_Path + " " + File;
        return Failure;
    };
    Automation_Session Seeing(Target(), With_Pictures);
    EXPECT_EQ(Json::parse(Seeing.Handle_Line(Line))["result"], true);
    EXPECT_EQ(Taken, "frmPosition[1] a.png");
    Failure = "No space left on device";
    const Json Refused = Json::parse(Seeing.Handle_Line(Line));
    EXPECT_EQ(Refused["error"], Json({{"code", -32006}, {"message", Failure}}));
}

TEST_F(Watching, Statistics_Count_What_Was_Sent_And_Skipped) {
    auto& Records = State.Of<Link_Record_State>();
    Records.Link[17] = {
        .Name = "TCP 8040", .Wanted = true, .Why_Not = "address in use", .Sent = 12, .Skipped = 4};
    Records.Link[3].Refused = 2;
    Records.Dropped_By_Box = 5;
    Links.WinsockArray.push_back(std::make_unique<TCP_Element>());
    Window->timer_GGA.Set_Interval(1000);
    Advance(2.5);
    const Json Told = Result("stats");
    EXPECT_EQ(Told["sent"], Json({{"17", 12}}));
    EXPECT_EQ(Told["failed"], Json({{"3", 2}}));
    EXPECT_EQ(Told["skipped"], Json({{"TCP", 4}}));
    EXPECT_EQ(Told["dropped_by_box"], 5);
    EXPECT_EQ(Told["links"], Json::array({{{"port", 17},
                                           {"name", "TCP 8040"},
                                           {"open", false},
                                           {"why_not", "address in use"},
                                           {"sentences_per_s", 0.0}}}));
    EXPECT_EQ(Told["clients"], Json::array()); // that one has gone
    EXPECT_EQ(Told["ticks"]["count"], 2);
    EXPECT_EQ(Told["ticks"]["lateness_us"], Json({{"p50", 0}, {"p99", 0}, {"max", 0}}));
    EXPECT_EQ(Told["virtual"], true);
    EXPECT_EQ(Told["uptime_s"], 2.5);
}

} // namespace
} // namespace brinewright
