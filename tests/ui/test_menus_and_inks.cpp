// Menus and status bar, what hides with its frame, tool tips, and the inks of what is written.

#include "tests/ui/shown_desktop.hpp"
#include "ui/layout/layout_builder.hpp"

#include <QAction>
#include <QImage>

namespace brinewright {
namespace {

struct Menus_And_Inks : testing::Test, Shown_Desktop {
    // Whether some pixel of what is painted has the colour, but for the smoothing of thin letters.
    static bool Is_Written_In(QWidget& W, const QColor& Wanted) {
        const QImage Picture = W.grab().toImage();
        const auto Near = [](int A, int B) { return std::abs(A - B) <= 24; };
        for (int Y = 0; Y < Picture.height(); ++Y)
            for (int X = 0; X < Picture.width(); ++X)
                if (const QColor C = Picture.pixelColor(X, Y); Near(C.red(), Wanted.red()) &&
                                                               Near(C.green(), Wanted.green()) &&
                                                               Near(C.blue(), Wanted.blue()))
                    return true;
        return false;
    }
};

TEST_F(Menus_And_Inks, Menus_And_Status_Bar_Follow_And_Act) {
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
        EXPECT_EQ(Unmarked(Action.text()), To_Screen(Item.Caption).remove(QLatin1Char('&')));
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
    EXPECT_GT(Items, 32);
}

// Also what is laid out elsewhere than in the box of the frame.
TEST_F(Menus_And_Inks, What_Hides_A_Frame_Hides_What_Stands_In_It) {
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

TEST_F(Menus_And_Inks, Every_Control_That_Can_Be_Operated_Tells_What_It_Is_For) {
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

// Each ink that the program can choose shows the colour of its meaning, in labels and in grids.
TEST_F(Menus_And_Inks, Every_Ink_Shows_The_Colour_Of_Its_Meaning) {
    struct Inked_Form : Form {
        explicit Inked_Form(Desktop& Its_Desktop) : Form(Its_Desktop, "frmInked", 0, Form_Kind::Child) {}
        Label lblInked{*this, "lblInked", "EEEE____"};
        Grid hfgInked{*this, "hfgInked", {"Cell"}};
    };
    const struct {
        Ink Chosen;
        Token Of_Label, Of_Cell;
    } Rows[] = {{Ink::Normal, Token::Text, Token::Text},
                {Ink::Black, Token::Text, Token::Text},
                {Ink::Red, Token::Port, Token::Bad},
                {Ink::Green, Token::Starboard, Token::Good}};
    const auto Window = std::make_shared<Inked_Form>(Sim.Windows);
    Window->hfgInked.Set_Rows(1);
    for (const Palette_Kind Kind : {Palette_Kind::Dusk, Palette_Kind::Night, Palette_Kind::Day}) {
        Colours.Choose(Kind);
        Form_View Seen(Sim, Window, Colours);
        QLabel& Written = *Seen.Make(Window->lblInked);
        const QTableView& Table = *Seen.Make(Window->hfgInked);
        for (const auto& R : Rows) {
            Window->lblInked.Fore_Colour = R.Chosen;
            Window->hfgInked.Set_Cell(0, 0, "ink", R.Chosen);
            Seen.Refresh();
            EXPECT_TRUE(Is_Written_In(Written, Theme::Colour_In(Kind, R.Of_Label)));
            EXPECT_EQ(Table.model()->index(0, 0).data(Qt::ForegroundRole).value<QColor>(),
                      Theme::Colour_In(Kind, R.Of_Cell))
                << static_cast<int>(R.Chosen);
        }
    }
}

} // namespace
} // namespace brinewright
