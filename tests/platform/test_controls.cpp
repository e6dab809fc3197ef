#include "platform/desktop.hpp"
#include "platform/virtual_platform.hpp"

#include <gtest/gtest.h>

using namespace brinewright;

namespace {

struct Test_Form : Form {
    explicit Test_Form(Desktop& D) : Form(D, "frmTest", 1, Form_Kind::Child) {}
    Check_Box chkA{*this, "chkA", "A"};
    Combo_Box cmbA{*this, "cmbA"};
    Text_Box txtA{*this, "txtA"};
    Text_Box txtB{*this, "txtB"};
    Scroll_Bar scrA{*this, "scrA", 400, 0};
    Option_Group optA{*this, "optA", {"One", "Two"}};
    Menu_Item mnuA{Stand(*this).Element(3), "mnuA", "A", "Menu"};
    Button cmdA{*this, "cmdA", "A"};
    Grid hfgA{*this, "hfgA", {"X", "Y"}};
    Timer timer_A{*this, "timer_A"};
    Control_Array<Label, 1, 3> lblA{*this, "lblA", "text"};
    Frame fraOuter{*this, "fraOuter", "Outer"};
    Frame fraInner{fraOuter, "fraInner"};
    Text_Box txtInner{fraInner, "txtInner", "5", "In metres"};
    static constexpr Wording Rolls[] = {{"Roll", "In degrees"}, "Pitch"};
    Control_Array<Check_Box, 0, 1> chkOuter{fraOuter, "chkOuter", Rolls};
    Control_Array<Frame, 1, 2> fraPort{*this, "fraPort"};
    Control_Array<Button, 1, 2> cmdPort{[this](int I) { return Stand(fraPort[I]); }, "cmdPort", "Test",
                                        "Tests it"};
    Option_Group optUnit{fraOuter, "optUnit", {{"knots", "In knots"}, {"km/h", "In km/h"}}};
};

struct Controls_On_A_Form : testing::Test {
    Memory_Files Disk;
    Memory_Settings Settings;
    Virtual_Platform World{Disk, Settings};
    Timer_Queue Queue{World.Time()};
    Desktop Windows{Queue};
    std::shared_ptr<Test_Form> Shown = std::make_shared<Test_Form>(Windows);
    Test_Form& F = *Shown;
    std::string Log;

