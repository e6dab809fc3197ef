#pragma once

#include "shell/state/simulator.hpp"
#include "ui/binder/form_view.hpp"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>

#include <map>
#include <memory>

namespace brinewright {

class Box_View;
class Form_Window;
class Link_Panels;
class Menu_Bar;
class Status_Strip;
class Working_Area;

// The desktop as seen: the main window with menus, status bar and child windows, dialogs and message boxes.
// Like every view it owns nothing of the program: it follows the forms that are open and reports what the
// user does. It looks at most 20 times a second, and only when something has changed.
class Desktop_View : public QMainWindow {
    Q_OBJECT
  public:
    Desktop_View(Simulator& Its_Simulator, Theme& Its_Theme);
    ~Desktop_View() override;

    void Open();   // shows the main window at its kept place, with what is open
    void Follow(); // now, instead of at the next look
    // The window of a form, frmMain included; null when the form is not open.
    QWidget* Window_Of(const std::string& Form_Path);
    // Saves a picture of a form's window. Empty, or what went wrong.
    std::string Grab(const std::string& Form_Path, const std::string& File);

  protected:
    void closeEvent(QCloseEvent* Closing) override;
    void moveEvent(QMoveEvent* Moved) override;
    void resizeEvent(QResizeEvent* Resized) override;
    void changeEvent(QEvent* Changed) override;

  private:
    void Place_From_Model();
    void Report_Place();
    void Follow_Windows();
    void Follow_Main();
    void Follow_Title();
    // A type of its own, so that the view finds its hook again among others.
    struct Settled_Hook {
        Desktop_View& View;
        void operator()() const { View.Look_Soon(); }
    };
    void Look_Soon();
    void Look_Between_Ticks();

    Simulator& Sim;
    Theme& Colours;
    Working_Area* Area;
    Menu_Bar* Menus;
    Status_Strip* Strip;
    Link_Panels* Panels;
    Box_View* Boxes;
    QTimer Look;
    QTimer Title_Later;
    QElapsedTimer Saved_Looked;
    std::map<const Form*, std::unique_ptr<Form_Window>> Shown;
    std::uint64_t Seen = 0;
    int Postponed_Looks = 0;
    const Form* Active_Seen = nullptr;
    bool Placing = true;
};

} // namespace brinewright
