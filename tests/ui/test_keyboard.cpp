// Focus, keys and mnemonics.

#include "tests/ui/shown_desktop.hpp"

#include <QAction>
#include <QDialog>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>

namespace brinewright {
namespace {

struct Keyboard : testing::Test, Shown_Desktop {
    void SetUp() override { Open(); }
    frmPosition& Window() { return *Open_One<frmPosition>(Sim, 1); }
    template <class Open_It>
    QWidget& Dialog_Of(const char* Path, Open_It Open_Dialog) {
        Open_Dialog();
        Settle();
        QWidget* Dialog = View->Window_Of(Path);
        if (!Dialog) throw std::logic_error(std::string(Path) + " is not open");
        Dialog->activateWindow();
        QApplication::processEvents();
        return *Dialog;
    }
};

TEST_F(Keyboard, A_Refused_Talker_Takes_The_Focus_Back) {
    Hold_Boxes = true;
    View->Window_Of("frmPosition[1]")->activateWindow();
    Choose_Menu("mnuOpenForm", 1);
    Settle();
    auto& Talker = Shown_As<QLineEdit>(Window().txtTalker);
    auto& Latitude = Shown_As<QLineEdit>(Window().txtLat);
    Talker.setFocus();
    Settle();
    EXPECT_EQ(Talker.selectedText(), QStringLiteral("GP")) << "the whole text is chosen on entering";
    QTest::keyClicks(&Talker, QStringLiteral("X"));
    Latitude.setFocus();
    EXPECT_EQ(QApplication::focusWidget(), &Talker);
    ASSERT_EQ(Take_Boxes(), (Texts{"NMEA Talker ID must be two characters. Try again!"}));
    Settle();
    EXPECT_EQ(Talker.text(), QStringLiteral("GP"));
    Sim.Windows.Event([&] { Sim.Windows.Boxes.Answer(Sim.Windows.Boxes.Last_Id); });
    Settle();
    View->activateWindow(); // as the window system does when a box goes
    Settle();
    EXPECT_EQ(QApplication::focusWidget(), &Talker);
    Talker.selectAll();
    QTest::keyClicks(&Talker, QStringLiteral("in"));
    EXPECT_EQ(GNSS().GNSS_Talker[1], "GP") << "not before it is left";
    Latitude.setFocus();
    EXPECT_EQ(QApplication::focusWidget(), &Latitude);
    EXPECT_EQ(GNSS().GNSS_Talker[1], "IN");
    Settle();
    EXPECT_EQ(Talker.text(), QStringLiteral("IN"));
    EXPECT_TRUE(Take_Boxes().empty());
}

TEST_F(Keyboard, Enter_Takes_A_Text_Over_And_Stays) {
    auto& Speed = Shown_As<QLineEdit>(Window().txtSOG);
    View->Window_Of("frmPosition[1]")->setFocus();
    Speed.setFocus();
    Speed.selectAll();
    QTest::keyClicks(&Speed, QStringLiteral("12.3"));
    EXPECT_EQ(GNSS().GNSS_SOG[1], 0.0F);
    QTest::keyClick(&Speed, Qt::Key_Return);
    Settle();
    EXPECT_EQ(GNSS().GNSS_SOG[1], 12.3F);
    EXPECT_EQ(QApplication::focusWidget(), &Speed);
    EXPECT_EQ(Shown_As<QSlider>(Window().scrSOG).value(), 123);
    EXPECT_EQ(Shown_As<QLabel>(Window().lblSOG).text(), QStringLiteral("12.3"));
}

TEST_F(Keyboard, The_Arrow_Keys_Steer) {
    Choose_Menu("mnuOpenForm", 1);
    Settle();
    QTest::mouseClick(Widget_Of(Window().cmdArrows), Qt::LeftButton);
    Settle();
    QWidget* Dummy = Widget_Of(Window().txtDummy);
    ASSERT_EQ(QApplication::focusWidget(), Dummy);
    const struct {
        Qt::Key Key;
        float SOG, COG;
    } Steps[] = {{Qt::Key_Up, 0.1F, 0},        {Qt::Key_Up, 0.2F, 0},    {Qt::Key_Down, 0.1F, 0},
                 {Qt::Key_Left, 0.1F, 359.9F}, {Qt::Key_Right, 0.1F, 0}, {Qt::Key_Right, 0.1F, 0.1F}};
    for (const auto& Step : Steps) {
        QTest::keyClick(QApplication::focusWidget(), Step.Key);
        EXPECT_FLOAT_EQ(GNSS().GNSS_SOG[1], Step.SOG);
        EXPECT_FLOAT_EQ(GNSS().GNSS_COG[1], Step.COG);
    }
    for (int Times = 0; Times < 401; ++Times) Sim.Windows.User_Key(Window(), key::Up);
    EXPECT_EQ(GNSS().GNSS_SOG[1], 40);
    GNSS().GNSS_SOG[1] = 0.1F;
    QTest::mouseClick(Widget_Of(Window().chkNoise), Qt::LeftButton, {}, QPoint(4, 8));
    Widget_Of(Window().chkNoise)->setFocus();
    Settle();
    EXPECT_TRUE(*Window().cmdArrows.Enabled);
    EXPECT_FALSE(Dummy->isVisible());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    EXPECT_FLOAT_EQ(GNSS().GNSS_SOG[1], 0.1F) << "the keys are the controls' own again";
}

// Every modifier with every key, from throttle -20 and rudder 30 (percent and tenths of a degree per minute).
TEST(Ship_Keyboard, Keys_With_Their_Modifiers_Reach_The_Ship) {
    Shown_Desktop D;
    D.Open(Shown_Desktop::Full_Setup("Ship"));
    frmShip& W = *Open_One<frmShip>(D.Sim);
    D.View->Window_Of("frmShip")->activateWindow();
    QTest::mouseClick(D.Widget_Of(W.cmdArrows), Qt::LeftButton);
    D.Settle();
    ASSERT_EQ(QApplication::focusWidget(), D.Widget_Of(W.txtDummy));
    EXPECT_TRUE(D.Widget_Of(W.frameArrows)->isVisible());
    const int Port_End = W.sldRudder.Min;
    const struct {
        Qt::Key Key;
        Qt::KeyboardModifier Held;
        int Throttle, Rudder;
    } Cases[] = {
        {Qt::Key_Up, Qt::NoModifier, -21, 30},
        {Qt::Key_Down, Qt::NoModifier, -19, 30},
        {Qt::Key_PageUp, Qt::NoModifier, -30, 30},
        {Qt::Key_PageDown, Qt::NoModifier, -10, 30},
        {Qt::Key_Left, Qt::NoModifier, -20, 29},
        {Qt::Key_Right, Qt::NoModifier, -20, 31},
        {Qt::Key_Up, Qt::ShiftModifier, -30, 30},
        {Qt::Key_Up, Qt::ControlModifier, -100, 30},
        {Qt::Key_Left, Qt::ControlModifier, -20, Port_End},
        {Qt::Key_Up, Qt::AltModifier, 0, 30},
        {Qt::Key_Right, Qt::AltModifier, -20, 0},
    };
    for (const auto& C : Cases) {
        W.sldThrottle.Set_Value(-20);
        W.sldRudder.Set_Value(30);
        QTest::keyClick(QApplication::focusWidget(), C.Key, C.Held);
        EXPECT_EQ(W.sldThrottle.Value(), C.Throttle) << C.Key << " with " << C.Held;
        EXPECT_EQ(W.sldRudder.Value(), C.Rudder) << C.Key << " with " << C.Held;
        D.Settle();
        EXPECT_EQ(QApplication::focusWidget(), D.Widget_Of(W.txtDummy));
    }
    D.Widget_Of(W.cmbSOGNoise)->setFocus();
    D.Settle();
    EXPECT_FALSE(D.Widget_Of(W.frameArrows)->isVisible());
    EXPECT_TRUE(D.Widget_Of(W.cmdSetSOG)->isVisible());
    const int Before = W.sldThrottle.Value();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    EXPECT_EQ(W.sldThrottle.Value(), Before) << "the keys are the controls' own again";
}

TEST(Ship_Window, Latches_And_Speed_Show_By_Colour_And_Text) {
    Shown_Desktop D;
    D.Open(Shown_Desktop::Full_Setup("Ship"));
    frmShip& W = *Open_One<frmShip>(D.Sim);
    const struct {
        Button& Key;
        Label& Lamp;
        const char* Text;
    } Latches[] = {{W.cmdFreeze, W.lblFreeze, "FREEZED"}, {W.cmdPause, W.lblPause, "TX PAUSED"}};
    for (const auto& L : Latches) {
        QWidget *Key = D.Widget_Of(L.Key), *Lamp = D.Widget_Of(L.Lamp);
        EXPECT_FALSE(Lamp->isVisible());
        EXPECT_NE(Key->property("state").toString(), QStringLiteral("warn"));
        QTest::mouseClick(Key, Qt::LeftButton);
        D.Settle();
        EXPECT_TRUE(Lamp->isVisible());
        EXPECT_EQ(static_cast<QLabel*>(Lamp)->text(), QString::fromLatin1(L.Text));
        EXPECT_EQ(Key->property("state").toString(), QStringLiteral("warn"));
        QTest::mouseClick(Key, Qt::LeftButton);
        D.Settle();
        EXPECT_FALSE(Lamp->isVisible());
        EXPECT_NE(Key->property("state").toString(), QStringLiteral("warn"));
    }
    EXPECT_EQ(D.Shown_As<QLabel>(W.lblSOG).text(), QStringLiteral("12.4 knot"));
    QTest::mouseClick(D.Widget_Of(W.cmdZero), Qt::LeftButton);
    D.Settle();
    EXPECT_EQ(D.Shown_As<QLabel>(W.lblSOG).text(), QStringLiteral("0.0 knot"));
    EXPECT_EQ(D.Shown_As<QSlider>(W.sldThrottle).value(), 0);
}

TEST_F(Keyboard, Enter_Presses_OK_And_Escape_Cancel) {
    const auto Open_Format = [&] { Choose_Menu("mnuSetupLatLonFormat"); };
    QWidget* Dialog = &Dialog_Of("frmGeoFormat", Open_Format);
    QTest::mouseClick(Widget_Of(*Open_One<frmGeoFormat>(Sim)->optFormat.Buttons[1]), Qt::LeftButton, {},
                      QPoint(6, 8));
    QTest::keyClick(Dialog, Qt::Key_Escape);
    Settle();
    EXPECT_FALSE(Open_One<frmGeoFormat>(Sim));
    EXPECT_EQ(Shell().LatLon_Format, 0);
    EXPECT_FALSE(View->Window_Of("frmGeoFormat"));

    Dialog = &Dialog_Of("frmGeoFormat", Open_Format);
    QTest::mouseClick(Widget_Of(*Open_One<frmGeoFormat>(Sim)->optFormat.Buttons[1]), Qt::LeftButton, {},
                      QPoint(6, 8));
    QTest::keyClick(Dialog, Qt::Key_Return);
    EXPECT_FALSE(Open_One<frmGeoFormat>(Sim));
    EXPECT_EQ(Shell().LatLon_Format, 1);

    // From within a text: what is typed is taken over before OK.
    Dialog_Of("frmIEC61162", [&] { Choose_Menu("mnuOptionIEC450"); });
    auto& Source = Shown_As<QLineEdit>(Open_One<frmIEC61162>(Sim)->txtSourceId);
    Source.setFocus();
    Settle();
    QTest::keyClicks(&Source, QStringLiteral("GP0001"));
    QTest::keyClick(&Source, Qt::Key_Return);
    EXPECT_FALSE(Open_One<frmIEC61162>(Sim));
    EXPECT_EQ(IEC450().s_Tag, "GP0001") << "the whole text was chosen on entering, and typed over";
    Settle();

    // A button that has the focus is pressed by Enter itself.
    Dialog_Of("frmIEC61162", [&] { Choose_Menu("mnuOptionIEC450"); });
    Open_One<frmIEC61162>(Sim)->txtSourceId.Set_Text("other");
    QWidget* Cancel = Widget_Of(Open_One<frmIEC61162>(Sim)->cmdCancel);
    Cancel->setFocus();
    QTest::keyClick(Cancel, Qt::Key_Return);
    EXPECT_FALSE(Open_One<frmIEC61162>(Sim));
    EXPECT_EQ(IEC450().s_Tag, "GP0001");
}

TEST_F(Keyboard, Every_Menu_Has_A_Letter_Of_Its_Own) {
    QStringList Titles;
    QString Letters;
    for (const QAction* Menu : View->menuBar()->actions()) {
        Titles << Menu->text().remove(QLatin1Char('&'));
        Letters += Menu->text().section(QLatin1Char('&'), 1).left(1);
        QString Inner;
        for (const QAction* Item : Menu->menu()->actions())
            Inner += Item->text().section(QLatin1Char('&'), 1).left(1).toUpper();
        EXPECT_EQ(std::set<QChar>(Inner.begin(), Inner.end()).size(), static_cast<std::size_t>(Inner.size()))
            << Menu->text().toStdString();
    }
    EXPECT_EQ(Titles, (QStringList{"File", "Mode", "Setup", "View", "Window", "Options", "Help"}));
    EXPECT_EQ(Letters, QStringLiteral("FMSVWOH"));
    // File, then E&xit.
    QTest::keyClick(View->menuBar(), Qt::Key_F, Qt::AltModifier);
    QMenu* File = View->menuBar()->actions().front()->menu();
    File->popup(QPoint(0, 0));
    QTest::keyClick(File, Qt::Key_X);
    EXPECT_TRUE(Sim.Ended);
}

// Tab goes on to the right or down among what stands together, never back up to the left, and comes by
// everything that can take the focus.
struct Tab_Order : testing::TestWithParam<const char*>, Shown_Desktop {};
INSTANTIATE_TEST_SUITE_P(Keyboard, Tab_Order, testing::Values("Sensor", "Ship"),
                         [](const auto& Info) { return std::string(Info.param); });
TEST_P(Tab_Order, Follows_The_Reading_Order) {
    Open(Full_Setup(GetParam()));
    Open_Every_Window();
    for (const auto& F : Sim.Windows.Forms) {
        if (F == Sim.Main) continue;
        QWidget* Window = View->Window_Of(F->Path());
        std::set<QWidget*> Wanted;
        for (const Control* C : F->Controls) {
            QWidget* W = C->Kind == Control_Kind::Timer ? nullptr : Widget_Of(*C);
            if (W && C->Can_Focus() && W->isVisibleTo(Window) && W->focusPolicy() & Qt::TabFocus)
                Wanted.insert(W);
        }
        if (Wanted.empty()) continue;
        QWidget* First = nullptr;
        // The chain is a ring; it is read from the view on.
        QWidget* Contents = Window->findChild<Form_View*>();
        std::vector<QWidget*> Chain;
        for (QWidget* W = Contents->nextInFocusChain(); W != Contents; W = W->nextInFocusChain())
            if (Wanted.contains(W)) Chain.push_back(W);
        EXPECT_EQ(Chain.size(), Wanted.size()) << F->Path();
        for (QWidget* Next : Chain) {
            if (First && First->parentWidget() == Next->parentWidget()) {
                const QRect A = First->geometry(), B = Next->geometry();
                EXPECT_TRUE(B.left() > A.center().x() || B.top() > A.center().y())
                    << F->Path() << ": " << First->objectName().toStdString() << " then "
                    << Next->objectName().toStdString();
            }
            First = Next;
        }
    }
}

// The keys and clicks of the toolkit itself. Every stop of Tab is a control, both ways round.
TEST_P(Tab_Order, The_Keyboard_Is_Where_The_Focus_Is) {
    Open(Full_Setup(GetParam()));
    Open_Every_Window();
    const auto Windows = Sim.Windows.Forms;
    const Form* Now = nullptr;
    const auto Expect_It = [&](const char* After) {
        const QWidget* Has_It = QApplication::focusWidget();
        ASSERT_TRUE(Has_It && Sim.Windows.Focus) << Now->Path() << " after " << After;
        EXPECT_EQ(Has_It, Widget_Of(*Sim.Windows.Focus))
            << Now->Path() << " after " << After << " at " << Has_It->objectName().toStdString();
    };
    for (const auto& F : Windows) {
        if (F == Sim.Main) continue;
        Now = F.get();
        QWidget* Window = View->Window_Of(F->Path());
        for (Control* C : F->Controls)
            if (C->Kind == Control_Kind::Button) static_cast<Button*>(C)->Click = nullptr;
        Window->activateWindow(); // away from the dialogs, which bring back what was active before them
        Settle();
        Sim.Windows.Event([&] { Sim.Windows.Activate(*F); });
        Settle();
        std::set<QWidget*> Stops;
        for (const Control* C : F->Controls) {
            QWidget* W = C->Kind == Control_Kind::Timer ? nullptr : Widget_Of(*C);
            if (W && C->Can_Focus() && W->isVisible() && W->isEnabled() && W->focusPolicy() & Qt::TabFocus)
                Stops.insert(W);
        }
        if (Stops.empty()) continue;
        for (const bool Back : {false, true}) {
            std::set<QWidget*> Seen;
            for (std::size_t I = 0; I < Stops.size(); ++I) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab,
                                Back ? Qt::ShiftModifier : Qt::NoModifier);
                Expect_It(Back ? "Shift+Tab" : "Tab");
                Settle();
                Seen.insert(QApplication::focusWidget());
            }
            EXPECT_EQ(Seen.size(), Stops.size()) << F->Path();
        }
        for (const Control* C : F->Controls) {
            QWidget* W = C->Kind == Control_Kind::Timer ? nullptr : Widget_Of(*C);
            if (!W || !C->Can_Focus() || !W->isVisible() || !W->isEnabled() || W->width() < 2) continue;
            QWidget* Inner = W->childAt(W->rect().center());
            QTest::mouseClick(Inner ? Inner : W, Qt::LeftButton, {}, QPoint(5, 5));
            if (auto* List = qobject_cast<QComboBox*>(W)) List->hidePopup();
            Window->activateWindow(); // as the window system does when a list goes
            Settle();
            Expect_It("a click");
        }
    }
}

