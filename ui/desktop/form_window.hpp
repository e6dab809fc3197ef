#pragma once

#include "ui/binder/form_view.hpp"

#include <QMdiArea>
#include <QPointer>
#include <QRect>

#include <functional>
#include <memory>

class QDialog;
class QDockWidget;

namespace brinewright {

class Child_Window;

// The frame around the view of one form: a child window of the main window, a dialog, or what stands at its
// side. Its place and size
// follow the form, and the form follows what the user drags.
class Form_Window : public QObject {
    Q_OBJECT
  public:
    Form_Window(Simulator& Sim, const std::shared_ptr<Form>& Shown, const Theme& Colours, QMdiArea& Area);
    ~Form_Window() override;

    void Follow(); // title, place and contents
    void Activate();
    QWidget* Frame_Widget() const;
    Form_View& View() { return *Its_View; }

  protected:
    bool eventFilter(QObject* Watched, QEvent* Happened) override;

  private:
    void Make_Child(const Form& Shown);
    void Make_Dock();
    Form_View& Seen_View() const;
    bool Wants_Small(const Form& F) const;
    QSize Contents_Size() const;
    void Apply_State(const Form& F);
    void Report_State();
    void Report_Needs(Form& F);
    void Apply_Place(const Form& F);
    void Place_Dialog(const Form& F);
    QWidget* Widget_Below(const std::string& Control_Path) const;
    void Grow_To_Contents();
    void Report_Place();
    void Close_By_User();
    void Press(const char* First_Name, const char* Other_Name);

    std::weak_ptr<Form> Source;
    Form_View* Its_View;
    Form_View* Small_View = nullptr; // null: the window has no small form
    QPointer<Child_Window> Child;    // one of these three
    QPointer<QDialog> Dialog;
    QPointer<QDockWidget> Dock;
    QMdiArea& Area;
    float Left = 0, Top = 0, Width = 0, Height = 0; // of the form, as applied last
    QRect Applied; // the geometry that this gave the child window, as far as the user has not changed it
    QSize Needed;  // by the contents, when they were looked at last
    Window_State State = Window_State::Normal; // of the form, as applied last
    bool Placing = false;
    bool First = true;
};

} // namespace brinewright
