#include "gnss/gnss_state.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/shell_state.hpp"
#include "tests/automation/automation_test.hpp"

#include <limits>

namespace brinewright {

using Paths = Automation_Test;

TEST_F(Paths, Lead_To_What_A_Control_Holds) {
    EXPECT_EQ(Get("frmPosition[1].chkGGA"), false);
    EXPECT_EQ(Get("frmPosition[1].txtLat"), "53 00.000 N");
    EXPECT_EQ(Get("frmPosition[1].scrSOG"), 0);
    EXPECT_EQ(Get("frmPosition[1].optUnit(1)"), false);
    EXPECT_EQ(Get("frmPosition[1].mnuOpen(3)"), false);
    EXPECT_EQ(Get("frmPosition[1].cmdStart"), "START"); // a button holds nothing but its caption
    EXPECT_EQ(Get("frmPosition[1].timer_GGA"), 0);
    EXPECT_EQ(Get("frmPosition[1].grdSky.Rows"), Json::parse(R"([["","45"]])"));
    EXPECT_EQ(Get("frmPosition[1].grdSky.RowCount"), 1);
    EXPECT_EQ(Get("frmPosition[1].grdSky.Selected"), -1);
}

TEST_F(Paths, Lead_To_Properties) {
    Window->cmbGGAInterval.Set_List_Index(2);
    Window->timer_GGA.Set_Interval(1500);
    EXPECT_EQ(Get("frmPosition[1].cmbGGAInterval.ListIndex"), 2);
    EXPECT_EQ(Get("frmPosition[1].cmbGGAInterval.Text"), " 10");
    EXPECT_EQ(Get("frmPosition[1].cmbGGAInterval.ItemData"), 7);
    EXPECT_EQ(Get("frmPosition[1].cmbGGAInterval.Items"), Json({"0.1", "1", " 10"}));
    EXPECT_EQ(Get("frmPosition[1].scrSOG.Min"), 100);
    EXPECT_EQ(Get("frmPosition[1].scrSOG.Max"), -20);
    EXPECT_EQ(Get("frmPosition[1].chkHidden.Visible"), false);
    EXPECT_EQ(Get("frmPosition[1].cmdDisabled.Enabled"), false);
    EXPECT_EQ(Get("frmPosition[1].mnuOpen(3).Checked"), false);
    EXPECT_EQ(Get("frmPosition[1].timer_GGA.Interval"), 1500);
    EXPECT_EQ(Get("frmPosition[1].Caption"), "GNSS  1");
    EXPECT_EQ(Get("frmPosition[1].Height"), 400);
    EXPECT_EQ(Get("frmPosition[1]")["Left"], 10);
}

TEST_F(Paths, Lead_Into_The_State) {
    State.Of<GNSS_State>().GNSS_Lat[1] = -53.25;
    State.Of<GNSS_State>().GNSS_SOG[2] = 1.4F;
    State.Of<Link_State>().Port_Table[17].Enabled = true;
    State.Of<GNSS_State>().Sky_Table[5].Elevation = 45;
    State.Of<Shell_State>().Open_Form_List[1].Name = "5\xB0";
    State.Of<GNSS_State>().GNSS_System_Used[2][6] = true;
    State.Of<Link_State>().Transmit.UdPbC_Sequence[28] = 999;
    EXPECT_EQ(Get("state.GNSS_Lat[1]"), -53.25);
    EXPECT_EQ(Get("state.GNSS_SOG[2]").dump(), "1.4"); // a 32-bit float as it was written
    EXPECT_EQ(Get("state.Port_Table[17].Enabled"), true);
    EXPECT_EQ(Get("state.Sky_Table[5].Elevation"), 45);
    EXPECT_EQ(Get("state.Open_Form_List[1].Name"), "5\xC2\xB0");
    EXPECT_EQ(Get("state.GNSS_System_Used[2][6]"), true);
    EXPECT_EQ(Get("state.Transmit.UdPbC_Sequence[28]"), 999);
    EXPECT_EQ(Get("state.GNSS_Lat"), Json({{"1", -53.25}, {"2", 0.0}}));
    EXPECT_EQ(Get("state.Sensor_Table")["11"], Json({{"Name", ""}, {"Port", 0}}));
    EXPECT_EQ(Get("state.Transmit.Last_Tx_Time").size(), 18u);
    State.Of<GNSS_State>().GNSS_Lat[1] = std::nan("");
    State.Of<GNSS_State>().GNSS_SOG[2] = std::numeric_limits<float>::infinity();
    EXPECT_EQ(Get("state.GNSS_Lat"), Json({{"1", nullptr}, {"2", 0.0}}));
    EXPECT_EQ(Get("state.GNSS_SOG[2]"), nullptr);
}

TEST_F(Paths, That_Lead_Nowhere_Are_Errors) {
    for (const char* Path : {"",
                             ".",
                             "frmShop",
                             "frmPosition[1].",
                             "frmPosition[1].chkXYZ",
                             "frmPosition[1].chkGGA.ListIndex",
                             "frmPosition[1].chkGGA.",
                             "frmPosition[1].chkGGA(1)",
                             "frmPosition[1].mnuOpen",
                             "frmPosition[1].mnuOpen(",
                             "frmPosition",
                             "frmPosition[3]",
                             "frmPosition[01]",
                             "state",
                             "state.",
                             "state.Nothing",
                             "state.GNSS_Lat[0]",
                             "state.GNSS_Lat[3]",
                             "state.GNSS_Lat[",
                             "state.GNSS_Lat[]",
                             "state.GNSS_Lat[x]",
                             "state.GNSS_Lat[1",
                             "state.GNSS_Lat[99999999999]",
                             "state.GNSS_Lat[1][1]",
                             "state.GNSS_Lat[1]x",
                             "state.GNSS_Lat.x",
                             "state.TCP_Port[1]",
                             "state.TCP_Port.x",
                             "state.Port_Table[17].",
                             "state.Port_Table[17].Nothing"})
        EXPECT_EQ(Get_Error(Path), -32000) << Path;
}

TEST_F(Paths, Into_Closed_Windows_Say_So) {
    EXPECT_EQ(Get_Error("frmPosition[2].chkGGA"), -32001);
    EXPECT_EQ(Get_Error("frmMonitor"), -32001);
    Result("close", {{"path", "frmPosition[1]"}});
    EXPECT_EQ(Get_Error("frmPosition[1].chkGGA"), -32001);
    EXPECT_EQ(Set_Error("frmPosition[1].chkGGA", true), -32001);
    EXPECT_EQ(Error("close", {{"path", "frmPosition[1]"}}), -32001);
    EXPECT_EQ(Error("key", {{"path", "frmPosition[1]"}, {"code", "Left"}}), -32001);
}

TEST_F(Paths, Are_Listed_So_That_Each_Can_Be_Read) {
    const Json Open = Result("list");
    ASSERT_EQ(Open.size(), 1u);
    EXPECT_EQ(Open[0]["path"], "frmPosition[1]");
    EXPECT_EQ(Open[0]["kind"], "Child");
    EXPECT_EQ(Open[0]["Active"], true);

    const Json Controls = Result("list", {{"path", "frmPosition[1]"}});
    ASSERT_EQ(Controls.size(), Window->Controls.size());
    for (const Json& Row : Controls) {
        for (const auto& [Name, Value] : Row.items()) {
            if (Name == "path" || Name == "kind") continue;
            EXPECT_EQ(Get(Row["path"].get<std::string>() + "." + Name), Value) << Row << Name;
        }
    }
    EXPECT_EQ(Controls[0]["kind"], "Check_Box");
    EXPECT_EQ(Controls.back()["kind"], "Timer");

    const Json Variables = Result("list", {{"path", "state"}});
    EXPECT_GT(Variables.size(), 150u);
    for (const Json& Row : Variables) {
        const std::string Path = Row["path"];
        const Json Value = Get(Path);
        if (Row["kind"] == "table") {
            EXPECT_EQ(Value.size(),
                      static_cast<std::size_t>(Row["last"].get<int>() - Row["first"].get<int>() + 1));
        } else {
            EXPECT_EQ(Row["kind"] == "number", Value.is_number()) << Row;
        }
    }
    EXPECT_EQ(Result("list", {{"path", "frmPosition[1].cmbFree"}})["FreeText"], true);
    EXPECT_EQ(Error("list", {{"path", "state.TCP_Port"}}), -32000);
}

} // namespace brinewright
