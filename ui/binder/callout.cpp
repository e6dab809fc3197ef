#include "ui/binder/callout.hpp"

#include <QApplication>
#include <QGroupBox>

#include <algorithm>
#include <array>

namespace brinewright {

namespace {

constexpr int Gap = 4, Widest = 300;

int Area(const QRect& R) { return R.isEmpty() ? 0 : R.width() * R.height(); }

} // namespace

Callout::Callout(QWidget* View) : QLabel(View) {
    setObjectName(QStringLiteral("refusal"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
    // Not over the field that the user goes on to.
    connect(qApp, &QApplication::focusChanged, this, [this] {
        if (Its_Field && isVisible()) Stand_Beside(*Its_Field);
    });
}

void Callout::Say(const QString& Why, const QWidget& Beside) {
    if (Why == text() && isHidden() == Why.isEmpty()) return;
    setText(Why);
    setVisible(!Why.isEmpty());
    if (Why.isEmpty()) return;
    ensurePolished();
    setWordWrap(false);
    const QSize One_Line = sizeHint();
    setWordWrap(true);
    const bool Wraps = One_Line.width() > Widest;
    resize(Wraps ? QSize(Widest, heightForWidth(Widest)) : One_Line);
    Its_Field = &Beside;
    Stand_Beside(Beside);
    raise();
}

// Below, above or at a side of the field: where it covers least of what can be worked with, and least of all
// the field that has the keyboard now.
void Callout::Stand_Beside(const QWidget& Field) {
    const QWidget& View = *parentWidget();
    const QRect Place(Field.mapTo(&View, QPoint(0, 0)), Field.size());
    const std::array<QPoint, 4> Corners{
        QPoint(Place.right() + Gap, Place.center().y() - height() / 2),
        QPoint(Place.left(), Place.bottom() + Gap), QPoint(Place.left(), Place.top() - Gap - height()),
        QPoint(Place.left() - Gap - width(), Place.center().y() - height() / 2)};
    const auto Covered = [&](const QPoint& Corner) {
        constexpr int Of_Keyboard = 10, Outside = 20;
        const QRect Taken(Corner, size());
        int Sum = Outside * (Area(Taken) - Area(Taken & View.rect()));
        for (const QWidget* W : View.findChildren<QWidget*>()) {
            if (W == this || !W->isVisible() || W->focusPolicy() == Qt::NoFocus) continue;
            const QRect Its(W->mapTo(&View, QPoint(0, 0)), W->size());
            Sum += (W->hasFocus() || W == &Field ? Of_Keyboard : 1) * Area(Taken & Its);
        }
        return Sum;
    };
    move(*std::min_element(Corners.begin(), Corners.end(),
                           [&](const QPoint& A, const QPoint& B) { return Covered(A) < Covered(B); }));
}

} // namespace brinewright
