#include "ui/instruments/rate_of_turn_bar.hpp"

#include <algorithm>
#include <cmath>

namespace brinewright {

namespace {

constexpr double Side_Room = 16; // for the figures at the ends
constexpr double Bar_Height = 14, Tick_Height = 6, Figure_Pixels = 11;

} // namespace

int Figure_Step(int Full_Scale) {
    for (const int Parts : {3, 2})
        if (Full_Scale % (5 * Parts) == 0) return Full_Scale / Parts;
    return Full_Scale;
}

void Paint_Rate_Of_Turn(QPainter& Painter, const QRectF& Place, const Turn_Reading& Shown,
                        Palette_Kind Kind) {
    const auto In = [Kind](Token Meaning) { return Theme::Colour_In(Kind, Meaning); };
    Painter.setRenderHint(QPainter::Antialiasing);
    const int Full_Scale = static_cast<int>(std::lround(Shown.Full_Scale_deg_min));
    if (Full_Scale <= 0 || Place.width() < 4 * Side_Room) return;
    const QRectF Bar(Place.left() + Side_Room, Place.top() + 1, Place.width() - 2 * Side_Room, Bar_Height);
    const double Middle = Bar.center().x(), Half = Bar.width() / 2;
    Painter.setPen(QPen(In(Token::Line), 1));
    Painter.setBrush(In(Token::Field));
    Painter.drawRoundedRect(Bar, 3, 3);
    const double Share = std::clamp(double{Shown.Rate_deg_min} / Full_Scale, -1.0, 1.0);
    const QRectF Filled = QRectF(Middle, Bar.top() + 2, Half * Share, Bar_Height - 4).normalized();
    Painter.fillRect(Filled, In(Share < 0 ? Token::Port : Token::Starboard));
    const int Step = Figure_Step(Full_Scale);
    for (int Rate = -Full_Scale; Rate <= Full_Scale; Rate += Step) {
        const double X = Middle + Half * Rate / Full_Scale;
        Painter.setPen(QPen(In(Token::Dim_Text), Rate == 0 ? 2 : 1));
        Painter.drawLine(QPointF(X, Rate == 0 ? Bar.top() : Bar.bottom() + 1),
                         QPointF(X, Bar.bottom() + Tick_Height));
        Write_At(Painter, QPointF(X, Bar.bottom() + Tick_Height + Figure_Pixels * 0.75),
                 QString::number(std::abs(Rate)), Figure_Pixels, In(Token::Dim_Text));
    }
}

} // namespace brinewright
