// The frames of child windows and of what stands at the side, and the states of a child window.

#include "ui/desktop/child_window.hpp"
#include "ui/desktop/form_window.hpp"
#include "ui/layout/layout_builder.hpp"

#include <QDockWidget>
#include <QIcon>
#include <QMainWindow>
#include <QScrollArea>

namespace brinewright {

void Form_Window::Make_Child(const Form& Shown) {
    Child = new Child_Window;
    QPixmap No_Picture(1, 1); // titles carry none
    No_Picture.fill(Qt::transparent);
    Child->setWindowIcon(QIcon(No_Picture));
    Child->setAttribute(Qt::WA_DeleteOnClose, false);
    Area.addSubWindow(Child);
    Child->Show_Whole(Its_View);
    Child->installEventFilter(this);
    connect(Child, &QMdiSubWindow::aboutToActivate, this, [this] {
        // The area makes a window active that is minimised or about to be; that is not chosen by the user.
        const auto F = Source.lock();
        if (F && !Placing && F->State == State && State != Window_State::Minimised)
            F->Windows.Event([&F] { F->Windows.Activate(*F); });
    });
    if (!Has_Small_Form(*Its_View, Shown)) return Child->Show_Small(false);
    Small_View = new Form_View(Its_View->Sim, Source.lock(), Its_View->Colours);
    Child->Add_Small(Small_View);
    Lay_Out_Small(*Small_View, *Source.lock());
    Child->Show_Small(false);
    connect(Small_View, &Form_View::Acted, Its_View, &Form_View::Acted);
    connect(Child, &Child_Window::Size_Asked, this, [this] {
        if (const auto F = Source.lock()) F->Windows.Event([&] { F->Set_Small(!Child->Shows_Small()); });
        Q_EMIT Its_View->Acted();
    });
}

// At the left side of the main window, which shares its room with it.
void Form_Window::Make_Dock() {
    Dock = new QDockWidget;
    Dock->setFeatures(QDockWidget::NoDockWidgetFeatures);
    Dock->setTitleBarWidget(new QWidget); // its menu entry closes it
    auto* Scroll = new QScrollArea;
    Scroll->setWidgetResizable(true);
    Scroll->setFocusPolicy(Qt::NoFocus);
    Scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Scroll->setWidget(Its_View);
    Dock->setWidget(Scroll);
    Dock->installEventFilter(this);
    static_cast<QMainWindow*>(Area.window())->addDockWidget(Qt::LeftDockWidgetArea, Dock);
}

// Small when it is wanted so, or when the user has left it so little room that most would be hidden.
bool Form_Window::Wants_Small(const Form& F) const {
    if (!Small_View) return false;
    if (F.Small || First) return F.Small;
    constexpr double Least_Share = 0.6;
    const QSize Needs = Its_View->layout()->minimumSize(), Room = Child->contentsRect().size();
    return Room.width() < Least_Share * Needs.width() || Room.height() < Least_Share * Needs.height();
}

// Minimised and maximised follow the form, as its place does.
void Form_Window::Apply_State(const Form& F) {
    if (!Child || F.State == State) return;
    State = F.State;
    if (State == Window_State::Minimised) Child->showMinimized();
    if (State == Window_State::Maximised) Child->showMaximized();
    if (State == Window_State::Normal) Child->showNormal();
}

void Form_Window::Report_State() {
    const auto F = Source.lock();
    if (!F || !F->Loaded || !Child) return;
    State = Child->isMinimized()   ? Window_State::Minimised
            : Child->isMaximized() ? Window_State::Maximised
                                   : Window_State::Normal;
    if (F->State == State) return;
    F->Windows.Event([&] { F->Set_State(State); });
    Q_EMIT Its_View->Acted();
}

} // namespace brinewright
