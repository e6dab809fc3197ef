#include "ui/instruments/countdown_bar.hpp"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace brinewright {

namespace {
constexpr int Look_Pause_ms = 100;
}

Countdown_Bar::Countdown_Bar(const Theme& Its_Theme, std::weak_ptr<Form> Its_Owner, const Timer& Its_Timer,
                             std::function<bool()> Its_Counts)
    : Colours(Its_Theme), Owner(std::move(Its_Owner)), Watched(Its_Timer), Counts(std::move(Its_Counts)) {
    setFixedHeight(4);
    setAttribute(Qt::WA_OpaquePaintEvent); // so that nothing beneath is painted with it
    setMinimumWidth(40);
    startTimer(Look_Pause_ms);
}

double Countdown_Bar::Share() const {
    if (Owner.expired() || Watched.Interval_ms() <= 0 || !Counts()) return 0;
    return std::clamp(Watched.Until_Tick_ms() / Watched.Interval_ms(), 0.0, 1.0);
}

void Countdown_Bar::timerEvent(QTimerEvent*) {
    const int Pixels = static_cast<int>(Share() * width());
    if (!isVisible() || Pixels == Shown_Pixels) return;
    Shown_Pixels = Pixels;
    update();
}

void Countdown_Bar::paintEvent(QPaintEvent*) {
    QPainter Painter(this);
    Painter.fillRect(rect(), Colours.Colour(Token::Line));
    Painter.fillRect(QRect(0, 0, static_cast<int>(Share() * width()), height()), Colours.Colour(Token::Good));
}

} // namespace brinewright
