// Every control of every window has one widget of its kind, which shows what the control holds and hands on
// what the user does.

#include "tests/ui/shown_desktop.hpp"
#include "ui/layout/layout_builder.hpp"

#include <QAction>
#include <QScrollBar>

#include <set>

namespace brinewright {
namespace {

// How often handlers ran, and what they were told. The handlers of the program are out of the way meanwhile,
// so that every control can be operated whatever it would do.
struct Heard {
    int Clicks = 0, Changes = 0, Entered = 0, Left = 0, Rows = 0;
    Mouse_Button Button_Down = Mouse_Button::Left;
};

void Listen(Control& C, Heard& H) {
    const Handler Clicked = [&H] { ++H.Clicks; }, Changed = [&H] { ++H.Changes; };
    switch (C.Kind) {
    case Control_Kind::Button: static_cast<Button&>(C).Click = Clicked; break;
    case Control_Kind::Check_Box: static_cast<Check_Box&>(C).Click = Clicked; break;
    case Control_Kind::Combo_Box: {
        auto& List = static_cast<Combo_Box&>(C);
        List.Click = Clicked;
        List.Change = Changed;
        List.Lost_Focus = [&H] { ++H.Left; };
        break;
    }
    case Control_Kind::Text_Box: {
        auto& Box = static_cast<Text_Box&>(C);
        Box.Change = Changed;
        Box.Got_Focus = [&H] { ++H.Entered; };
        Box.Lost_Focus = [&H] { ++H.Left; };
        break;
    }
    case Control_Kind::Scroll_Bar: static_cast<Scroll_Bar&>(C).Change = Changed; break;
    case Control_Kind::Option_Button:
        static_cast<Option_Button&>(C).Group.Click = [&H](int) { ++H.Clicks; };
        break;
    case Control_Kind::Label:
        static_cast<Label&>(C).Mouse_Down = [&H](Mouse_Button B) {
            ++H.Clicks;
            H.Button_Down = B;
        };
        break;
    case Control_Kind::Grid: static_cast<Grid&>(C).Row_Chosen = [&H] { ++H.Rows; }; break;
    case Control_Kind::Frame:
    case Control_Kind::Menu_Item:
    case Control_Kind::Timer: break;
    }
}

struct Bindings : testing::Test, Shown_Desktop {
    void Check_Common(Visible_Control& C, const QWidget& W) {
        const bool Enabled = C.Enabled, Visible = C.Visible;
        const std::string Tip = C.Tool_Tip;
        for (const bool On : {false, true}) {
            C.Enabled = On;
            C.Visible = !On;
            C.Tool_Tip = "Range " + std::to_string(On);
            View->Follow();
            EXPECT_EQ(W.isEnabledTo(W.parentWidget()), On);
            EXPECT_EQ(W.isHidden(), On);
            EXPECT_EQ(W.toolTip(), To_Screen(C.Tool_Tip));
        }
        C.Enabled = Enabled;
        C.Visible = Visible;
        C.Tool_Tip = Tip;
    }
    // Shows C for the time of a user's doing.
    void With_Usable(Visible_Control& C, const std::function<void()>& Work) {
        const bool Enabled = C.Enabled, Visible = C.Visible;
        C.Enabled = true;
        C.Visible = true;
        View->Follow();
        Work();
        C.Enabled = Enabled;
        C.Visible = Visible;
        View->Follow();
    }
    template <class Widget>
    void Check_Caption(Visible_Control& C, const Widget& W, QString (Widget::*Shown)() const) {
        const std::string Kept = C.Caption;
        C.Caption = std::string("\xB0 & caption");
        View->Follow();
        EXPECT_EQ((W.*Shown)(), To_Screen(C.Caption));
        C.Caption = Kept;
        View->Follow();
    }

