#include "ui/desktop/working_area.hpp"

#include "ui/instruments/instrument.hpp"

#include <QMdiSubWindow>
#include <QPainter>

namespace brinewright {

Working_Area::Working_Area(const Theme& Its_Theme, QWidget* Parent) : QMdiArea(Parent), Colours(Its_Theme) {
    setFocusPolicy(Qt::NoFocus); // the keyboard is a control's
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void Working_Area::resizeEvent(QResizeEvent* Happened) {
    QMdiArea::resizeEvent(Happened);
    Q_EMIT Resized(viewport()->size());
}

void Working_Area::paintEvent(QPaintEvent*) {
    QPainter Painter(viewport());
    Painter.fillRect(viewport()->rect(), Colours.Colour(Token::Window));
    if (!subWindowList().isEmpty()) return;
    Painter.setPen(Colours.Colour(Token::Dim_Text));
    Painter.setFont(Readout_Font(16));
    Painter.drawText(viewport()->rect(), Qt::AlignCenter,
                     QStringLiteral("No window is open: Window > GNSS 1"));
}

} // namespace brinewright
