#include "ui/instruments/attitude_indicator.hpp"

#include <QPainterPath>

#include <algorithm>
#include <cstdlib>

namespace brinewright {

namespace {

constexpr double Rim_Room = 20;       // for the figures of the roll scale
constexpr double Seen_Pitch_deg = 20; // from the middle to the rim
constexpr int Ladder_End_deg = 40, Ladder_Step_deg = 5, Roll_End_deg = 30;

struct Ball {
    QPointF Centre;
    double Radius;
    Palette_Kind Kind;
    double Degree() const { return Radius / Seen_Pitch_deg; } // pixels
    QColor In(Token Meaning) const { return Theme::Colour_In(Kind, Meaning); }
};

// Sky, sea and ladder turn about the middle of the ball.
void Paint_Outside(QPainter& Painter, const Ball& B, const Attitude_Reading& Shown) {
    Painter.save();
    QPainterPath Rim;
    Rim.addEllipse(B.Centre, B.Radius, B.Radius);
    Painter.setClipPath(Rim);
    Painter.fillPath(Rim, B.In(Token::Field));
    Painter.translate(B.Centre);
    Painter.rotate(-double{Shown.Roll_deg});
    Painter.translate(0, std::clamp(double{Shown.Pitch_deg}, -90.0, 90.0) * B.Degree());
    Painter.fillRect(QRectF(-2 * B.Radius, 0, 4 * B.Radius, 12 * B.Radius), B.In(Token::Line));
    Painter.setPen(QPen(B.In(Token::Accent), 2));
    Painter.drawLine(QPointF(-2 * B.Radius, 0), QPointF(2 * B.Radius, 0));
    for (int Pitch_deg = -Ladder_End_deg; Pitch_deg <= Ladder_End_deg; Pitch_deg += Ladder_Step_deg) {
        if (Pitch_deg == 0) continue;
        const bool Is_Named = Pitch_deg % 10 == 0;
        const double Y = -Pitch_deg * B.Degree(), Half = B.Radius * (Is_Named ? 0.26 : 0.14);
        Painter.setPen(QPen(B.In(Token::Text), 1));
        Painter.drawLine(QPointF(-Half, Y), QPointF(Half, Y));
        if (!Is_Named) continue;
        for (const int Side : {-1, 1})
            Write_At(Painter, QPointF(Side * (Half + B.Radius * 0.12), Y),
                     QString::number(std::abs(Pitch_deg)), B.Radius * 0.11, B.In(Token::Text));
    }
    Painter.restore();
}

void Paint_Roll_Scale(QPainter& Painter, const Ball& B, const Attitude_Reading& Shown) {
    for (int Roll_deg = -Roll_End_deg; Roll_deg <= Roll_End_deg; Roll_deg += 5) {
        const double Angle_deg = 180 - Roll_deg; // to starboard is to the right
        const bool Is_Named = Roll_deg % 10 == 0;
        Painter.setPen(QPen(B.In(Token::Dim_Text), Roll_deg == 0 ? 2 : 1));
        Painter.drawLine(On_Circle(B.Centre, B.Radius, Angle_deg),
                         On_Circle(B.Centre, B.Radius + (Is_Named ? 6 : 4), Angle_deg));
        if (Is_Named)
            Write_At(Painter, On_Circle(B.Centre, B.Radius + 13, Angle_deg),
                     QString::number(std::abs(Roll_deg)), 10, B.In(Token::Dim_Text));
    }
    const double Held_deg = std::clamp(double{Shown.Roll_deg}, -90.0, 90.0);
    Painter.setPen(Qt::NoPen);
    Painter.setBrush(B.In(Token::Readout));
    Point_Inwards(Painter, B.Centre, 180 - Held_deg, B.Radius - 1, -B.Radius * 0.13, B.Radius * 0.06);
}

// Wings and a dot that stay where they are.
void Paint_Ship(QPainter& Painter, const Ball& B) {
    Painter.setPen(QPen(B.In(Token::Readout), 3, Qt::SolidLine, Qt::FlatCap));
    for (const int Side : {-1, 1})
        Painter.drawLine(B.Centre + QPointF(Side * B.Radius * 0.45, 0),
                         B.Centre + QPointF(Side * B.Radius * 0.8, 0));
    Painter.setPen(Qt::NoPen);
    Painter.setBrush(B.In(Token::Readout));
    Painter.drawEllipse(B.Centre, 3, 3);
}

} // namespace

void Paint_Attitude(QPainter& Painter, const QRectF& Place, const Attitude_Reading& Shown,
                    Palette_Kind Kind) {
    Painter.setRenderHint(QPainter::Antialiasing);
    const double Radius = std::min(Place.width() / 2 - 2, (Place.height() - Rim_Room - 2) / 2);
    if (Radius < 20) return;
    const Ball B{{Place.center().x(), Place.top() + (Place.height() - Rim_Room) / 2}, Radius, Kind};
    Paint_Outside(Painter, B, Shown);
    Painter.setBrush(Qt::NoBrush);
    Painter.setPen(QPen(B.In(Token::Dim_Text), 1));
    Painter.drawEllipse(B.Centre, B.Radius, B.Radius);
    Paint_Roll_Scale(Painter, B, Shown);
    Paint_Ship(Painter, B);
}

} // namespace brinewright
