#include "ui/instruments/slider_scale.hpp"

#include "ui/instruments/instrument.hpp"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace brinewright {

namespace {

constexpr double Thumb_Length = 14; // as the style has it
constexpr double Least_Step = 4, Tick_Length = 5, Figure_Tick_Length = 7, Figure_Gap = 2;
constexpr int Scale_Figure_Pixels = 11;
constexpr int Label_Top = 8;

// From (Along, Across) of a scale to the picture.
QPointF At(const QRectF& Place, Qt::Orientation Direction, double Along, double Across) {
    return Place.topLeft() + (Direction == Qt::Horizontal ? QPointF(Along, Across) : QPointF(Across, Along));
}

void Draw_Tick(QPainter& Painter, const QRectF& Place, Qt::Orientation Direction, double Along, double Size) {
    Painter.drawLine(At(Place, Direction, Along, 1), At(Place, Direction, Along, 1 + Size));
}

// Held inside the scale; one that would stand over another is left out.
void Paint_Figures(QPainter& Painter, const QRectF& Place, const Slider_Scale_Reading& Shown, double Length,
                   Palette_Kind Kind) {
    QFont Face = Painter.font();
    Face.setPixelSize(Scale_Figure_Pixels);
    Painter.setFont(Face);
    const bool Lies = Shown.Direction == Qt::Horizontal;
    constexpr double Behind = Figure_Tick_Length + 4;
    double Free_From = 0;
    for (const auto& Figure : Shown.Figures) {
        const double Along = Thumb_Middle(Figure.Share, Length);
        const double Room = Lies ? QFontMetricsF(Face).horizontalAdvance(Figure.Text) : Scale_Figure_Pixels;
        const double From = std::clamp(Along - Room / 2, 0.0, std::max(Length - Room, 0.0));
        if (From < Free_From) continue;
        Free_From = From + Room + Figure_Gap;
        Painter.setPen(QPen(Theme::Colour_In(Kind, Token::Text), 1.5));
        Draw_Tick(Painter, Place, Shown.Direction, Along, Figure_Tick_Length);
        Painter.setPen(Theme::Colour_In(Kind, Token::Dim_Text));
        const double Middle = From + Room / 2;
        Painter.drawText(Lies ? QRectF(Place.left() + Middle - 40, Place.top() + Behind - 2, 80, 16)
                              : QRectF(Place.left() + Behind, Place.top() + Middle - 8, 80, 16),
                         static_cast<int>(Lies ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter),
                         Figure.Text);
    }
}

} // namespace

double Thumb_Middle(double Share, double Length) {
    return Thumb_Length / 2 + Share * (Length - Thumb_Length);
}

void Paint_Slider_Scale(QPainter& Painter, const QRectF& Place, const Slider_Scale_Reading& Shown,
                        Palette_Kind Kind) {
    Painter.setRenderHint(QPainter::Antialiasing);
    const double Length = Shown.Direction == Qt::Horizontal ? Place.width() : Place.height();
    if (Length <= Thumb_Length || Shown.Step <= 0) return;
    Painter.setPen(QPen(Theme::Colour_In(Kind, Token::Dim_Text), 1));
    double Step = Shown.Step;
    while (Step * (Length - Thumb_Length) < Least_Step) Step *= 2;
    constexpr double Slack = 1e-9;
    const int Before = static_cast<int>(Shown.Origin / Step + Slack); // ticks on either side of the origin
    const int Behind = static_cast<int>((1 - Shown.Origin) / Step + Slack);
    for (int I = -Before; I <= Behind; ++I)
        Draw_Tick(Painter, Place, Shown.Direction, Thumb_Middle(Shown.Origin + I * Step, Length),
                  Tick_Length);
    Paint_Figures(Painter, Place, Shown, Length, Kind);
}

Slider_Scale::Slider_Scale(const Theme& Its_Theme, Qt::Orientation Direction, int Thickness,
                           std::function<Slider_Scale_Reading()> Its_Read,
                           std::vector<Placed_Label> Its_Labels)
    : Colours(Its_Theme), Read(std::move(Its_Read)), Labels(std::move(Its_Labels)) {
    if (Direction == Qt::Horizontal)
        setFixedHeight(Thickness);
    else
        setFixedWidth(Thickness);
    for (const Placed_Label& L : Labels) L.Label->setParent(this);
}

void Slider_Scale::Look() {
    Place_Labels();
    Slider_Scale_Reading Now = Read();
    if (Now == Shown) return;
    Shown = std::move(Now);
    update();
}

void Slider_Scale::Place_Labels() {
    for (const Placed_Label& L : Labels) {
        const QSize Size = L.Label->sizeHint();
        const int Middle = static_cast<int>(std::lround(Thumb_Middle(L.Share, width())));
        const int Left = std::clamp(Middle - Size.width() / 2, 0, std::max(width() - Size.width(), 0));
        L.Label->setGeometry(Left, Label_Top, Size.width(), Size.height());
    }
}

void Slider_Scale::resizeEvent(QResizeEvent*) { Place_Labels(); }

void Slider_Scale::paintEvent(QPaintEvent*) {
    QPainter Painter(this);
    Paint_Slider_Scale(Painter, rect(), Shown, Colours.Chosen());
}

} // namespace brinewright
