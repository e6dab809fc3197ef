#pragma once

#include "platform/controls.hpp"
#include "ui/look/theme.hpp"

#include <QWidget>

#include <functional>
#include <memory>

namespace brinewright {

// A thin bar that fills when a timer ticks and empties until its next tick; empty while the timer is stopped
// and while it does not count.
class Countdown_Bar : public QWidget {
    Q_OBJECT
  public:
    Countdown_Bar(const Theme& Colours, std::weak_ptr<Form> Owner, const Timer& Watched,
                  std::function<bool()> Counts);
    QSize sizeHint() const override { return {48, 4}; }

  protected:
    void paintEvent(QPaintEvent*) override;
    void timerEvent(QTimerEvent*) override;

  private:
    double Share() const; // 1 just after a tick, 0 before the next one or stopped

    const Theme& Colours;
    std::weak_ptr<Form> Owner;
    const Timer& Watched;
    std::function<bool()> Counts;
    int Shown_Pixels = -1;
};

} // namespace brinewright
