#include "ui/instruments/wind_dial.hpp"

#include "sentences/number_pattern.hpp"

#include <QPainterPath>

#include <algorithm>

namespace brinewright {

namespace {

constexpr double Legend_Height = 38, Dial_Rim_Room = 3;
constexpr double Dial_Figures_At = 0.8, Arrow_Tail = 0.7, Arrow_Tip = 0.36; // of the radius

struct Dial {
    QPointF Centre;
    double Radius;
    Palette_Kind Kind;
    QColor In(Token Meaning) const { return Theme::Colour_In(Kind, Meaning); }
};

void Paint_Scale(QPainter& Painter, const Dial& D) {
    Painter.setPen(QPen(D.In(Token::Dim_Text), 1));
    Painter.setBrush(D.In(Token::Field));
    Painter.drawEllipse(D.Centre, D.Radius, D.Radius);
    const QRectF Rim(D.Centre.x() - D.Radius, D.Centre.y() - D.Radius, 2 * D.Radius, 2 * D.Radius);
    Mark_Rim(Painter, D.Centre, D.Radius, 0, 10, D.Radius * 0.05, 30);
    Painter.setPen(QPen(D.In(Token::Text), 1.5));
    Mark_Rim(Painter, D.Centre, D.Radius, 0, 30, D.Radius * 0.08);
    // The sides as on a bridge: red to port, green to starboard. The toolkit counts sixteenths of a degree
    // from the right, against the clock.
    constexpr int Side_From_deg = 30, Side_To_deg = 150;
    const auto Arc = [&](Token Side, int From_deg, int Span_deg) {
        Painter.setPen(QPen(D.In(Side), 3, Qt::SolidLine, Qt::FlatCap));
        Painter.drawArc(Rim, From_deg * 16, Span_deg * 16);
    };
    Arc(Token::Starboard, 90 - Side_To_deg, Side_To_deg - Side_From_deg);
    Arc(Token::Port, 90 + Side_From_deg, Side_To_deg - Side_From_deg);
    for (int Angle_deg = 0; Angle_deg < 360; Angle_deg += 30)
        Write_At(Painter, On_Circle(D.Centre, D.Radius * Dial_Figures_At, Angle_deg),
                 QString::number(Angle_deg).rightJustified(3, QLatin1Char('0')), D.Radius * 0.105,
                 D.In(Token::Dim_Text));
}

void Paint_Ship(QPainter& Painter, const Dial& D) {
    const double Length = D.Radius * 0.62, Half_Beam = Length * 0.15;
    const auto At = [&](double Right, double Forward) {
        return D.Centre + QPointF(Right * Half_Beam, -Forward * Length / 2);
    };
    QPainterPath Hull(At(0, 1));
    Hull.quadTo(At(1, 0.65), At(1, 0.25));
    Hull.lineTo(At(0.85, -1));
    Hull.lineTo(At(-0.85, -1));
    Hull.lineTo(At(-1, 0.25));
    Hull.quadTo(At(-1, 0.65), At(0, 1));
    Painter.setPen(QPen(D.In(Token::Dim_Text), 1.2));
    Painter.setBrush(D.In(Token::Panel));
    Painter.drawPath(Hull);
}

// An arrow with its tip at the origin and Length long, pointing down.
QPainterPath Arrow(double Length, double Half_Width) {
    const double Head = std::min(Length * 0.45, Half_Width * 1.8), Shaft = Half_Width * 0.42;
    QPainterPath Path(QPointF(0, 0));
    const QPointF Corners[] = {{Half_Width, -Head}, {Shaft, -Head},  {Shaft, -Length},
                               {-Shaft, -Length},   {-Shaft, -Head}, {-Half_Width, -Head}};
    for (const QPointF& Corner : Corners) Path.lineTo(Corner);
    Path.closeSubpath();
    return Path;
}

void Ink_Apparent(QPainter& Painter, const Dial& D) {
    Painter.setPen(Qt::NoPen);
    Painter.setBrush(D.In(Token::Readout));
}
void Ink_True(QPainter& Painter, const Dial& D) {
    Painter.setPen(QPen(D.In(Token::Accent), 2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    Painter.setBrush(D.In(Token::Field));
}

void Paint_Wind(QPainter& Painter, const Dial& D, double Angle_deg, double Half_Width) {
    Painter.save();
    Painter.translate(D.Centre);
    Painter.rotate(Angle_deg);
    Painter.translate(0, -D.Radius * Arrow_Tip);
    Painter.drawPath(Arrow(D.Radius * (Arrow_Tail - Arrow_Tip), D.Radius * Half_Width));
    Painter.restore();
}

// Of the true wind, 0 to 360.
float Off_The_Bow(const Wind_Reading& Shown) {
    constexpr float Circle_deg = 360;
    const float Angle_deg = Shown.True_Direction_deg - Shown.Heading_deg;
    return Angle_deg < 0 ? Angle_deg + Circle_deg : Angle_deg;
}

void Paint_Legend(QPainter& Painter, const Dial& D, const QRectF& Place, const Wind_Reading& Shown) {
    // The angle beside an arrow is the one at which it stands in the scale.
    const struct {
        const char* Name;
        float Angle_deg, Speed;
        void (*Take_Ink)(QPainter&, const Dial&);
    } Lines[] = {{"Apparent", Shown.Apparent_Angle_deg, Shown.Apparent_Speed, Ink_Apparent},
                 {"True", Off_The_Bow(Shown), Shown.True_Speed, Ink_True}};
    QFont Face = Painter.font();
    Face.setPixelSize(12);
    double Y = Place.bottom() - Legend_Height;
    for (const auto& Line : Lines) {
        Line.Take_Ink(Painter, D);
        Painter.save();
        Painter.translate(Place.center().x() - 88, Y + 15);
        Painter.drawPath(Arrow(13, 5));
        Painter.restore();
        Painter.setFont(Face);
        const auto Write = [&](double Left, double Width, Qt::Alignment Side, const QString& Text,
                               Token Ink) {
            Painter.setPen(D.In(Ink));
            Painter.drawText(QRectF(Place.center().x() + Left, Y, Width, Legend_Height / 2),
                             static_cast<int>(Side | Qt::AlignVCenter), Text);
        };
        Write(-76, 60, Qt::AlignLeft, QString::fromLatin1(Line.Name), Token::Dim_Text);
        Write(-16, 40, Qt::AlignRight, Angle_Text(Line.Angle_deg, 0), Token::Readout);
        Write(24, 40, Qt::AlignRight, QString::fromStdString(Format_Dot(Line.Speed, "0.0")), Token::Readout);
        Write(70, 50, Qt::AlignLeft, QString::fromLatin1(Shown.Speed_Unit.c_str()), Token::Dim_Text);
        Y += Legend_Height / 2;
    }
}

} // namespace

void Paint_Wind_Dial(QPainter& Painter, const QRectF& Place, const Wind_Reading& Shown, Palette_Kind Kind) {
    Painter.setRenderHint(QPainter::Antialiasing);
    const double Radius = std::min(Place.width(), Place.height() - Legend_Height) / 2 - Dial_Rim_Room;
    if (Radius < 20) return;
    const Dial D{{Place.center().x(), Place.top() + (Place.height() - Legend_Height) / 2}, Radius, Kind};
    Paint_Scale(Painter, D);
    Paint_Ship(Painter, D);
    if (Shown.True_Speed > 0) {
        Ink_True(Painter, D);
        Paint_Wind(Painter, D, Off_The_Bow(Shown), 0.13);
    }
    if (Shown.Apparent_Speed > 0) {
        Ink_Apparent(Painter, D);
        Paint_Wind(Painter, D, Shown.Apparent_Angle_deg, 0.075);
    }
    Paint_Legend(Painter, D, Place, Shown);
}

} // namespace brinewright
