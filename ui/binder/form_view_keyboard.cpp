// Keys, clicks and the keyboard's coming: what they are to the model.

#include "ui/binder/form_view.hpp"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <iterator>
#include <utility>

namespace brinewright {

// True: the form takes it, so the control that has the focus does not see it.
bool Form_View::Preview_Key(const QKeyEvent& Pressed) {
    const auto F = Source.lock();
    if (!F->Key_Preview) return false;
    static constexpr std::pair<Qt::Key, int> Codes[] = {
        {Qt::Key_Left, key::Left},    {Qt::Key_Up, key::Up},          {Qt::Key_Right, key::Right},
        {Qt::Key_Down, key::Down},    {Qt::Key_PageUp, key::Page_Up}, {Qt::Key_PageDown, key::Page_Down},
        {Qt::Key_Escape, key::Escape}};
    const auto* Row = std::find_if(std::begin(Codes), std::end(Codes),
                                   [&](const auto& R) { return R.first == Pressed.key(); });
    if (Row == std::end(Codes)) return false;
    const Qt::KeyboardModifiers Held = Pressed.modifiers();
    const Key_Modifiers Told{Held.testFlag(Qt::ShiftModifier), Held.testFlag(Qt::ControlModifier),
                             Held.testFlag(Qt::AltModifier)};
    Act([&](Desktop& D) { D.User_Key(*F, Row->second, Told); });
    return true;
}

// The keyboard came to a control.
void Form_View::Enter(Binding& B, Qt::FocusReason Why) {
    const auto F = Source.lock();
    Control& C = *B.Source;
    Desktop& Windows = F->Windows;
    if (Windows.Focus == &C || !C.Can_Focus()) return;
    // Back from another window, the keyboard is where the toolkit left it; the model may have moved since.
    const bool Back =
        Why == Qt::ActiveWindowFocusReason || Why == Qt::PopupFocusReason || Why == Qt::MenuBarFocusReason;
    if (Back && Windows.Focus && &Windows.Focus->Owner == F.get()) return Follow_Focus(Windows);
    if (Back && Windows.Active_Form != F.get() && F->Kind == Form_Kind::Child && Windows.Active_Form &&
        Windows.Active_Form->Kind == Form_Kind::Child)
        return Acted(); // another window was chosen meanwhile, and takes the keyboard
    const bool Opens = !Windows.Focus && F->Kind == Form_Kind::Dialog;
    Act([&C](Desktop& D) { D.User_Focus(C); });
    if (Windows.Focus != &C || Why == Qt::MouseFocusReason) return;
    // At once: the first key may wait already, and what it types is not to be selected.
    B.Show();
    if (auto* Line = qobject_cast<QLineEdit*>(B.Widget); Line && Opens) Line->selectAll();
}

// A window that was not active when it was clicked tells of its new focus late or never.
void Form_View::Press(Binding& B, const QMouseEvent& Pressed) {
    Control& C = *B.Source;
    const bool Left = Pressed.button() == Qt::LeftButton;
    if (C.Kind == Control_Kind::Label)
        Act([&C, Left](Desktop& D) { D.User_Click(C, Left ? Mouse_Button::Left : Mouse_Button::Right); });
    else if (C.Can_Focus() && C.Owner.Windows.Focus != &C && B.Widget->focusPolicy() & Qt::ClickFocus)
        Act([&C](Desktop& D) { D.User_Focus(C); });
}

// True: the key is used up.
bool Form_View::Type_Key(Binding& B, const QKeyEvent& Pressed) {
    if (Preview_Key(Pressed)) return true;
    if (B.Source->Kind != Control_Kind::Text_Box && B.Source->Kind != Control_Kind::Combo_Box) return false;
    const auto& Typed = static_cast<const Typed_Control&>(*B.Source);
    const bool Enter = Pressed.key() == Qt::Key_Return || Pressed.key() == Qt::Key_Enter;
    const bool Restores = Pressed.key() == Qt::Key_Escape && Typed.Half_Typed();
    const bool Editable =
        B.Source->Kind == Control_Kind::Text_Box || static_cast<const Combo_Box&>(Typed).Free_Text;
    if (!Editable || (!Enter && !Restores)) return false;
    const auto F = Source.lock();
    const std::uint64_t Refused_Before = F->Windows.Refusals;
    Act([&](Desktop& D) { D.User_Key(*F, Enter ? key::Enter : key::Escape); });
    B.Show();
    // A dialog does not go on to OK over what it has just refused.
    return Restores || F->Windows.Refusals != Refused_Before;
}

bool Form_View::eventFilter(QObject* Watched, QEvent* Happened) {
    Binding* B = Source.expired() ? nullptr : Binding_Of(Watched);
    if (!B) return QWidget::eventFilter(Watched, Happened);
    const auto Kept = Source.lock(); // a handler may close the window
    switch (Happened->type()) {
    case QEvent::FocusIn:
        if (Watched != B->Widget) break;
        if (Following)
            Moved_To = B->Source->Can_Focus() ? B->Source : nullptr;
        else
            Enter(*B, static_cast<QFocusEvent*>(Happened)->reason());
        break;
    case QEvent::MouseButtonPress: Press(*B, *static_cast<QMouseEvent*>(Happened)); break;
    case QEvent::MouseButtonRelease:
        if (B->Source->Can_Focus()) B->Show(); // selects what is to be selected before a key can come
        break;
    case QEvent::KeyPress:
        if (Watched == B->Widget && Type_Key(*B, *static_cast<QKeyEvent*>(Happened))) return true;
        break;
    default: break;
    }
    return QWidget::eventFilter(Watched, Happened);
}

} // namespace brinewright