    void Check(Button& C, QPushButton& W) {
        Check_Caption<QAbstractButton>(C, W, &QAbstractButton::text);
        QTest::mouseClick(&W, Qt::LeftButton);
        EXPECT_EQ(H.Clicks, 1);
    }
    void Check(Check_Box& C, QCheckBox& W) {
        Check_Caption<QAbstractButton>(C, W, &QAbstractButton::text);
        for (int Round = 0; Round < 2; ++Round) {
            C.Set_Value(!C.Value());
            View->Follow();
            EXPECT_EQ(W.isChecked(), C.Value());
        }
        EXPECT_EQ(H.Clicks, 2) << "by code alone";
        const bool Before = C.Value();
        QTest::mouseClick(&W, Qt::LeftButton, {}, QPoint(4, W.height() / 2));
        EXPECT_EQ(C.Value(), !Before);
        EXPECT_EQ(H.Clicks, 3);
        QTest::keyClick(&W, Qt::Key_Space);
        EXPECT_EQ(C.Value(), Before);
        EXPECT_EQ(H.Clicks, 4);
    }
    void Check(Combo_Box& C, QComboBox& W) {
        while (C.Items().size() < 2) C.Add_Item("entry " + std::to_string(C.Items().size()));
        for (const int Index : {1, 0}) {
            C.Set_List_Index(Index);
            View->Follow();
            EXPECT_EQ(W.count(), static_cast<int>(C.Items().size()));
            EXPECT_EQ(W.currentIndex(), Index);
            EXPECT_EQ(W.currentText(), To_Screen(C.Text()));
        }
        for (std::size_t I = 0; I < C.Items().size(); ++I)
            EXPECT_EQ(W.itemText(static_cast<int>(I)), To_Screen(C.Items()[I].Text));
        EXPECT_EQ(H.Clicks, 2) << "by code alone";
        QTest::keyClick(&W, Qt::Key_Down);
        EXPECT_EQ(C.List_Index(), 1);
        EXPECT_EQ(H.Clicks, 3);
        EXPECT_EQ(W.isEditable(), C.Free_Text);
        if (!C.Free_Text) return;
        H = {};
        W.lineEdit()->selectAll();
        QTest::keyClicks(W.lineEdit(), QStringLiteral("77"));
        EXPECT_EQ(C.Text(), "77");
        EXPECT_EQ(H.Changes, 2);
        W.clearFocus();
        C.Set_Text("78");
        View->Follow();
        EXPECT_EQ(W.currentText(), QStringLiteral("78"));
    }
    void Check(Text_Box& C, QWidget& W) {
        auto* Line = qobject_cast<QLineEdit*>(&W);
        const auto Shown = [&] {
            return Line ? Line->text() : static_cast<QPlainTextEdit&>(W).toPlainText();
        };
        for (const char* Text : {"\xC6 1", "second"}) {
            C.Set_Text(Text);
            View->Follow();
            EXPECT_EQ(Shown(), To_Screen(Text));
        }
        H = {};
        W.setFocus();
        EXPECT_EQ(H.Entered, 1);
        H = {}; // the list that was left has told so as well
        if (Line) Line->selectAll();
        QTest::keyClicks(&W, QStringLiteral("4\u00F8"));
        EXPECT_EQ(C.Text(), C.Read_Only ? "second" : "4\xF8");
        EXPECT_EQ(Shown(), To_Screen(C.Text()));
        EXPECT_EQ(H.Changes, C.Read_Only ? 0 : 2);
        if (C.Read_Only) return;
        EXPECT_EQ(H.Left, 0);
        QTest::keyClick(&W, Qt::Key_Return);
        EXPECT_GE(H.Left, 1) << "Enter takes the text over";
        Sim.Windows.Event([&] { Sim.Windows.Set_Focus(nullptr); });
        W.clearFocus();
    }
    void Check(Scroll_Bar& C, QSlider& W) {
        C.Set_Value(C.Min);
        for (const int Place : {*C.Max, (*C.Min + *C.Max) / 2}) {
            C.Set_Value(Place);
            View->Follow();
            EXPECT_EQ(W.value(), Place);
        }
        EXPECT_EQ(W.minimum(), std::min<int>(C.Min, C.Max));
        EXPECT_EQ(W.maximum(), std::max<int>(C.Min, C.Max));
        H = {};
        const int Before = C.Value();
        // Where the numbers grow downwards so do the keys.
        const bool Falls = W.invertedControls();
        EXPECT_EQ(Falls, W.orientation() == Qt::Vertical && *C.Min < *C.Max);
        QTest::keyClick(&W, Falls ? Qt::Key_Down : Qt::Key_Right);
        EXPECT_EQ(C.Value(), Before + C.Small_Change);
        QTest::keyClick(&W, Falls ? Qt::Key_PageDown : Qt::Key_PageUp);
        EXPECT_EQ(C.Value(), Before + C.Small_Change + C.Large_Change);
        EXPECT_EQ(H.Changes, 2);
    }
    void Check(Option_Button& C, QRadioButton& W) {
        Check_Caption<QAbstractButton>(C, W, &QAbstractButton::text);
        const int Other = C.Index == 0 ? 1 : 0;
        C.Group.Select(Other);
        View->Follow();
        EXPECT_FALSE(W.isChecked());
        H = {};
        QTest::mouseClick(&W, Qt::LeftButton, {}, QPoint(6, W.height() / 2));
        View->Follow();
        EXPECT_EQ(C.Group.Selected(), C.Index);
        EXPECT_TRUE(W.isChecked());
        EXPECT_FALSE(Shown_As<QRadioButton>(*C.Group.Buttons[static_cast<std::size_t>(Other)]).isChecked());
        EXPECT_EQ(H.Clicks, 1);
        // A click on the chosen one leaves it chosen.
        QTest::mouseClick(&W, Qt::LeftButton, {}, QPoint(6, W.height() / 2));
        EXPECT_TRUE(W.isChecked());
    }
    void Check(Label& C, QLabel& W) {
        Check_Caption<QLabel>(C, W, &QLabel::text);
        QTest::mouseClick(&W, Qt::RightButton);
        EXPECT_EQ(H.Button_Down, Mouse_Button::Right);
        QTest::mouseClick(&W, Qt::LeftButton);
        EXPECT_EQ(H.Button_Down, Mouse_Button::Left);
        EXPECT_EQ(H.Clicks, 2);
    }
    void Check(Frame& C, QGroupBox& W) { Check_Caption<QGroupBox>(C, W, &QGroupBox::title); }
    void Check(Grid& C, QTableView& W) {
        if (!C.Has_Source()) {
            C.Set_Rows(3);
            C.Set_Cell(2, 1, "\xB0 cell", Ink::Red);
        }
        View->Follow();
        const QAbstractItemModel& Model = *W.model();
        ASSERT_EQ(Model.rowCount(), C.Rows());
        ASSERT_GE(C.Rows(), 3);
        ASSERT_EQ(Model.columnCount(), static_cast<int>(C.Columns.size()));
        for (int Column = 0; Column < Model.columnCount(); ++Column) {
            EXPECT_EQ(Model.headerData(Column, Qt::Horizontal).toString(),
                      To_Screen(C.Columns[static_cast<std::size_t>(Column)]));
            EXPECT_EQ(Model.index(2, Column).data().toString(), To_Screen(C.At(2, Column).Text));
        }
        C.Select_Row(0);
        View->Follow();
        EXPECT_EQ(W.currentIndex().row(), 0);
        H = {};
        W.scrollToTop();
        QTest::mouseClick(W.viewport(), Qt::LeftButton, {}, W.visualRect(Model.index(1, 0)).center());
        EXPECT_EQ(C.Selected_Row(), 1);
        QTest::keyClick(&W, Qt::Key_Down);
        EXPECT_EQ(C.Selected_Row(), 2);
        EXPECT_EQ(H.Rows, 2);
    }

