#include "ui/desktop/form_window.hpp"

#include "shell/arrange/arrange.hpp"
#include "ui/desktop/child_window.hpp"
#include "ui/layout/layout_builder.hpp"

#include <QApplication>
#include <QDialog>
#include <QDockWidget>
#include <QEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace brinewright {

namespace {

int Pixels(float Twips) { return static_cast<int>(Twips / Twips_Per_Pixel); }
float Twips(int Pixel_Count) { return static_cast<float>(Pixel_Count * Twips_Per_Pixel); }

} // namespace

Form_Window::Form_Window(Simulator& Sim, const std::shared_ptr<Form>& Shown, const Theme& Colours,
                         QMdiArea& Its_Area)
    : Source(Shown), Its_View(new Form_View(Sim, Shown, Colours)), Area(Its_Area) {
    // The frames first: a view that moves into them with all its widgets is styled anew at each step.
    if (Shown->Kind == Form_Kind::Dialog) {
        Dialog = new QDialog(Area.window());
        auto* Box = new QVBoxLayout(Dialog);
        Box->setContentsMargins(0, 0, 0, 0);
        Box->addWidget(Its_View);
        Box->setSizeConstraint(QLayout::SetMinimumSize);
        Dialog->installEventFilter(this);
    } else if (Shown->Kind == Form_Kind::Side) {
        Make_Dock();
    } else {
        Make_Child(*Shown);
    }
    Lay_Out(*Its_View, *Shown);
    Its_View->installEventFilter(this);
}

Form_Window::~Form_Window() {
    Placing = true;
    const bool Had_Keyboard = Dialog && Dialog->isActiveWindow();
    delete Child;
    delete Dock;
    delete Dialog;
    // Without a window manager nobody else gives it back.
    if (Had_Keyboard) Area.window()->activateWindow();
}

QWidget* Form_Window::Frame_Widget() const {
    if (Dock) return Dock;
    return Child ? static_cast<QWidget*>(Child) : static_cast<QWidget*>(Dialog);
}

Form_View& Form_Window::Seen_View() const { return Child && Child->Shows_Small() ? *Small_View : *Its_View; }

void Form_Window::Report_Needs(Form& F) {
    if (!Child) return;
    const QSize Needs = Contents_Size() + QSize(Child->width() - Child->contentsRect().width(),
                                                Child->height() - Child->contentsRect().height());
    F.Needs_Width = Twips(Needs.width());
    F.Needs_Height = Twips(Needs.height());
}

QSize Form_Window::Contents_Size() const {
    const Form_View& View = Seen_View();
    View.layout()->activate();
    return View.layout()->sizeHint().expandedTo(View.minimumSize());
}

void Form_Window::Follow() {
    const auto F = Source.lock();
    if (!F) return;
    Placing = true;
    if (Child && Child->Shows_Small() != Wants_Small(*F)) {
        Child->Show_Small(Wants_Small(*F));
        if (!First && F->State == Window_State::Normal) Left = -1; // takes the size of this form
    }
    Seen_View().Refresh();
    if (Frame_Widget()->windowTitle() != To_Screen(F->Caption))
        Frame_Widget()->setWindowTitle(To_Screen(F->Caption));
    const bool Moved = F->Left != Left || F->Top != Top || F->Width != Width || F->Height != Height;
    if (First && Dialog) Place_Dialog(*F);
    if (First) Frame_Widget()->show(); // before its place: the area puts windows that open where it likes
    // What its parts ask for now that they are styled reaches the outermost layout in steps.
    if (First) QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    Apply_State(*F);
    if (First) Report_Needs(*F);
    const bool No_Place = F->Unplaced && F->Left == 0 && F->Top == 0;
    if (First && Child && No_Place) Place_Free(Its_View->Sim, *F);
    if (Moved || First) Apply_Place(*F);
    Report_Needs(*F);
    // The scroll bars of the small window that it was at first go with the next layout only.
    if (First) QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    First = false;
    Placing = false;
    Grow_To_Contents();
}

// What is shown later may need more room than the window was given; room that the user has taken away since
// is not claimed back.
void Form_Window::Grow_To_Contents() {
    const auto F = Source.lock();
    if (!F || !Child || First || Placing || Child->Shows_Small()) return;
    const QSize Needs = Its_View->layout()->minimumSize(), Room = Child->Room();
    const bool More = Needs.boundedTo(Needed) != Needs;
    Needed = Needs;
    if (!More || Needs.boundedTo(Room) == Needs) return;
    Placing = true;
    Apply_Place(*F);
    Placing = false;
}

// The size that the form asks for, but never less than its contents need.
void Form_Window::Apply_Place(const Form& F) {
    Left = F.Left;
    Top = F.Top;
    Width = F.Width;
    Height = F.Height;
    if (!Child || F.State != Window_State::Normal) return;
    const QMargins Frame_Margins = Child->contentsMargins();
    const QSize Contents = Contents_Size() + QSize(Frame_Margins.left() + Frame_Margins.right(),
                                                   Frame_Margins.top() + Frame_Margins.bottom());
    QSize Wanted = Contents;
    if (!Child->Shows_Small()) Wanted = Wanted.expandedTo(QSize(Pixels(Width), Pixels(Height)));
    QPoint Corner(std::max(Pixels(Left), 0), std::max(Pixels(Top), 0));
    const QWidget* Room = Child->parentWidget();
    if (Room && Room->width() > 200 && Room->height() > 200) {
        // A window that opens or grows does so inside the area, as far as it can.
        Wanted = Wanted.boundedTo(Room->size());
        Corner.setX(std::min(Corner.x(), Room->width() - Wanted.width()));
        Corner.setY(std::min(Corner.y(), Room->height() - Wanted.height()));
    }
    Child->setGeometry(QRect(Corner, Wanted));
    Applied = Child->geometry();
}

