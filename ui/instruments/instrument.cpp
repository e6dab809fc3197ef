#include "ui/instruments/instrument.hpp"

#include "sentences/number_pattern.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace brinewright {

QPointF On_Circle(const QPointF& Centre, double Radius, double Angle_deg) {
    const double Angle = Angle_deg * std::numbers::pi / 180;
    return Centre + QPointF(std::sin(Angle) * Radius, -std::cos(Angle) * Radius);
}

void Write_At(QPainter& Painter, const QPointF& At, const QString& Text, double Pixels, const QColor& Ink,
              bool Strong) {
    QFont Face = Painter.font();
    Face.setWeight(Strong ? QFont::DemiBold : QFont::Normal);
    Face.setPixelSize(std::max(static_cast<int>(std::lround(Pixels)), 7));
    Painter.setFont(Face);
    Painter.setPen(Ink);
    constexpr double Room = 200;
    Painter.drawText(QRectF(At.x() - Room, At.y() - Room, 2 * Room, 2 * Room), Qt::AlignCenter, Text);
}

void Point_Inwards(QPainter& Painter, const QPointF& Centre, double Angle_deg, double Tip_Radius,
                   double Length, double Half_Width) {
    const QPointF Tip = On_Circle(Centre, Tip_Radius, Angle_deg);
    const QPointF Foot = On_Circle(Centre, Tip_Radius + Length, Angle_deg);
    const QPointF Side = On_Circle({}, Half_Width, Angle_deg + 90);
    const QPointF Corners[] = {Tip, Foot + Side, Foot - Side};
    Painter.drawConvexPolygon(Corners, 3);
}

void Mark_Rim(QPainter& Painter, const QPointF& Centre, double Radius, double Turned_deg, int Step_deg,
              double Length, int Leave_Out_deg) {
    for (int Angle_deg = 0; Angle_deg < 360; Angle_deg += Step_deg) {
        if (Leave_Out_deg > 0 && Angle_deg % Leave_Out_deg == 0) continue;
        Painter.drawLine(On_Circle(Centre, Radius, Angle_deg + Turned_deg),
                         On_Circle(Centre, Radius - Length, Angle_deg + Turned_deg));
    }
}

QString Angle_Text(float Value_deg, int Decimals) {
    const auto Written = [Decimals](float Value) {
        return Decimals > 0 ? Format_Dot(Value, "000.0") : Format_Dot(Value, "000");
    };
    std::string Text = Written(Value_deg);
    if (Text.starts_with("360")) Text = Written(0);
    return QString::fromStdString(Text) + QChar(0xB0);
}

} // namespace brinewright