    template <class Of_Model, class Widget>
    void Check_As(Visible_Control& C, QWidget& W) {
        auto* Right = qobject_cast<Widget*>(&W);
        ASSERT_TRUE(Right) << "shown as " << W.metaObject()->className();
        Check_Common(C, W);
        With_Usable(C, [&] { Check(static_cast<Of_Model&>(C), *Right); });
    }
    void Check_Text_Box(Visible_Control& C, QWidget& W) {
        EXPECT_TRUE(qobject_cast<QLineEdit*>(&W) || qobject_cast<QPlainTextEdit*>(&W));
        Check_As<Text_Box, QWidget>(C, W);
    }

    void Check_Control(Control& C) {
        using Check_Kind = void (Bindings::*)(Visible_Control&, QWidget&);
        static const std::map<Control_Kind, Check_Kind> Kinds{
            {Control_Kind::Button, &Bindings::Check_As<Button, QPushButton>},
            {Control_Kind::Check_Box, &Bindings::Check_As<Check_Box, QCheckBox>},
            {Control_Kind::Combo_Box, &Bindings::Check_As<Combo_Box, QComboBox>},
            {Control_Kind::Text_Box, &Bindings::Check_Text_Box},
            {Control_Kind::Scroll_Bar, &Bindings::Check_As<Scroll_Bar, QSlider>},
            {Control_Kind::Option_Button, &Bindings::Check_As<Option_Button, QRadioButton>},
            {Control_Kind::Label, &Bindings::Check_As<Label, QLabel>},
            {Control_Kind::Frame, &Bindings::Check_As<Frame, QGroupBox>},
            {Control_Kind::Grid, &Bindings::Check_As<Grid, QTableView>},
        };
        SCOPED_TRACE(C.Owner.Path() + "." + C.Path());
        QWidget* W = Widget_Of(C);
        ASSERT_TRUE(W) << "has no widget, or more than one";
        Listen(C, H);
        H = {};
        (this->*Kinds.at(C.Kind))(static_cast<Visible_Control&>(C), *W);
    }