QWidget* Form_Window::Widget_Below(const std::string& Control_Path) const {
    const auto F = Source.lock();
    const Control* C = F ? F->Windows.Find_Control(Control_Path) : nullptr;
    if (!C) return nullptr;
    for (const Form_View* V : Area.findChildren<Form_View*>())
        if (QWidget* W = V->Widget_Of(*C)) return W;
    return nullptr;
}

// In its proportions, as large as its contents need, and held on the screen.
void Form_Window::Place_Dialog(const Form& F) {
    for (QWidget* W : Dialog->findChildren<QWidget*>()) W->ensurePolished();
    Its_View->layout()->activate();
    const QSize Needs = Its_View->layout()->sizeHint().expandedTo(Its_View->minimumSize());
    QSize Wanted = Needs;
    if (F.Width > 0 && F.Height > 0) {
        const QSizeF Told(F.Width / Twips_Per_Pixel, F.Height / Twips_Per_Pixel);
        const double Factor = std::max({1.0, Needs.width() / Told.width(), Needs.height() / Told.height()});
        Wanted = (Told * Factor).toSize().expandedTo(Needs);
    }
    const QRect Screen = Area.screen()->availableGeometry();
    Dialog->resize(Wanted.boundedTo(Screen.size()));
    const QWidget* const Above = F.Under.empty() ? nullptr : Widget_Below(F.Under);
    const bool Has_Place = F.Left != 0 || F.Top != 0;
    if (!Above && !Has_Place) return; // the toolkit puts it over the middle of the main window
    QPoint Corner = Above ? Above->mapToGlobal(QPoint(0, Above->height() + rhythm::Base))
                          : Area.mapToGlobal(QPoint(Pixels(F.Left), Pixels(F.Top)));
    // About what a window manager puts around it.
    const QRect Room = Screen.adjusted(0, 0, -Dialog->width() - 10, -Dialog->height() - 40);
    Corner.setX(std::max(Screen.left(), std::min(Corner.x(), Room.right())));
    Corner.setY(std::max(Screen.top(), std::min(Corner.y(), Room.bottom())));
    Dialog->move(Corner);
}

void Form_Window::Activate() {
    if (Child) {
        const QWidget* const Has_It = QApplication::focusWidget();
        const bool Elsewhere = Has_It && Area.isAncestorOf(Has_It) && !Child->isAncestorOf(Has_It);
        if (Area.activeSubWindow() == Child && !Elsewhere) return;
        Placing = true;
        Area.setActiveSubWindow(Child);
        Placing = false;
        if (Elsewhere) Seen_View().Take_Keyboard();
    } else if (Dialog && !Dialog->isActiveWindow()) {
        Dialog->raise();
        Dialog->activateWindow();
    }
}

void Form_Window::Report_Place() {
    const auto F = Source.lock();
    if (!F || !F->Loaded || !Child || Child->isMinimized() || Child->isMaximized()) return;
    F->Unplaced = false;
    const QRect Now = Child->geometry();
    if (Now == Applied) return;
    F->Windows.Event([&] {
        if (Now.size() != Applied.size())
            F->Set_Place(Twips(Now.x()), Twips(Now.y()), Twips(Now.width()), Twips(Now.height()));
        F->Left = Twips(Now.x());
        F->Top = Twips(Now.y());
    });
    Applied = Now;
    Left = F->Left;
    Top = F->Top;
    Width = F->Width;
    Height = F->Height;
    Q_EMIT Its_View->Acted();
}

void Form_Window::Close_By_User() {
    if (const auto F = Source.lock()) F->Windows.Event([&F] { F->Windows.User_Close(*F); });
    Q_EMIT Its_View->Acted();
}

void Form_Window::Press(const char* First_Name, const char* Other_Name) {
    const auto F = Source.lock();
    if (!F) return;
    Control* Target = F->Find(First_Name);
    if (!Target) Target = F->Find(Other_Name);
    if (Target)
        Its_View->Act([Target](Desktop& D) { D.User_Click(*Target); });
    else
        Close_By_User();
}

bool Form_Window::eventFilter(QObject* Watched, QEvent* Happened) {
    switch (Happened->type()) {
    case QEvent::MouseButtonPress:
        // On its title, or where it has no control: what is half typed is taken, and the window comes up.
        if (Watched != Child) break;
        Its_View->Act([](Desktop& D) { D.Take_Half_Typed(); });
        if (Area.activeSubWindow() != Child) Area.setActiveSubWindow(Child);
        break;
    case QEvent::LayoutRequest:
        if (Watched == Its_View) Grow_To_Contents();
        break;
    case QEvent::Close:
        if (Placing) break;
        Happened->ignore(); // the model closes the window, and then the view goes
        Close_By_User();
        return true;
    case QEvent::Move:
    case QEvent::Resize:
        if (!Placing && Watched != Its_View) Report_Place();
        break;
    case QEvent::WindowStateChange:
        // Later: on the way to another state the area passes others.
        if (!Placing && Watched == Child) QTimer::singleShot(0, this, [this] { Report_State(); });
        break;
    case QEvent::KeyPress:
        if (Watched != Dialog) break;
        if (const int Key = static_cast<QKeyEvent*>(Happened)->key(); Key == Qt::Key_Escape) {
            Press("cmdCancel", "cmdNo");
            return true;
        } else if (Key == Qt::Key_Return || Key == Qt::Key_Enter) {
            Press("cmdOK", "cmdOk");
            return true;
        }
        break;
    default: break;
    }
    return QObject::eventFilter(Watched, Happened);
}

} // namespace brinewright
