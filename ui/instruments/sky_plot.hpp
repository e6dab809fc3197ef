#pragma once

#include "ui/theme.hpp"

#include <QPainter>
#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

namespace brinewright {

struct Sky_Mark {
    QString Name;
    float Elevation_deg = 0; // 0 at the horizon to 90 overhead
    float Azimuth_deg = 0;   // clockwise from north
    float SNR_dB = 0;
    bool In_Use = false; // filled; otherwise an open ring
    bool operator==(const Sky_Mark&) const = default;
};

// The sky as seen from below the antenna, north up: rings at 0, 30 and 60 degrees of elevation, satellites
// coloured by their SNR.
void Paint_Sky(QPainter& Painter, const QRectF& Place, const std::vector<Sky_Mark>& Marks, Palette_Kind Kind);

// Shows what Read gives, and paints again only when that has changed.
class Sky_Plot : public QWidget {
    Q_OBJECT
  public:
    Sky_Plot(const Theme& Colours, std::function<std::vector<Sky_Mark>()> Read);
    void Look();
    QSize sizeHint() const override { return {190, 170}; }

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    const Theme& Colours;
    std::function<std::vector<Sky_Mark>()> Read;
    std::vector<Sky_Mark> Shown;
};

} // namespace brinewright
