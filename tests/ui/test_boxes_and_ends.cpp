// Message boxes, file dialogs, and how windows and the program are closed by hand.

#include "links/link_record_state.hpp"
#include "shell/state/shell_state.hpp"
#include "tests/ui/shown_desktop.hpp"

#include <QFileDialog>
#include <QMdiSubWindow>
#include <QMessageBox>

namespace brinewright {
namespace {

struct Boxes_And_Ends : testing::Test, Shown_Desktop {
    void SetUp() override {
        Open();
        Hold_Boxes = true;
    }
    void Tell(const std::string& Text, const std::string& Title = {}, Box_Icon Icon = Box_Icon::None) {
        Sim.Windows.Event([&] { Sim.Windows.Boxes.Show(Text, Title, Icon); });
        Settle();
    }
    int Boxes_Shown() const {
        int Count = 0;
        for (QWidget* W : QApplication::topLevelWidgets())
            if (qobject_cast<QMessageBox*>(W) && W->isVisible()) ++Count;
        return Count;
    }
};

TEST_F(Boxes_And_Ends, Boxes_Stand_One_At_A_Time_Until_Answered) {
    Tell("First <b>as it stands</b>", "Title", Box_Icon::Stop);
    Tell("Second \xB0");
    Tell("Third");
    ASSERT_EQ(Boxes_Shown(), 1);
    auto* Box = Top_Level<QMessageBox>();
    EXPECT_EQ(Box->text(), QStringLiteral("First <b>as it stands</b>"));
    EXPECT_EQ(Box->textFormat(), Qt::PlainText);
    EXPECT_EQ(Box->windowTitle(), QStringLiteral("Title"));
    EXPECT_EQ(Box->icon(), QMessageBox::Critical);
    EXPECT_EQ(Box->buttons().size(), 1);
    // Timers go on behind it, and nothing is sent.
    const auto Before = Left.size();
    Run_s(3);
    Settle();
    EXPECT_EQ(Left.size(), Before);
    EXPECT_GT(Sim.State.Of<Link_Record_State>().Dropped_By_Box, 0U);
    EXPECT_EQ(Top_Level<QMessageBox>(), Box);

    QTest::mouseClick(Box->button(QMessageBox::Ok), Qt::LeftButton);
    Settle();
    EXPECT_EQ(Sim.Windows.Boxes.Standing.size(), 2U);
    ASSERT_EQ(Boxes_Shown(), 1);
    EXPECT_EQ(Top_Level<QMessageBox>()->text(), QStringLiteral("Second \u00B0"));
    // Automation answers it; then a key the last one.
    Sim.Windows.Event([&] { Sim.Windows.Boxes.Answer(Sim.Windows.Boxes.Standing.front().Id); });
    Settle();
    ASSERT_EQ(Boxes_Shown(), 1);
    EXPECT_EQ(Top_Level<QMessageBox>()->text(), QStringLiteral("Third"));
    QTest::keyClick(Top_Level<QMessageBox>(), Qt::Key_Escape);
    Settle();
    EXPECT_EQ(Boxes_Shown(), 0);
    EXPECT_TRUE(Sim.Windows.Boxes.Standing.empty());
    Run_s(2);
    EXPECT_GT(Left.size(), Before);
}

TEST_F(Boxes_And_Ends, A_File_Dialog_Answers_And_Closes) {
    Simulator_State Other = Full_Setup();
    Other.Of<Shell_State>().Open_Form_Count = 1;
    Disk.Content["/data/other.ini"] = Write_Setup(Other, All_Windows());

    // Cancelled by hand.
    Click(Main_Window(Sim).Item("mnuFileOpen"));
    Settle();
    auto* Asking = Top_Level<QFileDialog>();
    ASSERT_TRUE(Asking);
    EXPECT_EQ(Asking->acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(Asking->nameFilters(), QStringList{"Brinewright setup files (*.ini)"});
    Asking->reject();
    Settle();
    EXPECT_TRUE(Sim.Windows.File_Dialogs.empty());
    EXPECT_TRUE(Open_One<frmPosition>(Sim, 2));

    // Answered by automation: the dialog goes, and what is done to it afterwards means nothing.
    Click(Main_Window(Sim).Item("mnuFileOpen"));
    Settle();
    ASSERT_TRUE(Top_Level<QFileDialog>());
    Answer_File("/data/other.ini");
    Settle();
    EXPECT_FALSE(Top_Level<QFileDialog>());
    EXPECT_TRUE(Open_One<frmPosition>(Sim, 1));
    EXPECT_FALSE(Open_One<frmPosition>(Sim, 2));

    // Two questions come one after the other.
    Click(Main_Window(Sim).Item("mnuFileSaveAs"));
    Click(Main_Window(Sim).Item("mnuFileOpen"));
    Settle();
    ASSERT_TRUE(Top_Level<QFileDialog>());
    EXPECT_EQ(Top_Level<QFileDialog>()->acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(Top_Level<QFileDialog>()->defaultSuffix(), QStringLiteral("ini"));
    Sim.Windows.Event([&] { Sim.Windows.Answer_File(Sim.Windows.File_Dialogs[0].Id, ""); });
    Settle();
    ASSERT_TRUE(Top_Level<QFileDialog>());
    EXPECT_EQ(Top_Level<QFileDialog>()->acceptMode(), QFileDialog::AcceptOpen);
    Top_Level<QFileDialog>()->reject();
    Settle();
    EXPECT_FALSE(Top_Level<QFileDialog>());
}

TEST_F(Boxes_And_Ends, The_Title_Button_Of_A_Child_Window_Unloads_Its_Form) {
    Open_Every_Window();
    std::vector<std::string> Paths;
    for (const auto& F : Sim.Windows.Forms)
        if (F != Sim.Main) Paths.push_back(F->Path());
    for (const std::string& Path : Paths) {
        if (!Sim.Windows.Find_Form(Path)) continue; // went with another one
        View->Window_Of(Path)->close();
        Settle();
        EXPECT_FALSE(Sim.Windows.Find_Form(Path)) << Path;
        EXPECT_FALSE(View->Window_Of(Path)) << Path;
    }
    EXPECT_EQ(Sim.Windows.Forms.size(), 1U);
    EXPECT_FALSE(*Main_Window(Sim).Item("mnuOpenForm", 1).Checked);
    EXPECT_FALSE(*Main_Window(Sim).Item("mnuTraffic").Checked);
}

// What is on the screen between the end of a form and the next look belongs to nobody: it can be painted and
// operated, and does nothing.
TEST_F(Boxes_And_Ends, A_Window_Whose_Form_Has_Gone_Is_Harmless) {
    Open_Every_Window();
    std::vector<QPointer<QWidget>> Windows;
    for (const auto& F : Sim.Windows.Forms)
        if (F != Sim.Main) Windows.push_back(View->Window_Of(F->Path()));
    Sim.Windows.Event([&] {
        const auto Open_Now = Sim.Windows.Forms;
        for (const auto& F : Open_Now)
            if (F != Sim.Main) Sim.Windows.Unload(*F);
    });
    for (const auto& Window : Windows) {
        ASSERT_TRUE(Window);
        Window->grab();
        for (QWidget* W : Window->findChildren<QWidget*>()) {
            // A list would open.
            if (W->focusPolicy() == Qt::NoFocus || qobject_cast<QComboBox*>(W)) continue;
            QTest::mouseClick(W, Qt::LeftButton);
            QTest::keyClick(W, Qt::Key_Right);
        }
    }
    Settle();
    for (const auto& Window : Windows) EXPECT_FALSE(Window);
}

TEST_F(Boxes_And_Ends, Closing_The_Main_Window_Saves_And_Ends) {
    auto* Child = qobject_cast<QMdiSubWindow*>(View->Window_Of("frmPosition[2]"));
    ASSERT_TRUE(Child);
    Child->move(60, 75);
    Child->resize(900, 600);
    QApplication::processEvents();
    View->close();
    EXPECT_TRUE(Sim.Ended);
    EXPECT_TRUE(World.Quitting);
    const Simulator_State S = Saved();
    ASSERT_EQ(S.Of<Shell_State>().Open_Form_Count, 2);
    EXPECT_EQ(S.Of<Shell_State>().Open_Form_List[2].Left, 60 * 15);
    EXPECT_EQ(S.Of<Shell_State>().Open_Form_List[2].Top, 75 * 15);
    EXPECT_EQ(S.Of<Shell_State>().Open_Form_List[2].Width, 900 * 15);
    EXPECT_EQ(S.Of<Shell_State>().Open_Form_List[2].Height, 600 * 15);
    // The window that nobody touched keeps what the setup said.
    EXPECT_EQ(S.Of<Shell_State>().Open_Form_List[1].Width, 20150);
    EXPECT_EQ(S.Of<Shell_State>().Open_Form_List[1].Height, 9330);
}

} // namespace
} // namespace brinewright