    // The number of its controls.
    std::size_t Check_Window(Form& F) {
        View->Window_Of(F.Path())->activateWindow();
        QApplication::processEvents();
        // Frames that the program hides would hide what stands in them.
        for (Control* C : F.Controls)
            if (C->Kind == Control_Kind::Frame) static_cast<Frame&>(*C).Visible = true;
        Heard Nothing;
        for (Control* C : F.Controls) Listen(*C, Nothing);
        std::size_t Count = 0;
        for (Control* C : F.Controls) {
            if (C->Kind == Control_Kind::Timer) continue;
            Check_Control(*C);
            ++Count;
        }
        // What follows must not find a focus in a window whose ears are gone.
        Sim.Windows.Event([&] { Sim.Windows.Set_Focus(nullptr); });
        for (Control* C : F.Controls) Listen(*C, H);
        return Count;
    }

    Heard H;
};

TEST_F(Bindings, Every_Control_Of_Every_Window_Has_A_Widget_Bound_Both_Ways) {
    Open();
    Open_Every_Window();
    std::set<std::string> Names;
    for (const auto& F : Sim.Windows.Forms) Names.insert(F->Path());
    ASSERT_EQ(Names,
              (std::set<std::string>{"frmMain",     "frmPosition[1]",    "frmPosition[2]",     "frmGNSS[1]",
                                     "frmGNSS[2]",  "frmGyro[1]",        "frmGyro[2]",         "frmLog[1]",
                                     "frmLog[2]",   "frmEchosounder[1]", "frmEchosounder[2]",  "frmWind[1]",
                                     "frmWind[2]",  "frmMonitor",        "frmExtendedMonitor", "frmTraffic",
                                     "frmTCPIP",    "frmIEC61162",       "frmGeoFormat",       "frmSetup",
                                     "frmProgress", "frmComportInfo"}));
    std::size_t Count = 0;
    for (const auto& F : Sim.Windows.Forms)
        if (F != Sim.Main) Count += Check_Window(*F);
    EXPECT_GT(Count, 900U);
}

TEST_F(Bindings, The_Windows_Of_Ship_Mode_Are_Bound_As_Well) {
    Open(Full_Setup("Ship"));
    Open_Every_Window();
    for (Form* F :
         {static_cast<Form*>(Open_One<frmShip>(Sim)), static_cast<Form*>(Open_One<frmShipSetup>(Sim)),
          static_cast<Form*>(Open_One<frmSetSOG>(Sim))}) {
        ASSERT_TRUE(F);
        EXPECT_GE(Check_Window(*F), 8U);
    }
}

TEST_F(Bindings, Menus_And_Status_Bar_Follow_And_Act) {
    Open();
    int Items = 0;
    for (Control* C : Sim.Main->Controls) {
        SCOPED_TRACE(C->Path());
        if (C->Kind == Control_Kind::Label) {
            auto& Panel = static_cast<Label&>(*C);
            Panel.Caption = std::string("COM \xB0");
            for (const bool On : {false, true}) {
                Panel.Visible = On;
                View->Follow();
                EXPECT_EQ(Shown_As<QLabel>(Panel).isVisible(), On);
            }
            EXPECT_EQ(Shown_As<QLabel>(Panel).text(), To_Screen(Panel.Caption));
            Panel.Visible = false; // there is no room for all of them
        }
        if (C->Kind != Control_Kind::Menu_Item) continue;
        ++Items;
        auto& Item = static_cast<Menu_Item&>(*C);
        const auto Found = View->findChildren<QAction*>(To_Screen(Item.Path()));
        ASSERT_EQ(Found.size(), 1);
        QAction& Action = *Found.front();
        EXPECT_EQ(Action.text(), To_Screen(Item.Caption));
        EXPECT_EQ(Action.isChecked(), *Item.Checked);
        for (const bool On : {false, true}) {
            Item.Enabled = On;
            Item.Visible = !On;
            Item.Checked = On;
            View->Follow();
            EXPECT_EQ(Action.isVisible(), !On);
            EXPECT_EQ(Action.isChecked(), On);
            Item.Visible = true;
            View->Follow();
            EXPECT_EQ(Action.isEnabled(), On);
        }
        int Clicks = 0;
        Item.Click = [&Clicks] { ++Clicks; };
        Action.trigger();
        EXPECT_EQ(Clicks, 1);
        EXPECT_TRUE(Action.isChecked()) << "the program decides over the check, not the click";
    }
    EXPECT_EQ(Items, 33);
}

// Also what is laid out elsewhere than in the box of the frame.
TEST_F(Bindings, What_Hides_A_Frame_Hides_What_Stands_In_It) {
    struct Framed_Form : Form {
        explicit Framed_Form(Desktop& Its_Desktop) : Form(Its_Desktop, "frmFramed", 0, Form_Kind::Child) {}
        Frame fraOuter{*this, "fraOuter"};
        Frame fraInner{fraOuter, "fraInner"};
        Text_Box txtInner{fraInner, "txtInner"};
    };
    const auto Window = std::make_shared<Framed_Form>(Sim.Windows);
    Form_View Seen(Sim, Window, Colours);
    const QLineEdit* Box = Seen.Make(Window->txtInner);
    for (const bool On : {true, false, true}) {
        Window->fraOuter.Visible = On;
        Seen.Refresh();
        EXPECT_EQ(Box->isVisibleTo(&Seen), On);
    }
}

TEST_F(Bindings, Every_Control_That_Can_Be_Operated_Tells_What_It_Is_For) {
    Open(Full_Setup("Ship"));
    Open_Every_Window();
    std::string Untold;
    for (const auto& F : Sim.Windows.Forms)
        for (const Control* C : F->Controls) {
            if (!C->Can_Focus() &&
                !(C->Kind == Control_Kind::Label && static_cast<const Label*>(C)->Mouse_Down))
                continue;
            // Nobody operates a log; it is read.
            if (C->Kind == Control_Kind::Text_Box && static_cast<const Text_Box*>(C)->Read_Only) continue;
            if (static_cast<const Visible_Control*>(C)->Tool_Tip->empty())
                Untold += F->Path() + "." + C->Path() + " ";
        }
    EXPECT_EQ(Untold, "");
}

} // namespace
} // namespace brinewright
