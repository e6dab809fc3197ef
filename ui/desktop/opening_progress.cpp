#include "ui/desktop/opening_progress.hpp"

#include "shell/kit/layout.hpp"
#include "shell/state/shell_state.hpp"

#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace brinewright {

namespace {
constexpr std::int64_t Long_Wait_us = 50'000; // the pacing of sentences is no wait to tell of
}

Opening_Progress::Opening_Progress(Simulator& Its_Simulator)
    : QWidget(nullptr, Qt::SplashScreen), Sim(Its_Simulator),
      Text(new QLabel(QStringLiteral("Reading the setup"))), Bar(new QProgressBar) {
    setObjectName(QStringLiteral("form"));
    setAttribute(Qt::WA_StyledBackground);
    auto* Column = new QVBoxLayout(this);
    Column->setContentsMargins(rhythm::Margin, rhythm::Margin, rhythm::Margin, rhythm::Margin);
    Column->setSpacing(rhythm::Gap);
    Column->addWidget(Text);
    Column->addWidget(Bar);
    Bar->setTextVisible(false);
    setFixedWidth(360);
    adjustSize();
    if (const QScreen* Screen = QGuiApplication::primaryScreen())
        move(Screen->availableGeometry().center() - rect().center());
    Sim.Timers.Before_Spin = [this](std::int64_t Duration_us) {
        if (Duration_us >= Long_Wait_us) Look();
    };
}

Opening_Progress::~Opening_Progress() { Sim.Timers.Before_Spin = nullptr; }

void Opening_Progress::Look() {
    const bool First = !isVisible();
    if (First) show();
    const int Wanted = std::max<int>(Sim.State.Of<Shell_State>().Open_Form_Count, 1);
    const int Open = static_cast<int>(Sim.Windows.Forms.size()) - 1;
    Text->setText(QStringLiteral("Opening window %1 of %2").arg(std::min(Open + 1, Wanted)).arg(Wanted));
    Bar->setRange(0, Wanted);
    Bar->setValue(std::min(Open, Wanted));
    // The window system has to put the window up once; after that it is painted without a turn of the event
    // loop.
    if (First)
        QGuiApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                       QEventLoop::ExcludeSocketNotifiers);
    repaint();
}

} // namespace brinewright