    Controls_On_A_Form() { Windows.Show(Shown); }
    Handler Note(const std::string& What) {
        return [this, What] { Log += What + ";"; };
    }
};

TEST_F(Controls_On_A_Form, A_row_of_a_grid_can_be_chosen) {
    F.hfgA.Row_Chosen = [this] { Log += std::to_string(F.hfgA.Selected_Row()) + ";"; };
    EXPECT_EQ(F.hfgA.Selected_Row(), -1);
    F.hfgA.Set_Rows(3);
    F.hfgA.Select_Row(2);
    F.hfgA.Select_Row(2); // also the row that stands chosen already
    F.hfgA.Select_Row(-1);
    Windows.User_Set(F.hfgA, std::int64_t{1});
    EXPECT_EQ(Log, "2;2;1;");
    EXPECT_THROW(F.hfgA.Select_Row(3), Run_Time_Error);
    EXPECT_THROW(F.hfgA.Select_Row(-2), Run_Time_Error);
    for (const Control_Value& Wrong : {Control_Value(std::int64_t{3}), Control_Value(std::int64_t{-1}),
                                       Control_Value(std::string("1")), Control_Value(true)})
        EXPECT_THROW(Windows.User_Set(F.hfgA, Wrong), User_Refusal);
    EXPECT_EQ(F.hfgA.Selected_Row(), 1);
    F.hfgA.Set_Rows(2);
    EXPECT_EQ(F.hfgA.Selected_Row(), 1);
    F.hfgA.Set_Rows(1); // the chosen row is gone
    EXPECT_EQ(F.hfgA.Selected_Row(), -1);
    EXPECT_EQ(Log, "2;2;1;");
}

TEST_F(Controls_On_A_Form, A_grid_asks_its_source_for_the_cells_that_are_looked_at) {
    int Asked = 0;
    F.hfgA.Set_Source(1'000'000, [&Asked](int Row, int Column) {
        ++Asked;
        return Grid::Cell{std::to_string(Row) + "/" + std::to_string(Column), Ink::Red};
    });
    EXPECT_EQ(F.hfgA.Rows(), 1'000'000);
    EXPECT_EQ(Asked, 0);
    EXPECT_EQ(F.hfgA.At(999'999, 1), (Grid::Cell{"999999/1", Ink::Red}));
    EXPECT_EQ(Asked, 1);
    EXPECT_THROW(F.hfgA.At(1'000'000, 0), Run_Time_Error);
    EXPECT_THROW(F.hfgA.Set_Cell(0, 0, "mine"), Run_Time_Error);

    F.hfgA.Row_Chosen = Note("chosen");
    F.hfgA.Select_Row(5);
    Log.clear();
    const std::uint64_t Before = F.hfgA.Revision;
    F.hfgA.Source_Moved(10, 4);
    EXPECT_GT(F.hfgA.Revision, Before); // views look again
    EXPECT_EQ(F.hfgA.Selected_Row(), 4);
    EXPECT_EQ(Log, "");
    EXPECT_THROW(F.hfgA.Source_Moved(10, 10), Run_Time_Error);
    F.hfgA.Set_Rows(2);
    EXPECT_EQ(std::get<std::string>(F.hfgA.Current()), "0/0\t0/1\n1/0\t1/1\n");

    F.hfgA.Set_Source(2, nullptr);
    EXPECT_THROW(F.hfgA.Source_Moved(2, 0), Run_Time_Error);
    F.hfgA.Set_Cell(1, 1, "mine");
    EXPECT_EQ(std::get<std::string>(F.hfgA.Current()), "\t\n\tmine\n");
}

TEST_F(Controls_On_A_Form, Setting_from_code_runs_handlers_by_the_rule_of_each_kind) {
    F.chkA.Click = Note("chk");
    F.chkA.Set_Value(true);
    F.chkA.Set_Value(true);
    EXPECT_EQ(Log, "chk;");

    Log.clear();
    F.cmbA.Click = Note("cmb");
    F.cmbA.Add_Item("0.1 sec", 7);
    F.cmbA.Add_Item(" 1 sec", 9);
    EXPECT_EQ(F.cmbA.List_Index(), -1);
    F.cmbA.Set_List_Index(1);
    F.cmbA.Set_List_Index(1); // also when the entry stands chosen already
    F.cmbA.Set_List_Index(-1);
    EXPECT_EQ(Log, "cmb;cmb;");
    EXPECT_EQ(F.cmbA.Text(), "");
    F.cmbA.Choose_Data(9);
    EXPECT_EQ(F.cmbA.List_Index(), 1);
    EXPECT_THROW(F.cmbA.Set_List_Index(2), Run_Time_Error);
    EXPECT_THROW(F.cmbA.Set_Text("free"), Run_Time_Error);
    EXPECT_EQ(F.cmbA.Text(), " 1 sec");

    Log.clear();
    F.scrA.Change = Note("scr");
    F.scrA.Set_Value(400); // Min stands at the top, above Max
    F.scrA.Set_Value(400);
    EXPECT_THROW(F.scrA.Set_Value(401), Run_Time_Error);
    EXPECT_EQ(F.scrA.Value(), 400);
    F.txtA.Change = Note("txt");
    F.txtA.Set_Text("x");
    F.txtA.Set_Text("x");
    F.optA.Click = [this](int I) { Log += "opt" + std::to_string(I) + ";"; };
    F.optA.Select(1);
    F.optA.Select(1);
    F.mnuA.Click = Note("mnu");
    F.mnuA.Checked = true; // a menu check never
    EXPECT_EQ(Log, "scr;txt;opt1;");
    EXPECT_FALSE(F.optA.Buttons[0]->Value());
}

TEST_F(Controls_On_A_Form, Focus_runs_each_handler_once_and_can_be_sent_back) {
    F.txtA.Got_Focus = Note("A got");
    F.txtA.Lost_Focus = Note("A lost");
    F.txtB.Got_Focus = Note("B got");
    Windows.User_Focus(F.txtA);
    Windows.User_Focus(F.txtA);
    Windows.User_Focus(F.txtB);
    EXPECT_EQ(Log, "A got;A lost;B got;");

    // A box that refuses to be left: the other one is never entered.
    Log.clear();
    F.txtB.Lost_Focus = [this] {
        Log += "B lost;";
        Windows.Set_Focus(&F.txtB);
    };
    Windows.User_Focus(F.txtA);
    EXPECT_EQ(Log, "B lost;B got;");
    EXPECT_EQ(Windows.Focus, &F.txtB);
}

TEST_F(Controls_On_A_Form, A_tick_does_not_write_where_the_user_types) {
    const auto Tick = [this](const char* Text) {
        Windows.Ticking = true;
        F.txtA.Set_Text(Text);
        Windows.Ticking = false;
        return F.txtA.Text();
    };
    F.txtA.Lost_Focus = [this] { Log += F.txtA.Text() + ";"; };
    Windows.User_Focus(F.txtA);
    const std::string Before = F.txtA.Text();
    EXPECT_EQ(Tick("1"), Before);
    Windows.User_Focus(F.txtB);
    EXPECT_EQ(Log, "1;") << "left alone it follows";
    Windows.User_Type(F.txtA, "07");
    EXPECT_EQ(Tick("2"), "07");
    Windows.User_Key(F, key::Escape);
    EXPECT_EQ(F.txtA.Text(), "2");
    Windows.User_Type(F.txtA, "08");
    Windows.User_Key(F, key::Enter);
    EXPECT_EQ(Log, "1;08;");
    EXPECT_EQ(Windows.Focus, &F.txtA);
    Windows.User_Type(F.txtA, "09");
    Windows.User_Click(F.mnuA);
    EXPECT_EQ(Log, "1;08;09;") << "a menu takes what is half typed";
}

TEST_F(Controls_On_A_Form, A_click_leaves_the_box_before_and_respects_what_that_did) {
    F.txtA.Lost_Focus = [this] { F.cmdA.Enabled = false; };
    F.cmdA.Click = Note("clicked");
    Windows.User_Focus(F.txtA);
    Windows.User_Click(F.cmdA);
    EXPECT_EQ(Log, "");
    EXPECT_THROW(Windows.User_Click(F.cmdA), User_Refusal);
    F.cmdA.Enabled = true;
    F.cmdA.Visible = false;
    EXPECT_THROW(Windows.User_Click(F.cmdA), User_Refusal);
    EXPECT_THROW(Windows.User_Click(F.timer_A), User_Refusal);
    F.cmdA.Visible = true;
    Windows.User_Click(F.cmdA);
    EXPECT_EQ(Log, "clicked;");
}

TEST_F(Controls_On_A_Form, What_hides_a_frame_hides_what_stands_in_it) {
    Visible_Control* const Inside[] = {&F.fraInner, &F.txtInner, &F.chkOuter[1], F.optUnit.Buttons[0].get()};
    for (const bool On : {false, true}) {
        F.fraOuter.Visible = On;
        for (const Visible_Control* C : Inside) {
            EXPECT_EQ(C->Shown(), On) << C->Path();
            EXPECT_EQ(Windows.Usable(*C), On) << C->Path();
            EXPECT_TRUE(*C->Visible);
        }
        EXPECT_TRUE(F.txtA.Shown());
    }
    F.fraPort[2].Visible = false;
    EXPECT_TRUE(F.cmdPort[1].Shown());
    EXPECT_FALSE(F.cmdPort[2].Shown());
}

TEST_F(Controls_On_A_Form, Captions_and_tips_stand_in_the_declaration) {
    const auto Says = [](const Visible_Control& C) { return *C.Caption + "/" + *C.Tool_Tip; };
    EXPECT_EQ(Says(F.txtInner), "/In metres");
    EXPECT_EQ(F.txtInner.Text(), "5");
    EXPECT_EQ(Says(F.chkOuter[0]), "Roll/In degrees");
    EXPECT_EQ(Says(F.chkOuter[1]), "Pitch/");
    EXPECT_EQ(Says(F.cmdPort[2]), "Test/Tests it");
    EXPECT_EQ(F.cmdPort[2].Path(), "cmdPort(2)");
    EXPECT_EQ(Says(*F.optUnit.Buttons[1]), "km/h/In km/h");
}

TEST_F(Controls_On_A_Form, Users_set_values_as_each_control_takes_them) {
    F.cmbA.Add_Item("0.1 sec");
    F.cmbA.Add_Item(" 1 sec");
    Windows.User_Set(F.cmbA, std::string("1 sec")); // the blank in front need not be typed
    EXPECT_EQ(F.cmbA.List_Index(), 1);
    Windows.User_Set(F.cmbA, std::int64_t{0});
    EXPECT_EQ(F.cmbA.List_Index(), 0);
    EXPECT_THROW(Windows.User_Set(F.cmbA, std::int64_t{2}), User_Refusal);
    EXPECT_THROW(Windows.User_Set(F.cmbA, std::string("3 sec")), User_Refusal);
    EXPECT_EQ(F.cmbA.List_Index(), 0);
    Windows.User_Set(F.scrA, std::int64_t{1000}); // a thumb stops at the end of its bar
    EXPECT_EQ(F.scrA.Value(), 400);
    EXPECT_THROW(Windows.User_Set(F.scrA, std::string("1")), User_Refusal);
    F.txtA.Lost_Focus = Note("left");
    Windows.User_Set(F.txtA, std::string("abc"));
    EXPECT_EQ(F.txtA.Text() + Log, "abcleft;");
    Windows.User_Set(F.chkA, true);
    EXPECT_TRUE(F.chkA.Value());
    EXPECT_THROW(Windows.User_Set(F.chkA, std::string("yes")), User_Refusal);
}

TEST_F(Controls_On_A_Form, Paths_find_controls_and_only_them) {
    EXPECT_EQ(F.Path(), "frmTest[1]");
    EXPECT_EQ(Windows.Find_Control("frmTest[1].lblA(2)"), &F.lblA[2]);
    EXPECT_EQ(Windows.Find_Control("frmTest[1].mnuA(3)"), &F.mnuA);
    EXPECT_EQ(Windows.Find_Control("frmTest[1].optA(1)"), F.optA.Buttons[1].get());
    for (const char* Wrong :
         {"frmTest[1].lblA", "frmTest[1].lblA(4)", "frmTest[1].lblA(2", "frmTest[1].lblA()",
          "frmTest[2].chkA", "frmTest[1]", "frmTest[1].", "", ".", "frmTest[1].chkA(1)"})
        EXPECT_EQ(Windows.Find_Control(Wrong), nullptr) << Wrong;
}

TEST_F(Controls_On_A_Form, What_a_handler_throws_is_told_in_a_box_and_told_once_while_it_stands) {
    F.cmdA.Click = [this] { F.lblA[4].Caption = std::string("beyond"); };
    Windows.Event([&] { Windows.User_Click(F.cmdA); });
    Windows.Event([&] { Windows.User_Click(F.cmdA); });
    ASSERT_EQ(Windows.Boxes.Standing.size(), 1U);
    EXPECT_EQ(Windows.Boxes.Standing.front().Text, "Subscript out of range");
    EXPECT_TRUE(Windows.Boxes.Answer(Windows.Boxes.Standing.front().Id));
    EXPECT_FALSE(Windows.Boxes.Answer(1));
    Windows.Event([&] { Windows.User_Click(F.cmdA); });
    EXPECT_EQ(Windows.Boxes.Standing.size(), 1U);
}

TEST_F(Controls_On_A_Form, A_window_that_unloads_itself_lives_to_the_end_of_the_event) {
    const std::weak_ptr<Form> Watch = Shown;
    F.timer_A.Tick = Note("tick");
    F.timer_A.Set_Interval(10);
    F.On_Unload = [this] {
        Log += "unload;";
        throw Run_Time_Error("list full");
    };
    F.cmdA.Click = [this] {
        try {
            Windows.Unload(F);
        } catch (const Run_Time_Error& Failure) {
            Log += Failure.what();
        }
        Windows.Unload(F); // nothing happens twice
        F.cmdA.Caption = std::string("still here");
    };
    Control& Button = F.cmdA;
    Shown.reset();
    Windows.Event([&] {
        Windows.User_Click(Button);
        EXPECT_FALSE(Watch.expired());
    });
    EXPECT_TRUE(Watch.expired());
    EXPECT_EQ(Log, "unload;list full");
    World.Run_Until(Queue, 1'000'000); // its timer is gone with it
    EXPECT_EQ(Log, "unload;list full");
}

TEST_F(Controls_On_A_Form, Views_see_each_change_once) {
    const std::uint64_t Before = F.Revision;
    F.lblA[1].Caption = std::string("new");
    EXPECT_GT(F.Revision, Before);
    const std::uint64_t After = F.Revision;
    F.lblA[1].Caption = std::string("new");
    F.scrA.Set_Value(0);
    EXPECT_EQ(F.Revision, After);
    F.hfgA.Set_Rows(2);
    F.hfgA.Set_Cell(1, 1, "cell", Ink::Red);
    EXPECT_GT(F.hfgA.Revision, After);
    EXPECT_EQ(std::get<std::string>(F.hfgA.Current()), "\t\n\tcell\n");
    EXPECT_THROW(F.hfgA.Set_Cell(2, 0, "x"), Run_Time_Error);
}

TEST_F(Controls_On_A_Form, File_questions_stand_until_they_are_answered) {
    std::string Chosen = "none yet";
    File_Dialog Question;
    Question.Title = "Open Setup File";
    Question.Answer = [&](const std::string& Path) { Chosen = Path; };
    Windows.Ask_File(Question);
    const std::int64_t Id = Windows.File_Dialogs.front().Id;
    EXPECT_FALSE(Windows.Answer_File(Id + 1, "/x"));
    EXPECT_TRUE(Windows.Answer_File(Id, "/x"));
    EXPECT_EQ(Chosen, "/x");
    EXPECT_FALSE(Windows.Answer_File(Id, "/y"));
}

} // namespace
