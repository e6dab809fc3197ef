// Every window is shown whole on a small bench display, at every scaling. Runs at 150 and 200 % as well.

#include "shell/state/shell_state.hpp"
#include "tests/ui/shown_desktop.hpp"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionGroupBox>

namespace brinewright {
namespace {

struct Layout : testing::Test, Shown_Desktop {
    bool At_Full_Size() const { return qEnvironmentVariable("QT_SCALE_FACTOR", "1").toDouble() <= 1; }
    // The rest of a sentence that is too long for its line is no loss: the monitors show it whole.
    static bool May_Be_Cut(const QWidget& W) { return W.objectName() == QStringLiteral("ticker"); }

    static bool Is_Cut(const QWidget& W) {
        if (const auto* Text = qobject_cast<const QLabel*>(&W)) {
            if (Text->text().isEmpty() || May_Be_Cut(W)) return false;
            if (Text->wordWrap()) return Text->height() < Text->heightForWidth(Text->width());
        } else if (const auto* Box = qobject_cast<const QGroupBox*>(&W)) {
            const int Room = Box->width() - 20; // the title begins 10 in and ends before the corner
            return Box->fontMetrics().horizontalAdvance(Box->title()) > Room;
        } else if (!qobject_cast<const QAbstractButton*>(&W)) {
            return false;
        }
        return W.width() < W.sizeHint().width() || W.height() < W.sizeHint().height();
    }
    void Expect_Whole(const std::string& Path) {
        const QWidget* Window = View->Window_Of(Path);
        ASSERT_TRUE(Window) << Path;
        for (const QWidget* W : Window->findChildren<QWidget*>())
            if (W->isVisibleTo(Window) && !W->inherits("QMdi::ControlContainer") &&
                W->window() == Window->window() && Is_Cut(*W))
                ADD_FAILURE() << Path << " cuts " << W->objectName().toStdString() << " of class "
                              << W->metaObject()->className() << ": " << W->width() << " x " << W->height()
                              << " of " << W->sizeHint().width() << " x " << W->sizeHint().height();
    }
};

struct In_Mode : Layout, testing::WithParamInterface<const char*> {};
INSTANTIATE_TEST_SUITE_P(Layout, In_Mode, testing::Values("Sensor", "Ship"),
                         [](const auto& Info) { return std::string(Info.param); });

TEST_P(In_Mode, No_Caption_Is_Cut) {
    Open(Full_Setup(GetParam()));
    Open_Every_Window();
    for (const auto& F : Sim.Windows.Forms)
        if (F != Sim.Main) Expect_Whole(F->Path());
}

TEST_P(In_Mode, Every_Window_Fits_The_Display) {
    if (!At_Full_Size()) GTEST_SKIP() << "a display of 1366 x 768 is meant at 100 %";
    Simulator_State Setup = Full_Setup(GetParam());
    Setup.Of<Shell_State>().Open_Form_Count = 0;
    Open(Setup);
    View->showMaximized();
    Settle();
    for (const int I : {1, 2}) Click(Main_Window(Sim).Item("mnuOpenForm", I));
    Open_Every_Window();
    EXPECT_LE(View->minimumSizeHint().width(), 1366);
    EXPECT_LE(View->minimumSizeHint().height(), 768 - 30);
    for (const auto& F : Sim.Windows.Forms) {
        if (F == Sim.Main) continue;
        QWidget* Window = View->Window_Of(F->Path());
        EXPECT_LE(Window->width(), 1366) << F->Path();
        EXPECT_LE(Window->height(), 768) << F->Path();
        const auto* Child = qobject_cast<QMdiSubWindow*>(Window);
        if (!Child) continue;
        EXPECT_TRUE(Child->mdiArea()->viewport()->rect().contains(Child->geometry())) << F->Path();
        const auto* Scroll = qobject_cast<QScrollArea*>(Child->widget());
        ASSERT_TRUE(Scroll);
        EXPECT_FALSE(Scroll->verticalScrollBar()->isVisible())
            << F->Path() << " wants " << Scroll->widget()->sizeHint().height() << " of " << Scroll->height();
        EXPECT_FALSE(Scroll->horizontalScrollBar()->isVisible()) << F->Path();
    }
}

// What is shown later may be longer than what the window opened with; a window that its user has made small
// stays so.
TEST_F(Layout, Windows_Grow_With_What_They_Show) {
    Open();
    Click(Main_Window(Sim).Item("mnuOpenForm", form_index::Wind_1));
    Settle();
    frmWind& W = *Open_One<frmWind>(Sim, 1);
    auto& Child = *qobject_cast<QMdiSubWindow*>(View->Window_Of("frmWind[1]"));
    const auto& Scroll = *qobject_cast<QScrollArea*>(Child.widget());
    const auto Show = [&](const char* Text) {
        W.lblShipSetup.Caption = std::string(Text);
        Settle();
        Settle();
    };
    const int Width = Child.width();
    Show("(Ship Setup, and how it came to be set there)");
    EXPECT_GT(Child.width(), Width);
    EXPECT_FALSE(Scroll.horizontalScrollBar()->isVisible());
    Expect_Whole("frmWind[1]");
    Child.resize(300, Child.height());
    Settle();
    W.Set_Caption("Wind gauge");
    Show("(Ship Setup)");
    EXPECT_EQ(Child.width(), 300);
    EXPECT_TRUE(Scroll.horizontalScrollBar()->isVisible());
}

// A larger window gives what it gains to lists and sentences, and nothing overlaps in it.
TEST_P(In_Mode, Windows_Grow_Without_Overlaps) {
    Open(Full_Setup(GetParam()));
    Open_Every_Window();
    for (const auto& F : Sim.Windows.Forms) {
        if (F == Sim.Main) continue;
        QWidget* Window = View->Window_Of(F->Path());
        Window->resize(Window->size() + QSize(200, 120));
        QApplication::processEvents();
        Expect_Whole(F->Path());
        std::vector<const QWidget*> Parts;
        for (const Control* C : F->Controls)
            if (C->Kind != Control_Kind::Timer)
                if (const QWidget* W = Widget_Of(*C); W && W->isVisibleTo(Window)) Parts.push_back(W);
        for (std::size_t I = 0; I < Parts.size(); ++I)
            for (std::size_t J = 0; J < I; ++J)
                if (Parts[I]->parentWidget() == Parts[J]->parentWidget()) {
                    EXPECT_FALSE(Parts[I]->geometry().intersects(Parts[J]->geometry()))
                        << F->Path() << ": " << Parts[I]->objectName().toStdString() << " over "
                        << Parts[J]->objectName().toStdString();
                }
    }
}

} // namespace
} // namespace brinewright
