#include "ui/binder/roving_stop.hpp"

#include <QEvent>
#include <QKeyEvent>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <utility>

namespace brinewright {

namespace {

QPoint Middle(const QWidget& W) { return W.mapTo(W.window(), W.rect().center()); }

bool Usable(const QWidget& W) { return W.isEnabled() && W.isVisible(); }

} // namespace

Roving_Stop::Roving_Stop(std::vector<QWidget*> Its_Members, QObject* Parent)
    : QObject(Parent), Members(std::move(Its_Members)) {
    for (QWidget* W : Members) {
        W->installEventFilter(this);
        W->setFocusPolicy(Qt::ClickFocus);
    }
    if (!Members.empty()) Stop_At(Members.front());
}

void Roving_Stop::Stop_At(QWidget* W) {
    if (Stop) Stop->setFocusPolicy(Qt::ClickFocus);
    Stop = W;
    Stop->setFocusPolicy(Qt::StrongFocus);
}

void Roving_Stop::Follow() {
    if (!Stop || Usable(*Stop)) return;
    const auto First = std::find_if(Members.begin(), Members.end(), [](QWidget* W) { return Usable(*W); });
    if (First != Members.end()) Stop_At(*First);
}

// The nearest in the direction of the arrow, straight ahead before aslant. Right and left go on to the next
// line where the line ends.
QWidget* Roving_Stop::Next(const QWidget& From, int Key) const {
    const bool Lies = Key == Qt::Key_Left || Key == Qt::Key_Right;
    const int Sign = Key == Qt::Key_Right || Key == Qt::Key_Down ? 1 : -1;
    QWidget* Best = nullptr;
    int Least = std::numeric_limits<int>::max();
    for (QWidget* W : Members) {
        const QPoint Way = (Middle(*W) - Middle(From)) * Sign;
        const int Ahead = Lies ? Way.x() : Way.y(), Aside = std::abs(Lies ? Way.y() : Way.x());
        if (W == &From || !Usable(*W) || Ahead <= 0 || (Lies && Aside > From.height() / 2)) continue;
        constexpr int Aslant = 3;
        if (Ahead + Aslant * Aside < Least) {
            Least = Ahead + Aslant * Aside;
            Best = W;
        }
    }
    if (Best || !Lies) return Best;
    const auto Here = std::find(Members.begin(), Members.end(), &From) - Members.begin();
    for (auto I = Here + Sign; I >= 0 && I < static_cast<std::ptrdiff_t>(Members.size()); I += Sign)
        if (Usable(*Members[static_cast<std::size_t>(I)])) return Members[static_cast<std::size_t>(I)];
    return nullptr;
}

bool Roving_Stop::eventFilter(QObject* Watched, QEvent* Happened) {
    auto* const W = static_cast<QWidget*>(Watched);
    if (Happened->type() == QEvent::FocusIn) Stop_At(W);
    if (Happened->type() != QEvent::KeyPress) return QObject::eventFilter(Watched, Happened);
    const auto* Pressed = static_cast<QKeyEvent*>(Happened);
    const int Key = Pressed->key();
    const bool Is_Arrow =
        Key == Qt::Key_Left || Key == Qt::Key_Right || Key == Qt::Key_Up || Key == Qt::Key_Down;
    if (!Is_Arrow || (Pressed->modifiers() & ~Qt::KeypadModifier))
        return QObject::eventFilter(Watched, Happened);
    if (QWidget* Wanted = Next(*W, Key))
        Wanted->setFocus(Key == Qt::Key_Left || Key == Qt::Key_Up ? Qt::BacktabFocusReason
                                                                  : Qt::TabFocusReason);
    return true;
}

} // namespace brinewright
