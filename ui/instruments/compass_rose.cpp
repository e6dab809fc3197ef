#include "ui/instruments/compass_rose.hpp"

#include <algorithm>

namespace brinewright {

namespace {

constexpr double Pointer_Room = 0.11; // of the whole, outside the rose
constexpr double Figures_At = 0.77;   // of the radius of the rose
constexpr double Course_Tip = 0.67, Course_Length = -0.13;

struct Rose {
    QPointF Centre;
    double Radius;
    double Turned_deg; // where north stands
    Palette_Kind Kind;
    QColor In(Token Meaning) const { return Theme::Colour_In(Kind, Meaning); }
};

void Paint_Scale(QPainter& Painter, const Rose& R) {
    Painter.setBrush(R.In(Token::Field));
    Painter.setPen(QPen(R.In(Token::Dim_Text), 1));
    Painter.drawEllipse(R.Centre, R.Radius, R.Radius);
    Mark_Rim(Painter, R.Centre, R.Radius, R.Turned_deg, 5, R.Radius * 0.035, 10);
    Mark_Rim(Painter, R.Centre, R.Radius, R.Turned_deg, 10, R.Radius * 0.07, 30);
    Painter.setPen(QPen(R.In(Token::Text), 1.5));
    Mark_Rim(Painter, R.Centre, R.Radius, R.Turned_deg, 30, R.Radius * 0.09);
    constexpr const char* Letters[] = {"N", "E", "S", "W"};
    for (int Angle_deg = 0; Angle_deg < 360; Angle_deg += 30) {
        const bool Is_Letter = Angle_deg % 90 == 0;
        const QString Text = Is_Letter ? QString::fromLatin1(Letters[Angle_deg / 90])
                                       : QString::number(Angle_deg).rightJustified(3, QLatin1Char('0'));
        Write_At(Painter, On_Circle(R.Centre, R.Radius * Figures_At, Angle_deg + R.Turned_deg), Text,
                 R.Radius * (Is_Letter ? 0.14 : 0.105), R.In(Is_Letter ? Token::Text : Token::Dim_Text),
                 Is_Letter);
    }
}

// A bracket that holds the rim from outside.
void Paint_Bug(QPainter& Painter, const Rose& R, double Angle_deg) {
    const double Depth = R.Radius * 0.06, Half_deg = 5;
    const QPointF Corners[] = {On_Circle(R.Centre, R.Radius, Angle_deg - Half_deg),
                               On_Circle(R.Centre, R.Radius + Depth, Angle_deg - Half_deg),
                               On_Circle(R.Centre, R.Radius + Depth, Angle_deg + Half_deg),
                               On_Circle(R.Centre, R.Radius, Angle_deg + Half_deg)};
    Painter.setBrush(Qt::NoBrush);
    Painter.setPen(QPen(R.In(Token::Accent), std::max(R.Radius * 0.03, 2.0)));
    Painter.drawPolyline(Corners, 4);
}

void Paint_Figures(QPainter& Painter, const Rose& R, const Compass_Reading& Shown) {
    const auto Below = [&R](double Share) { return R.Centre + QPointF(0, R.Radius * Share); };
    Write_At(Painter, Below(-0.31), QStringLiteral("HDG"), R.Radius * 0.1, R.In(Token::Dim_Text));
    Write_At(Painter, Below(-0.09), Angle_Text(Shown.Heading_deg, 1), R.Radius * 0.26, R.In(Token::Readout),
             true);
    Write_At(Painter, Below(0.17), QStringLiteral("COG"), R.Radius * 0.1, R.In(Token::Dim_Text));
    Write_At(Painter, Below(0.33),
             Shown.Course_deg ? Angle_Text(*Shown.Course_deg, 1) : QStringLiteral("---"), R.Radius * 0.16,
             R.In(Token::Accent), true);
}

} // namespace

void Paint_Compass_Rose(QPainter& Painter, const QRectF& Place, const Compass_Reading& Shown,
                        Palette_Kind Kind) {
    Painter.setRenderHint(QPainter::Antialiasing);
    const double Half = std::min(Place.width(), Place.height()) / 2;
    if (Half < 20) return;
    const Rose R{Place.center(), Half * (1 - Pointer_Room), Shown.Heading_Up ? -double{Shown.Heading_deg} : 0,
                 Kind};
    Paint_Scale(Painter, R);
    if (Shown.Course_deg) {
        Painter.setBrush(R.In(Token::Field));
        Painter.setPen(QPen(R.In(Token::Accent), std::max(R.Radius * 0.02, 1.5)));
        Point_Inwards(Painter, R.Centre, *Shown.Course_deg + R.Turned_deg, R.Radius * Course_Tip,
                      R.Radius * Course_Length, R.Radius * 0.07);
    }
    if (Shown.Bug_deg) Paint_Bug(Painter, R, *Shown.Bug_deg + R.Turned_deg);
    Painter.setBrush(R.In(Token::Readout));
    Painter.setPen(Qt::NoPen);
    Point_Inwards(Painter, R.Centre, Shown.Heading_deg + R.Turned_deg, R.Radius * 0.985, Half * Pointer_Room,
                  Half * 0.075);
    Paint_Figures(Painter, R, Shown);
}

} // namespace brinewright
