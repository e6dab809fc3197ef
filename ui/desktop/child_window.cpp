#include "ui/desktop/child_window.hpp"

#include <QMdiArea>
#include <QMouseEvent>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStyleOption>
#include <QToolButton>

#include <cstdlib>

namespace brinewright {

namespace {

constexpr int Snap_Distance = 8;

// Moves an edge, Low or High, onto the nearest of Edges that is near enough; 0 when none is.
int Way_To_Snap(int Low, int High, const std::vector<int>& Edges) {
    int Best = Snap_Distance + 1;
    for (const int Edge : Edges)
        for (const int Own : {Low, High})
            if (std::abs(Edge - Own) < std::abs(Best)) Best = Edge - Own;
    return std::abs(Best) <= Snap_Distance ? Best : 0;
}

// As large as those of the title that stand beside it.
class Title_Button : public QToolButton {
  public:
    using QToolButton::QToolButton;
    QSize sizeHint() const override { return {16, 16}; }
    QSize minimumSizeHint() const override { return sizeHint(); }
};

} // namespace

Child_Window::Child_Window()
    : Forms(new QStackedWidget), Scroll(new QScrollArea), Button(new Title_Button(this)) {
    Scroll->setWidgetResizable(true);
    Scroll->setFocusPolicy(Qt::NoFocus); // Tab stops at controls only
    setFocusPolicy(Qt::NoFocus);
    Forms->addWidget(Scroll);
    setWidget(Forms);
    Button->setObjectName(QStringLiteral("small_form"));
    Button->setFocusPolicy(Qt::NoFocus);
    Button->setAutoRaise(true);
    Button->hide();
    connect(Button, &QToolButton::clicked, this, &Child_Window::Size_Asked);
}

void Child_Window::Show_Whole(QWidget* Contents) { Scroll->setWidget(Contents); }

void Child_Window::Add_Small(QWidget* Contents) { Forms->addWidget(Contents); }

void Child_Window::Show_Small(bool Small) {
    Forms->setCurrentIndex(Small ? 1 : 0);
    Button->setText(Small ? QStringLiteral(u"\u25A3") : QStringLiteral("\u25AB"));
    Button->setToolTip(Small ? QStringLiteral("The whole window")
                             : QStringLiteral("Small: value, state and sentences"));
    Place_Button();
}

bool Child_Window::Shows_Small() const { return Forms->currentIndex() == 1; }

QSize Child_Window::Room() const { return Scroll->viewport()->size(); }

void Child_Window::Place_Button() {
    // Left of the three buttons of the title.
    QStyleOptionTitleBar Title;
    Title.initFrom(this);
    Title.rect = QRect(0, 0, width(), style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this));
    Title.titleBarFlags = windowFlags();
    const QRect Next =
        style()->subControlRect(QStyle::CC_TitleBar, &Title, QStyle::SC_TitleBarMinButton, this);
    Button->setGeometry(Next.translated(-Next.width() - 4, 0));
    Button->raise();
    Button->setVisible(Forms->count() > 1 && !isMinimized());
}

void Child_Window::resizeEvent(QResizeEvent* Resized) {
    QMdiSubWindow::resizeEvent(Resized);
    Place_Button();
}

void Child_Window::mouseMoveEvent(QMouseEvent* Moved) {
    const QRect Before = geometry();
    QMdiSubWindow::mouseMoveEvent(Moved);
    const QRect Now = geometry();
    const bool Dragged = Moved->buttons() & Qt::LeftButton && Now.size() == Before.size() && Now != Before;
    if (!Dragged || !mdiArea()) return;
    std::vector<int> Across{0, mdiArea()->viewport()->width()}, Down{0, mdiArea()->viewport()->height()};
    for (const QMdiSubWindow* Other : mdiArea()->subWindowList()) {
        if (Other == this || !Other->isVisible()) continue;
        const QRect G = Other->geometry();
        Across.insert(Across.end(), {G.x(), G.x() + G.width()});
        Down.insert(Down.end(), {G.y(), G.y() + G.height()});
    }
    const QPoint Way(Way_To_Snap(Now.x(), Now.x() + Now.width(), Across),
                     Way_To_Snap(Now.y(), Now.y() + Now.height(), Down));
    if (!Way.isNull()) move(Now.topLeft() + Way);
}

} // namespace brinewright
