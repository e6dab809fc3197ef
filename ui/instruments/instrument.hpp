#pragma once

#include "ui/look/theme.hpp"

#include <QPainter>
#include <QString>
#include <QWidget>

#include <functional>
#include <utility>

namespace brinewright {

// What the painted instruments have in common. Angles are degrees clockwise from the top of the picture.

QPointF On_Circle(const QPointF& Centre, double Radius, double Angle_deg);

// A text with its middle at At, in figures of so many pixels.
void Write_At(QPainter& Painter, const QPointF& At, const QString& Text, double Pixels, const QColor& Ink,
              bool Strong = false);

// A triangle whose tip points at the middle of a circle, at Tip_Radius from it.
void Point_Inwards(QPainter& Painter, const QPointF& Centre, double Angle_deg, double Tip_Radius,
                   double Length, double Half_Width);

// Lines across the rim of a dial, Length long, every Step_deg; what Leave_Out divides is left to longer ones.
void Mark_Rim(QPainter& Painter, const QPointF& Centre, double Radius, double Turned_deg, int Step_deg,
              double Length, int Leave_Out_deg = 0);

// An angle from 0 to 360 with Decimals, 0 or 1, and the degree sign; what rounds to 360 is written as 0.
QString Angle_Text(float Value_deg, int Decimals);

// Shows what Read gives by Paint, and paints again only when it has changed.
template <class Values>
class Instrument : public QWidget {
  public:
    using Painting = void (*)(QPainter&, const QRectF&, const Values&, Palette_Kind);

    Instrument(const Theme& Its_Theme, Painting Its_Painting, std::function<Values()> Its_Read,
               const QSize& Its_Hint, const QString& Tip)
        : Colours(Its_Theme), Paint(Its_Painting), Read(std::move(Its_Read)), Hint(Its_Hint) {
        setMinimumSize(Hint); // may be made smaller afterwards
        setToolTip(Tip);
    }
    void Look() {
        Values Now = Read();
        if (Now == Shown) return;
        Shown = std::move(Now);
        update();
    }
    QSize sizeHint() const override { return Hint; }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter Painter(this);
        Paint(Painter, rect(), Shown, Colours.Chosen());
    }

  private:
    const Theme& Colours;
    Painting Paint;
    std::function<Values()> Read;
    QSize Hint;
    Values Shown;
};

} // namespace brinewright
