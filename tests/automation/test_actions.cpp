#include "tests/automation/automation_test.hpp"

namespace brinewright {
namespace {

using Texts = std::vector<std::string>;

struct Actions : Automation_Test {
    void Click(const std::string& Name, const char* Button = "left") {
        Result("click", {{"path", "frmPosition[1]." + Name}, {"button", Button}});
    }
    int Click_Error(const std::string& Name, const char* Button = "left") {
        return Error("click", {{"path", "frmPosition[1]." + Name}, {"button", Button}});
    }
};

TEST_F(Actions, Clicks_Run_Handlers) {
    Click("cmdStart");
    Click("lblTip");
    Click("lblTip", "right");
    EXPECT_EQ(Window->Done, Texts({"start", "left", "right"}));
    Click("chkGGA");
    EXPECT_TRUE(Window->chkGGA.Value());
    Click("optUnit(1)");
    EXPECT_EQ(Window->optUnit.Selected(), 1);
}

TEST_F(Actions, Are_Refused_As_A_User_Is) {
    Result("focus", {{"path", "frmPosition[1].txtLat"}});
    EXPECT_EQ(Click_Error("cmdDisabled"), -32002);
    EXPECT_EQ(Click_Error("chkHidden"), -32002);
    EXPECT_EQ(Set_Error("frmPosition[1].chkHidden", true), -32002);
    EXPECT_EQ(Click_Error("timer_GGA"), -32002);
    EXPECT_EQ(Click_Error("fraAll"), -32002);
    EXPECT_EQ(Click_Error("cmdStart", "right"), -32002);
    EXPECT_EQ(Set_Error("frmPosition[1].cmdStart", true), -32002);
    EXPECT_EQ(Set_Error("frmPosition[1].txtTold", "x"), -32002);
    EXPECT_EQ(Error("type", {{"path", "frmPosition[1].chkGGA"}, {"text", "x"}}), -32002);
    EXPECT_EQ(Error("focus", {{"path", "frmPosition[1].lblTip"}}), -32002);
    EXPECT_EQ(Error("focus", {{"path", "frmPosition[1]"}}), -32002);
    EXPECT_EQ(Set_Error("state.TCP_Port", 1), -32004);
    EXPECT_EQ(Set_Error("frmPosition[1].chkGGA.Enabled", false), -32004);
    EXPECT_EQ(Set_Error("frmPosition[1].Caption", "x"), -32004);
    EXPECT_EQ(Set_Error("boxes", 1), -32004);
    // Nothing has changed: not even the focus has moved.
    EXPECT_EQ(Window->Done, Texts({"enter"}));
    EXPECT_EQ(Windows.Focus, &Window->txtLat);
    EXPECT_FALSE(Window->chkHidden.Value());
}

TEST_F(Actions, Values_Are_Taken_In_Every_Form_That_A_Hand_Can_Give) {
    Set("frmPosition[1].chkGGA", 1);
    EXPECT_TRUE(Window->chkGGA.Value());
    Set("frmPosition[1].chkGGA.Value", false);
    EXPECT_FALSE(Window->chkGGA.Value());
    Set("frmPosition[1].cmbGGAInterval", 1);
    EXPECT_EQ(Window->cmbGGAInterval.Text(), "1");
    Set("frmPosition[1].cmbGGAInterval", "10"); // blanks around it count not
    EXPECT_EQ(Window->cmbGGAInterval.List_Index(), 2);
    Set("frmPosition[1].cmbGGAInterval.ListIndex", 0.0);
    EXPECT_EQ(Window->cmbGGAInterval.Text(), "0.1");
    Set("frmPosition[1].cmbFree", "anything");
    EXPECT_EQ(Window->cmbFree.Text(), "anything");
    Set("frmPosition[1].scrSOG", -20);
    EXPECT_EQ(Window->scrSOG.Value(), -20);
    Set("frmPosition[1].optUnit(0)", true);
    EXPECT_EQ(Window->optUnit.Selected(), 0);
    Set("frmPosition[1].txtLat", 12.5); // a number is typed as it stands
    EXPECT_EQ(Window->txtLat.Text(), "12.5");
}

TEST_F(Actions, Values_Out_Of_Range_Change_Nothing) {
    Set("frmPosition[1].cmbGGAInterval", 1);
    Result("focus", {{"path", "frmPosition[1].txtLat"}});
    Window->Done.clear();
    for (const Json& Value :
         {Json(-1), Json(3), Json("7"), Json(0.5), Json(true), Json(1e300), Json(nullptr)})
        EXPECT_EQ(Set_Error("frmPosition[1].cmbGGAInterval", Value), -32003) << Value;
    EXPECT_EQ(Set_Error("frmPosition[1].cmbGGAInterval.ListIndex", "1"), -32003);
    EXPECT_EQ(Set_Error("frmPosition[1].cmbGGAInterval.Text", 1), -32003);
    for (const Json& Value :
         {Json(101), Json(-21), Json("5"), Json(1e300), Json(18446744073709551615u), Json({1})})
        EXPECT_EQ(Set_Error("frmPosition[1].scrSOG", Value), -32003) << Value;
    for (const Json& Value : {Json(2), Json("true"), Json(-1), Json(0.5)})
        EXPECT_EQ(Set_Error("frmPosition[1].chkGGA", Value), -32003) << Value;
    EXPECT_EQ(Set_Error("frmPosition[1].optUnit(0)", false), -32003);
    EXPECT_EQ(Set_Error("frmPosition[1].txtLat", true), -32003);
    for (const Json& Value : {Json(1e6), Json(-1), Json("5"), Json(1e300)})
        EXPECT_EQ(Set_Error("frmPosition[1].Width", Value), -32003) << Value;
    EXPECT_EQ(Window->cmbGGAInterval.List_Index(), 1);
    EXPECT_EQ(Window->scrSOG.Value(), 0);
    EXPECT_EQ(Window->Width, 300);
    EXPECT_EQ(Window->Done, Texts());
    EXPECT_EQ(Windows.Focus, &Window->txtLat);
}

TEST_F(Actions, Typing_Enters_And_Leaves_As_Asked) {
    Set("frmPosition[1].txtLat", "54");
    EXPECT_EQ(Window->Done, Texts({"enter", "leave"}));
    Window->Done.clear();
    Result("type", {{"path", "frmPosition[1].txtLat"}, {"text", "55"}});
    Result("key", {{"path", "frmPosition[1]"}, {"code", "Up"}});
    Result("key", {{"path", "frmPosition[1]"}, {"code", 13}});
    EXPECT_EQ(Error("key", {{"path", "frmPosition[1]"}, {"code", "Hop"}}), -32602);
    EXPECT_EQ(Error("key", {{"path", "frmPosition[1]"}, {"code", 256}}), -32602);
    EXPECT_EQ(Window->Done, Texts({"enter", "key 38", "key 13"}));
    EXPECT_EQ(Window->txtLat.Text(), "55");
    Result("leave");
    EXPECT_EQ(Window->Done.back(), "leave");
}

TEST_F(Actions, Windows_Are_Moved_Sized_And_Closed) {
    int Resizes = 0;
    Window->On_Resize = [&] { ++Resizes; };
    Set("frmPosition[1].Left", -1500.5);
    Set("frmPosition[1].Height", 1000);
    EXPECT_EQ(Window->Left, -1500.5F);
    EXPECT_EQ(Window->Top, 20);
    EXPECT_EQ(Window->Height, 1000);
    EXPECT_EQ(Resizes, 2);
    Click("cmdClose"); // the window unloads itself in its own handler
    EXPECT_TRUE(Windows.Forms.empty());
    EXPECT_EQ(Window.use_count(), 1);
}

TEST_F(Actions, Failures_Of_Handlers_Go_To_A_Box_And_Refusals_To_The_Peer) {
    Click("cmdFail");
    ASSERT_EQ(Windows.Boxes.Standing.size(), 1u);
    const Json Boxes = Result("boxes");
    ASSERT_EQ(Boxes.size(), 1u);
    EXPECT_EQ(Boxes[0]["kind"], "message");
    EXPECT_EQ(Boxes[0]["text"], "Overflow");
    EXPECT_EQ(Boxes[0]["icon"], "Stop");
    EXPECT_EQ(Click_Error("cmdRefuse"), -32002);
    EXPECT_EQ(Windows.Boxes.Standing.size(), 1u);
    EXPECT_EQ(Error("answer", {{"id", Boxes[0]["id"]}, {"button", "No"}}), -32003) << "it has no such button";
    Result("answer", {{"id", Boxes[0]["id"]}});
    EXPECT_TRUE(Windows.Boxes.Standing.empty());
    EXPECT_EQ(Error("answer", {{"id", Boxes[0]["id"]}}), -32007);
    EXPECT_EQ(Error("answer", {{"id", -1}}), -32602);
}

TEST_F(Actions, A_Box_Is_Answered_With_The_Button_That_Is_Named) {
    const struct {
        Json Button;
        Box_Button Pressed;
    } Cases[] = {
        {"No", Box_Button::No}, {1, Box_Button::No}, {"Yes", Box_Button::Yes}, {Json(), Box_Button::Yes}};
    for (const auto& Case : Cases) {
        std::vector<Box_Button> Told;
        Windows.Boxes.Show("Delete?", "", Box_Icon::None, Box_Buttons::Yes_No,
                           [&](Box_Button Pressed) { Told.push_back(Pressed); });
        const Json Boxes = Result("boxes");
        EXPECT_EQ(Boxes[0]["buttons"], (Json{"Yes", "No"}));
        Result("answer", {{"id", Boxes[0]["id"]}, {"button", Case.Button}});
        EXPECT_EQ(Told, std::vector<Box_Button>{Case.Pressed}) << Case.Button;
        ASSERT_TRUE(Windows.Boxes.Last_Answer);
        EXPECT_EQ(Windows.Boxes.Last_Answer->Pressed, Case.Pressed);
    }
}

TEST_F(Actions, File_Dialogs_Are_Answered) {
    std::vector<std::string> Chosen;
    for (const bool Save : {false, true})
        Windows.Ask_File({0, Save, "Setup", "*.ini", "ini", "/data/",
                          [&](const std::string& Path) { Chosen.push_back(Path); }});
    const Json Dialogs = Get("boxes");
    ASSERT_EQ(Dialogs.size(), 2u);
    EXPECT_EQ(Dialogs[0]["kind"], "open file");
    EXPECT_EQ(Dialogs[1]["kind"], "save file");
    EXPECT_EQ(Dialogs[1]["folder"], "/data/");
    Result("answer", {{"id", Dialogs[1]["id"]}, {"path", "/data/a.ini"}});
    Result("answer", {{"id", Dialogs[0]["id"]}});
    EXPECT_EQ(Chosen, Texts({"/data/a.ini", ""}));
    EXPECT_EQ(Result("boxes"), Json::array());
}

} // namespace
} // namespace brinewright
