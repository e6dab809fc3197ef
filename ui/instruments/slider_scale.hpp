#pragma once

#include "ui/look/theme.hpp"

#include <QPainter>
#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

class QSlider;

namespace brinewright {

// What stands beside a slider. Shares count from the left or top end of the thumb's way, 0 to 1.
struct Slider_Scale_Reading {
    struct Figure {
        double Share;
        QString Text;
        bool operator==(const Figure&) const = default;
    };
    Qt::Orientation Direction = Qt::Horizontal;
    double Step = 0.1;           // between two ticks; ticks that would stand too close are thinned out
    double Origin = 0;           // where one of the ticks stands
    std::vector<Figure> Figures; // by rising share
    bool operator==(const Slider_Scale_Reading&) const = default;
};

// Where the middle of a thumb stands on a slider Length long.
double Thumb_Middle(double Share, double Length);

// Ticks along the side of Place that is next to the slider (top or left), figures behind them. Place is as
// long as the slider.
void Paint_Slider_Scale(QPainter& Painter, const QRectF& Place, const Slider_Scale_Reading& Shown,
                        Palette_Kind Kind);

// The scale of a slider, which it stands below or to the right of, equally long. Labels that are given to it
// stand at their shares among the ticks.
class Slider_Scale : public QWidget {
    Q_OBJECT
  public:
    struct Placed_Label {
        double Share;
        QWidget* Label;
    };

    Slider_Scale(const Theme& Colours, Qt::Orientation Direction, int Thickness,
                 std::function<Slider_Scale_Reading()> Read, std::vector<Placed_Label> Labels = {});
    void Look();

  protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

  private:
    void Place_Labels();

    const Theme& Colours;
    std::function<Slider_Scale_Reading()> Read;
    Slider_Scale_Reading Shown;
    std::vector<Placed_Label> Labels;
};

} // namespace brinewright
