#include "ui/instruments/sky_plot.hpp"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace brinewright {

namespace {

constexpr double Label_Room = 16; // pixels outside the horizon, for the letters
constexpr double Strong_dB = 25, Weak_dB = 12;

QPointF Place_Of(const QPointF& Centre, double Radius, double Elevation_deg, double Azimuth_deg) {
    const double Distance = Radius * (90 - std::clamp(Elevation_deg, 0.0, 90.0)) / 90;
    const double Angle = Azimuth_deg * std::numbers::pi / 180;
    return Centre + QPointF(std::sin(Angle) * Distance, -std::cos(Angle) * Distance);
}

Token Strength(double SNR_dB) {
    if (SNR_dB >= Strong_dB) return Token::Good;
    return SNR_dB >= Weak_dB ? Token::Warn : Token::Bad;
}

void Paint_Rose(QPainter& Painter, const QPointF& Centre, double Radius, Palette_Kind Kind) {
    Painter.setBrush(Theme::Colour_In(Kind, Token::Field));
    Painter.setPen(QPen(Theme::Colour_In(Kind, Token::Dim_Text), 1));
    Painter.drawEllipse(Centre, Radius, Radius);
    Painter.setBrush(Qt::NoBrush);
    Painter.setPen(QPen(Theme::Colour_In(Kind, Token::Line), 1));
    for (const int Elevation_deg : {30, 60}) {
        const double Ring = Radius * (90 - Elevation_deg) / 90;
        Painter.drawEllipse(Centre, Ring, Ring);
    }
    for (int Azimuth_deg = 0; Azimuth_deg < 360; Azimuth_deg += 30)
        Painter.drawLine(Place_Of(Centre, Radius, 90 - 4, Azimuth_deg),
                         Place_Of(Centre, Radius, 0, Azimuth_deg));
    Painter.setPen(Theme::Colour_In(Kind, Token::Dim_Text));
    const struct {
        const char* Text;
        double Azimuth_deg;
    } Letters[] = {{"N", 0}, {"E", 90}, {"S", 180}, {"W", 270}};
    for (const auto& Letter : Letters) {
        const QPointF At = Place_Of(Centre, Radius + Label_Room / 2, 0, Letter.Azimuth_deg);
        Painter.drawText(QRectF(At.x() - 10, At.y() - 8, 20, 16), Qt::AlignCenter,
                         QString::fromLatin1(Letter.Text));
    }
    for (const int Elevation_deg : {30, 60}) {
        const QPointF At = Place_Of(Centre, Radius, Elevation_deg, 45);
        Painter.drawText(QRectF(At.x() - 12, At.y() - 7, 24, 14), Qt::AlignCenter,
                         QString::number(Elevation_deg));
    }
}

void Paint_Mark(QPainter& Painter, const QPointF& At, double Size, const Sky_Mark& Mark, Palette_Kind Kind) {
    const QColor Colour = Theme::Colour_In(Kind, Strength(Mark.SNR_dB));
    Painter.setPen(QPen(Colour, 1.5));
    Painter.setBrush(Mark.In_Use ? QBrush(Colour) : QBrush(Theme::Colour_In(Kind, Token::Field)));
    Painter.drawEllipse(At, Size, Size);
    Painter.setPen(Mark.In_Use ? Theme::Colour_In(Kind, Token::Field) : Theme::Colour_In(Kind, Token::Text));
    Painter.drawText(QRectF(At.x() - 20, At.y() - 10, 40, 20), Qt::AlignCenter,
                     QString::fromLatin1(Mark.Name.c_str()));
}

} // namespace

void Paint_Sky(QPainter& Painter, const QRectF& Place, const Sky_Reading& Marks, Palette_Kind Kind) {
    Painter.setRenderHint(QPainter::Antialiasing);
    const double Radius = std::min(Place.width(), Place.height()) / 2 - Label_Room;
    if (Radius < 20) return;
    const QPointF Centre = Place.center();
    const double Size = std::clamp(Radius / 9, 8.0, 14.0);
    QFont Face = Painter.font();
    Face.setPixelSize(static_cast<int>(Size * 1.1));
    Painter.setFont(Face);
    Paint_Rose(Painter, Centre, Radius, Kind);
    for (const Sky_Mark& Mark : Marks)
        Paint_Mark(Painter, Place_Of(Centre, Radius, Mark.Elevation_deg, Mark.Azimuth_deg), Size, Mark, Kind);
}

} // namespace brinewright
