// The painted instruments at fixed values: what they show stands where it must, in the colour that says it.

#include "tests/ui/shown_desktop.hpp"
#include "ui/instruments/attitude_indicator.hpp"
#include "ui/instruments/compass_rose.hpp"
#include "ui/instruments/rate_of_turn_bar.hpp"
#include "ui/instruments/slider_scale.hpp"
#include "ui/instruments/wind_dial.hpp"

#include <QImage>
#include <QStyle>
#include <QStyleOptionSlider>

#include <cstdlib>
#include <numbers>

namespace brinewright {
namespace {

// In every palette, at 100 and 200 %.
const struct Way {
    Palette_Kind Kind;
    int Scale;
} Ways[] = {{Palette_Kind::Day, 1},
            {Palette_Kind::Dusk, 1},
            {Palette_Kind::Night, 1},
            {Palette_Kind::Day, 2},
            {Palette_Kind::Night, 2}};

QPointF Polar(QPointF Centre, double Radius, double Angle_deg) {
    const double Angle = Angle_deg * std::numbers::pi / 180;
    return {Centre.x() + Radius * std::sin(Angle), Centre.y() - Radius * std::cos(Angle)};
}

struct Picture {
    template <class Paint>
    Picture(const Way& How, int Width, int Height, Paint Paint_It)
        : Kind(How.Kind), Scale(How.Scale), Image(Width * Scale, Height * Scale, QImage::Format_RGB32) {
        Image.setDevicePixelRatio(Scale);
        Image.fill(Theme::Colour_In(Kind, Token::Panel));
        QPainter Painter(&Image);
        Paint_It(Painter, QRectF(0, 0, Width, Height), Kind);
    }
    bool Is(QPoint Pixel, Token Meaning) const {
        if (!Image.rect().contains(Pixel)) return false;
        const QColor Found = Image.pixelColor(Pixel), Wanted = Theme::Colour_In(Kind, Meaning);
        constexpr int Blur = 12; // of an edge that is smoothed
        return std::abs(Found.red() - Wanted.red()) <= Blur &&
               std::abs(Found.green() - Wanted.green()) <= Blur &&
               std::abs(Found.blue() - Wanted.blue()) <= Blur;
    }
    // Whether a pixel that is no further than Reach from At has the colour.
    bool Near(QPointF At, Token Meaning, int Reach = 1) const {
        const QPoint Middle = (At * Scale).toPoint();
        for (int X = -Reach; X <= Reach; ++X)
            for (int Y = -Reach; Y <= Reach; ++Y)
                if (Is(Middle + QPoint(X, Y), Meaning)) return true;
        return false;
    }
    // Whether all about At has the colour.
    bool Plain(QPointF At, Token Meaning) const {
        const QPoint Middle = (At * Scale).toPoint();
        for (int X = -1; X <= 1; ++X)
            for (int Y = -1; Y <= 1; ++Y)
                if (!Is(Middle + QPoint(X, Y), Meaning)) return false;
        return true;
    }

