#include "shell/main/frm_main.hpp"
#include "tests/automation/automation_test.hpp"

namespace brinewright {
namespace {

// The whole program in virtual time, without a setup file, operated as by a script of a user.
struct Whole_Program : ::testing::Test {
    Memory_Files Disk;
    Memory_Settings Settings;
    Virtual_Platform Services{Disk, Settings, 1'767'225'600'000'000}; // 2026-01-01 00:00:00
    std::unique_ptr<Simulator> Made =
        Make_Simulator(Services, {.Setup_File = "", .No_Save = false, .Data_Folder = "/data/"});
    Simulator& Sim{*Made};
    Automation_Session Session{Target_Of(Sim), Hooks()};

    Whole_Program() {
        Sim.Windows.Event([this] { MDIForm_Load(Sim); });
        for (const Json& Box : Do("boxes")) Do("answer", {{"id", Box["id"]}});
    }
    Automation_Hooks Hooks() {
        Automation_Hooks Lent;
        Lent.Advance = [this](double Seconds) {
            Services.Run_Until(Sim.Timers,
                               Sim.Timers.Time.Wide_us() + static_cast<std::int64_t>(Seconds * 1e6));
        };
        return Lent;
    }
    Json Ask(const std::string& Method, const Json& Params) {
        const Json Request{{"jsonrpc", "2.0"}, {"id", 1}, {"method", Method}, {"params", Params}};
        return Json::parse(Session.Handle_Line(Request.dump()));
    }
    Json Do(const std::string& Method, const Json& Params = Json::object()) {
        Json Response = Ask(Method, Params);
        EXPECT_TRUE(Response.contains("result")) << Method << Params << Response;
        return Response["result"];
    }
    Json Get(const std::string& Path) { return Do("get", {Path}); }
};

TEST_F(Whole_Program, Is_Set_Up_And_Run_By_Paths) {
    Do("click", {"frmMain.mnuMode(2)"});
    EXPECT_EQ(Get("state.Mode"), "Sensor");
    Do("click", {"frmMain.mnuOpenForm(1)"});
    EXPECT_EQ(Get("frmMain.mnuOpenForm(1)"), true);
    const std::string GNSS = "frmPosition[1].";
    for (const Json& Row : Do("list", {"frmPosition[1]"}))
        if (Row["kind"] == "Check_Box" && Row["Value"] == true) Do("click", {Row["path"].get<std::string>()});
    Do("set", {GNSS + "chkGGA", true});
    Do("set", {GNSS + "cmbGGAInterval", "0.5 sec"});
    Do("set", {GNSS + "txtLat", "54 10.500 N"});
    Do("set", {GNSS + "txtSOG", "36"});
    Do("set", {GNSS + "txtCOG", "0"});
    EXPECT_EQ(Get("state.GNSS_SOG[1]"), 36);
    std::vector<Json> Seen;
    Session.Push = [&](const std::string& Line) { Seen.push_back(Json::parse(Line)["params"]["value"]); };
    Do("watch", {"state.GNSS_Lat[1]"});
    Do("click", {GNSS + "cmdStart"});
    Do("advance", {100});
    // A hundred ticks of 36 knots northward, the last of which may lie just beyond: 1 nautical mile, one
    // sixtieth of a degree.
    EXPECT_NEAR(Get("state.GNSS_Lat[1]").get<double>(), 54.175 + 1.0 / 60, 0.0003);
    EXPECT_NEAR(static_cast<double>(Seen.size()), 100, 2);
    EXPECT_EQ(Seen.back(), Get("state.GNSS_Lat[1]"));
    const int Refused = Ask("set", {GNSS + "txtLat", "55 N"})["error"]["code"];
    EXPECT_EQ(Refused, -32002); // a start position is set at rest
}

TEST_F(Whole_Program, Ends_By_Its_Menu) {
    Do("click", {"frmMain.mnuFileExit"});
    EXPECT_TRUE(Services.Quitting);
    EXPECT_EQ(Do("list"), Json::array());
    EXPECT_EQ(Ask("click", {"frmMain.mnuFileExit"})["error"]["code"], -32001);
}

} // namespace
} // namespace brinewright
