#pragma once

#include "ui/look/theme.hpp"

#include <QMdiArea>

namespace brinewright {

// The room of the child windows. While it is empty it says what to do.
class Working_Area : public QMdiArea {
    Q_OBJECT
  public:
    Working_Area(const Theme& Its_Theme, QWidget* Parent);

  Q_SIGNALS:
    void Resized(const QSize& Room);

  protected:
    void resizeEvent(QResizeEvent* Happened) override;
    void paintEvent(QPaintEvent*) override;

  private:
    const Theme& Colours;
};

} // namespace brinewright