    Palette_Kind Kind;
    int Scale;
    QImage Image;
};

#define IN_EVERY_WAY(How)                                                                                    \
    for (const Way& How : Ways)                                                                              \
        if (const testing::ScopedTrace Trace(                                                                \
                __FILE__, __LINE__,                                                                          \
                std::string(Palette_Names[static_cast<std::size_t>(How.Kind)]) + " at scale " +              \
                    std::to_string(How.Scale));                                                              \
            true)

// 220 x 220: the rose has a radius of 110 less 11 % for the pointers round (110, 110).
TEST(Compass_Rose, Heading_Course_And_Bug_Stand_At_Their_Angles) {
    constexpr QPointF Centre(110, 110);
    constexpr double Radius = 97.9, Pointers = 103, Course_Foot = Radius * 0.54, Letters = Radius * 0.77;
    IN_EVERY_WAY(How) {
        for (const bool Heading_Up : {true, false}) {
            const Compass_Reading Values{50, 170.F, 290.F, Heading_Up};
            const Picture P(How, 220, 220, [&](QPainter& Painter, const QRectF& Place, Palette_Kind Kind) {
                Paint_Compass_Rose(Painter, Place, Values, Kind);
            });
            const double North = Heading_Up ? -50 : 0;
            EXPECT_TRUE(P.Plain(Polar(Centre, Pointers, North + 50), Token::Readout)) << "heading";
            EXPECT_TRUE(P.Plain(Polar(Centre, Pointers, North + 80), Token::Panel)) << "nothing beside it";
            EXPECT_TRUE(P.Near(Polar(Centre, Course_Foot, North + 170), Token::Accent)) << "course";
            EXPECT_TRUE(P.Plain(Polar(Centre, Course_Foot + 4, North + 170), Token::Field)) << "is open";
            EXPECT_FALSE(P.Near(Polar(Centre, Course_Foot, North + 350), Token::Accent));
            EXPECT_TRUE(P.Near(Polar(Centre, Radius + 6, North + 290), Token::Accent)) << "bug";
            EXPECT_FALSE(P.Near(Polar(Centre, Radius + 6, North + 110), Token::Accent));
            // The letter W has ink about its middle, and nothing is written 15 degrees off.
            EXPECT_TRUE(P.Near(Polar(Centre, Letters, North + 270), Token::Text, 4 * How.Scale));
            EXPECT_TRUE(P.Plain(Polar(Centre, Letters, North + 285), Token::Field));
        }
        const Picture Still(How, 220, 220, [&](QPainter& Painter, const QRectF& Place, Palette_Kind Kind) {
            Paint_Compass_Rose(Painter, Place, {0, {}, {}, true}, Kind);
        });
        EXPECT_FALSE(Still.Near(Polar(Centre, Course_Foot, 0), Token::Accent)) << "no course";
        EXPECT_TRUE(Still.Plain(Polar(Centre, Radius + 6, 290), Token::Panel)) << "no bug";
    }
}

// 232 wide: 16 on either side for the figures, so the middle is 116 and a full side 100 long.
TEST(Rate_Of_Turn_Bar, Red_Grows_To_Port_And_Green_To_Starboard) {
    const struct {
        float Rate;
        double From, To; // what is filled, from the middle
        Token Colour;
    } Cases[] = {{15, 0, 50, Token::Starboard},
                 {-30, -100, 0, Token::Port},
                 {-6, -20, 0, Token::Port},
                 {90, 0, 100, Token::Starboard},
                 {0, 0, 0, Token::Field}};
    IN_EVERY_WAY(How)
    for (const auto& C : Cases) {
        const Picture P(How, 232, 36, [&](QPainter& Painter, const QRectF& Place, Palette_Kind Kind) {
            Paint_Rate_Of_Turn(Painter, Place, {C.Rate, 30}, Kind);
        });
        for (int At = -94; At <= 94; At += 4) {
            const bool Filled = At > C.From + 3 && At < C.To - 3;
            const bool Edge = std::abs(At - C.From) <= 3 || std::abs(At - C.To) <= 3 || std::abs(At) <= 3;
            if (!Edge) {
                EXPECT_TRUE(P.Plain(QPointF(116 + At, 8), Filled ? C.Colour : Token::Field))
                    << C.Rate << " at " << At;
            }
        }
    }
}

TEST(Rate_Of_Turn_Bar, Its_Figures_Divide_The_Scale) {
    const std::pair<int, int> Steps[] = {{5, 5},   {10, 5},  {15, 5},  {20, 10},
                                         {30, 10}, {35, 35}, {50, 25}, {360, 120}};
    for (const auto& [Scale, Step] : Steps) EXPECT_EQ(Figure_Step(Scale), Step) << Scale;
}

// 264 x 300 with 38 for the legend: a dial of 128 round (132, 131).
TEST(Wind_Dial, Arrows_Come_From_Where_The_Wind_Comes_From) {
    constexpr QPointF Centre(132, 131);
    constexpr double Radius = 128, On_Arrow = Radius * 0.6, Shaft = Radius * 0.13 * 0.42;
    IN_EVERY_WAY(How) {
        // Wind from 300 on a heading of 90 comes in 210 degrees off the bow; the apparent one from 75.
        const Picture P(How, 264, 300, [&](QPainter& Painter, const QRectF& Place, Palette_Kind Kind) {
            Paint_Wind_Dial(Painter, Place, {75, 12, 300, 10, 90, "knots"}, Kind);
        });
        EXPECT_TRUE(P.Plain(Polar(Centre, On_Arrow, 75), Token::Readout)) << "apparent";
        EXPECT_TRUE(P.Plain(Polar(Centre, Radius * 0.66, 75), Token::Readout)) << "its tail";
        EXPECT_TRUE(P.Plain(Polar(Centre, On_Arrow, 210), Token::Field)) << "true is open";
        for (const int Side : {-90, 90})
            EXPECT_TRUE(P.Near(Polar(Polar(Centre, On_Arrow, 210), Shaft, 210 + Side), Token::Accent));
        for (const int Elsewhere : {30, 120, 255, 345})
            EXPECT_TRUE(P.Plain(Polar(Centre, On_Arrow, Elsewhere), Token::Field)) << Elsewhere;
        EXPECT_TRUE(P.Near(Polar(Centre, Radius, 90), Token::Starboard));
        EXPECT_TRUE(P.Near(Polar(Centre, Radius, 270), Token::Port));
        EXPECT_TRUE(P.Plain(Polar(Centre, Radius * 0.2, 0), Token::Panel)) << "the ship, bow up";
        EXPECT_TRUE(P.Plain(Polar(Centre, Radius * 0.2, 90), Token::Field));

        const Picture Calm(How, 264, 300, [&](QPainter& Painter, const QRectF& Place, Palette_Kind Kind) {
            Paint_Wind_Dial(Painter, Place, {75, 0, 300, 0, 90, "knots"}, Kind);
        });
        EXPECT_TRUE(Calm.Plain(Polar(Centre, On_Arrow, 75), Token::Field)) << "no wind, no arrow";
        EXPECT_FALSE(Calm.Near(Polar(Polar(Centre, On_Arrow, 210), Shaft, 300), Token::Accent));
    }
}

// 200 x 210 with 20 for the roll scale: a ball of 94 round (100, 95), 4.7 pixels a degree of pitch.
TEST(Attitude, The_Horizon_Sinks_With_The_Bow_Up_And_Tilts_Against_The_Heel) {
    constexpr QPointF Centre(100, 95);
    constexpr double Radius = 94, Degree = Radius / 20;
    IN_EVERY_WAY(How) {
        const auto Paint = [&](Attitude_Reading Values) {
            return Picture(How, 200, 210,
                           [Values](QPainter& Painter, const QRectF& Place, Palette_Kind Kind) {
                               Paint_Attitude(Painter, Place, Values, Kind);
                           });
        };
        const auto At = [&](double Right, double Down) { return Centre + QPointF(Right, Down); };
        const Picture Level = Paint({0, 0});
        EXPECT_TRUE(Level.Near(At(35, 0), Token::Accent)) << "horizon";
        EXPECT_TRUE(Level.Plain(At(80, -12), Token::Field)) << "sky";
        EXPECT_TRUE(Level.Plain(At(80, 12), Token::Line)) << "sea";
        EXPECT_TRUE(Level.Plain(Polar(Centre, Radius - 9, 180), Token::Readout)) << "plumb";
        EXPECT_TRUE(Level.Near(At(60, 0), Token::Readout)) << "the ship's own mark";

        const Picture Bow_Up = Paint({0, 10});
        EXPECT_TRUE(Bow_Up.Near(At(5, 10 * Degree), Token::Accent));
        EXPECT_TRUE(Bow_Up.Plain(At(70, 40), Token::Field));
        const Picture Bow_Down = Paint({0, -10});
        EXPECT_TRUE(Bow_Down.Near(At(5, -10 * Degree), Token::Accent));
        EXPECT_TRUE(Bow_Down.Plain(At(70, -40), Token::Line));

        const Picture To_Starboard = Paint({15, 0});
        EXPECT_TRUE(To_Starboard.Plain(At(80, -12), Token::Line)) << "the sea rises to starboard";
        EXPECT_TRUE(To_Starboard.Plain(At(-80, 12), Token::Field));
        EXPECT_TRUE(To_Starboard.Plain(Polar(Centre, Radius - 9, 165), Token::Readout)) << "plumb";
        EXPECT_FALSE(To_Starboard.Near(Polar(Centre, Radius - 9, 180), Token::Readout));
        const Picture To_Port = Paint({-15, 0});
        EXPECT_TRUE(To_Port.Plain(At(80, 12), Token::Field));
        EXPECT_TRUE(To_Port.Plain(Polar(Centre, Radius - 9, 195), Token::Readout));
    }
}

// 60 x 214: the thumb's middle goes from 7 to 207.
TEST(Slider_Scale, Ticks_Stand_At_Their_Shares_And_Never_Run_Together) {
    IN_EVERY_WAY(How) {
        const auto Paint = [&](double Step) {
            return Picture(How, 60, 214, [Step](QPainter& Painter, const QRectF& Place, Palette_Kind Kind) {
                Paint_Slider_Scale(Painter, Place, {Qt::Vertical, Step, 0.5, {}}, Kind);
            });
        };
        const Picture Quarters = Paint(0.25);
        for (const int Tick : {7, 57, 107, 157, 207})
            EXPECT_FALSE(Quarters.Plain(QPointF(3, Tick), Token::Panel)) << Tick;
        for (const int Between : {30, 82, 130, 180})
            EXPECT_TRUE(Quarters.Plain(QPointF(3, Between), Token::Panel)) << Between;
        const Picture Dense = Paint(0.0005);
        int Free = 0;
        for (int Y = 0; Y < Dense.Image.height(); ++Y) Free += Dense.Is({3 * How.Scale, Y}, Token::Panel);
        EXPECT_GE(Free, Dense.Image.height() / 3);
    }
}

// The scale is of use only if the thumb stands on it.
TEST(Slider_Scale, Agrees_With_The_Thumb) {
    const Theme Styled(*qApp);
    for (const Qt::Orientation Direction : {Qt::Horizontal, Qt::Vertical}) {
        QSlider Bar(Direction);
        Bar.resize(Direction == Qt::Horizontal ? QSize(214, 24) : QSize(24, 214));
        Bar.setRange(0, 100);
        Bar.ensurePolished();
        for (const int Value : {0, 50, 100}) {
            Bar.setValue(Value);
            QStyleOptionSlider Option;
            Option.initFrom(&Bar);
            Option.orientation = Direction;
            if (Direction == Qt::Horizontal) Option.state |= QStyle::State_Horizontal;
            Option.minimum = 0;
            Option.maximum = 100;
            Option.sliderPosition = Option.sliderValue = Value;
            Option.upsideDown = false;
            const QRectF Thumb =
                Bar.style()->subControlRect(QStyle::CC_Slider, &Option, QStyle::SC_SliderHandle, &Bar);
            const double Middle = Direction == Qt::Horizontal ? Thumb.center().x() : Thumb.center().y();
            EXPECT_NEAR(Middle, Thumb_Middle(Value / 100.0, 214), 1) << Value;
        }
    }
}

TEST(Instruments, Paint_Again_Only_When_A_Value_Has_Changed) {
    const Theme Colours(*qApp);
    Turn_Reading Now{5, 30};
    Instrument<Turn_Reading> Bar(
        Colours, Paint_Rate_Of_Turn, [&Now] { return Now; }, QSize(232, 36), QStringLiteral("deg/min"));
    struct : QObject {
        int Paints = 0;
        bool eventFilter(QObject*, QEvent* Happened) override {
            if (Happened->type() == QEvent::Paint) ++Paints;
            return false;
        }
    } Counter;
    Bar.installEventFilter(&Counter);
    Bar.show();
    const auto Look = [&] {
        Bar.Look();
        QApplication::processEvents();
        return std::exchange(Counter.Paints, 0);
    };
    EXPECT_GE(Look(), 1);
    EXPECT_EQ(Look(), 0);
    Now.Rate_deg_min = 6;
    EXPECT_EQ(Look(), 1);
    EXPECT_EQ(Look(), 0);
    EXPECT_EQ(Bar.grab().toImage().pixelColor(120, 8), Colours.Colour(Token::Starboard));
}

TEST(Instruments, Angles_Are_Written_Without_A_Full_Circle) {
    const struct {
        float Angle;
        int Decimals;
        const char* Text;
    } Cases[] = {{47.25F, 1, "047.3"},  {0, 1, "000.0"},    {359.94F, 1, "359.9"},
                 {359.96F, 1, "000.0"}, {359.5F, 0, "000"}, {9.4F, 0, "009"}};
    for (const auto& C : Cases)
        EXPECT_EQ(Angle_Text(C.Angle, C.Decimals), QString::fromLatin1(C.Text) + QChar(0xB0));
}

} // namespace
} // namespace brinewright
