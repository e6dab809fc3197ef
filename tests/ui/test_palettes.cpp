// What colours promise, and the sky plot at fixed values.

#include "tests/ui/shown_desktop.hpp"
#include "ui/instruments/sky_plot.hpp"

#include <QAction>
#include <QImage>

namespace brinewright {
namespace {

constexpr Palette_Kind All_Palettes[] = {Palette_Kind::Day, Palette_Kind::Dusk, Palette_Kind::Night};

// Relative luminance and contrast as WCAG 2 defines them.
double Luminance(const QColor& C) {
    const auto Linear = [](double V) {
        return V <= 0.04045 ? V / 12.92 : std::pow((V + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * Linear(C.redF()) + 0.7152 * Linear(C.greenF()) + 0.0722 * Linear(C.blueF());
}
double Contrast(const QColor& A, const QColor& B) {
    const double Light = std::max(Luminance(A), Luminance(B)), Dark = std::min(Luminance(A), Luminance(B));
    return (Light + 0.05) / (Dark + 0.05);
}

TEST(Palettes, Text_And_Readouts_Stand_Out) {
    const std::pair<Token, const char*> Inks[] = {{Token::Text, "text"},    {Token::Readout, "readout"},
                                                  {Token::Dim_Text, "dim"}, {Token::Good, "good"},
                                                  {Token::Warn, "warn"},    {Token::Bad, "bad"}};
    const std::pair<Token, const char*> Grounds[] = {
        {Token::Window, "window"}, {Token::Panel, "panel"}, {Token::Field, "field"}};
    for (const Palette_Kind Kind : All_Palettes)
        for (const auto& [Ink, Name] : Inks)
            for (const auto& [Ground, Ground_Name] : Grounds) {
                const double Ratio = Contrast(Theme::Colour_In(Kind, Ink), Theme::Colour_In(Kind, Ground));
                const std::string What = std::string(Palette_Names[static_cast<std::size_t>(Kind)]) + " " +
                                         Name + " on " + Ground_Name;
                EXPECT_GE(Ratio, Kind == Palette_Kind::Night ? 3.0 : 4.5) << What;
            }
}

TEST(Palettes, Night_Has_No_White_And_No_Blue) {
    const double Readout = Luminance(Theme::Colour_In(Palette_Kind::Night, Token::Readout));
    for (int I = 0; I < Token_Count; ++I) {
        const QColor C = Theme::Colour_In(Palette_Kind::Night, static_cast<Token>(I));
        EXPECT_LE(Luminance(C), Readout) << I;
        // Near black everything is grey; a colour that can be told is led by red or green.
        if (C.value() > 0x46) {
            EXPECT_LT(C.blue(), std::max(C.red(), C.green())) << I;
        }
    }
}

// Of the painted windows too, whatever the toolkit brings along.
void Expect_Dark(const char* Mode) {
    Shown_Desktop D;
    D.Settings.Values["Palette"] = "Night";
    D.View.reset();
    D.View.emplace(D.Sim, D.Colours);
    D.Open(Shown_Desktop::Full_Setup(Mode));
    D.Open_Every_Window();
    const double Readout = Luminance(Theme::Colour_In(Palette_Kind::Night, Token::Readout));
    for (const auto& F : D.Sim.Windows.Forms) {
        const QImage Picture =
            D.View->Window_Of(F->Path())->grab().toImage().convertToFormat(QImage::Format_RGB32);
        int Bright = 0, Blue = 0;
        for (int Y = 0; Y < Picture.height(); ++Y)
            for (int X = 0; X < Picture.width(); ++X) {
                const QColor C = Picture.pixelColor(X, Y);
                if (Luminance(C) > Readout * 1.02) ++Bright;
                if (C.blue() > 0x50 && C.blue() > 1.2 * std::max(C.red(), C.green())) ++Blue;
            }
        EXPECT_EQ(Bright, 0) << F->Path();
        EXPECT_EQ(Blue, 0) << F->Path();
    }
    D.Colours.Choose(Palette_Kind::Day);
}
TEST(Palettes, No_Window_Is_Bright_At_Night) {
    Expect_Dark("Sensor");
    Expect_Dark("Ship");
}

TEST(Palettes, The_Chosen_One_Is_Kept) {
    Shown_Desktop D;
    D.Open();
    EXPECT_EQ(D.Colours.Chosen(), Palette_Kind::Day);
    const auto Choose = [&D](const char* Name) {
        for (QAction* A : D.View->findChildren<QAction*>())
            if (A->text().remove(QLatin1Char('&')) == QLatin1String(Name)) A->trigger();
        D.Settle();
    };
    Choose("Night");
    EXPECT_EQ(D.Colours.Chosen(), Palette_Kind::Night);
    EXPECT_EQ(D.Settings.Values["Palette"], "Night");
    const QColor Painted = D.View->palette().color(QPalette::WindowText);
    EXPECT_EQ(Painted, Theme::Colour_In(Palette_Kind::Night, Token::Text));
    // A second start finds it again.
    D.View.reset();
    Theme Later(*qApp);
    D.View.emplace(D.Sim, Later);
    EXPECT_EQ(Later.Chosen(), Palette_Kind::Night);
    D.Settings.Values["Palette"] = "Purple"; // somebody edited the settings
    D.View.reset();
    Theme Last(*qApp);
    D.View.emplace(D.Sim, Last);
    EXPECT_EQ(Last.Chosen(), Palette_Kind::Day);
}

// 240 x 200, so the horizon is a circle of 84 pixels round (120, 100): half the height less 16 for the
// letters.
TEST(Sky, Satellites_Stand_Where_They_Are_In_The_Colour_Of_Their_Strength) {
    const std::vector<Sky_Mark> Marks{
        {{}, 45, 90, 30, true},   // half way up in the east, strong, in use
        {{}, 45, 180, 15, false}, // in the south, fair, in view only
        {{}, 0, 270, 5, true},    // on the western horizon, weak
        {{}, 90, 10, 40, false},  // overhead, whatever its azimuth
    };
    constexpr double Centre_X = 120, Centre_Y = 100, Radius = 84, Mark = Radius / 9;
    for (const Palette_Kind Kind : All_Palettes)
        for (const int Scale : {1, 2}) {
            SCOPED_TRACE(std::string(Palette_Names[static_cast<std::size_t>(Kind)]) + " at scale " +
                         std::to_string(Scale));
            QImage Picture(240 * Scale, 200 * Scale, QImage::Format_RGB32);
            Picture.setDevicePixelRatio(Scale);
            Picture.fill(Theme::Colour_In(Kind, Token::Panel));
            {
                QPainter Painter(&Picture);
                Paint_Sky(Painter, QRectF(0, 0, 240, 200), Marks, Kind);
            }
            const auto At = [&](double X, double Y) {
                return Picture.pixelColor(static_cast<int>(X * Scale), static_cast<int>(Y * Scale));
            };
            const auto In = [Kind](Token Meaning) { return Theme::Colour_In(Kind, Meaning); };
            const double East = Centre_X + Radius / 2, South = Centre_Y + Radius / 2,
                         West = Centre_X - Radius;
            EXPECT_EQ(At(East, Centre_Y), In(Token::Good)) << "in use is filled";
            EXPECT_EQ(At(East + Mark / 2, Centre_Y), In(Token::Good));
            EXPECT_EQ(At(Centre_X + 3, South + 3), In(Token::Field)) << "in view only is open";
            EXPECT_EQ(At(Centre_X, South + Mark), In(Token::Warn)) << "its ring";
            EXPECT_EQ(At(West, Centre_Y), In(Token::Bad));
            EXPECT_EQ(At(Centre_X + 3, Centre_Y + 3), In(Token::Field));
            EXPECT_EQ(At(Centre_X, Centre_Y - Mark), In(Token::Good));
            EXPECT_EQ(At(2, 2), In(Token::Panel)) << "nothing outside the horizon";
            EXPECT_EQ(At(Centre_X - 20, Centre_Y - 15), In(Token::Field)) << "nothing where nothing is";
        }
}

} // namespace
} // namespace brinewright
