#pragma once

#include <QMdiSubWindow>

class QStackedWidget;
class QScrollArea;
class QToolButton;

namespace brinewright {

// The frame of a child window: it snaps to the edges of the area and of its neighbours while it is moved, and
// shows its contents whole or in their small form, with a button in its title that changes between them.
class Child_Window : public QMdiSubWindow {
    Q_OBJECT
  public:
    Child_Window();

    void Show_Whole(QWidget* Contents); // scrolled where there is too little room
    void Add_Small(QWidget* Contents);  // the button comes with it
    void Show_Small(bool Small);
    bool Shows_Small() const;
    QSize Room() const; // for the whole contents

  Q_SIGNALS:
    void Size_Asked(); // the button was pressed

  protected:
    void mouseMoveEvent(QMouseEvent* Moved) override;
    void resizeEvent(QResizeEvent* Resized) override;

  private:
    void Place_Button();

    QStackedWidget* Forms;
    QScrollArea* Scroll;
    QToolButton* Button;
};

} // namespace brinewright