// Typed at once after the dialog has opened, and over what stands there.
TEST(Ship_Dialogs, The_First_Character_Counts) {
    Shown_Desktop D;
    D.Open(Shown_Desktop::Full_Setup("Ship"));
    const auto Type = [&](const char* Path, const char* Text, Qt::Key Last) {
        D.View->Window_Of(Path)->activateWindow();
        QApplication::processEvents();
        QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(Text));
        QTest::keyClick(QApplication::focusWidget(), Last);
    };
    D.Click(Main_Window(D.Sim).Item("mnuSetupShip"));
    D.Settle();
    Type("frmShipSetup", "12 30 N", Qt::Key_Tab);
    EXPECT_EQ(Open_One<frmShipSetup>(D.Sim)->txtStartLat.Text(), "12\xB0 30.0000' N");
    D.Sim.Windows.Event([&] { D.Sim.Windows.Unload(*Open_One<frmShipSetup>(D.Sim)); });
    D.Settle();
    D.Click(Open_One<frmShip>(D.Sim)->cmdSetSOG);
    D.Settle();
    const float Before_kn = D.Sim.State.Of<Navdata_State>().Nav_SOG;
    Type("frmSetSOG", "abc", Qt::Key_Return);
    frmSetSOG* Dialog = Open_One<frmSetSOG>(D.Sim);
    ASSERT_TRUE(Dialog) << "it does not close over what it refused";
    EXPECT_EQ(*Dialog->txtSOG.Refusal, "\"abc\" is no number");
    EXPECT_EQ(D.Sim.State.Of<Navdata_State>().Nav_SOG, Before_kn);
    Type("frmSetSOG", "8.5", Qt::Key_Return);
    EXPECT_NEAR(D.Sim.State.Of<Navdata_State>().Nav_SOG, 8.5, 0.5) << "to a whole percent of the throttle";
}

} // namespace
} // namespace brinewright
