#pragma once

#include "platform/desktop.hpp"
#include "shell/state/simulator.hpp"
#include "ui/look/theme.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTableView>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace brinewright {

class Callout;
struct Marked_Text;

// Between the program's texts (8-bit Latin-1, may hold a NUL) and the toolkit's. What Latin-1 cannot hold
// becomes "?".
QString To_Screen(const std::string& Text);
std::string From_Screen(const QString& Text);

inline constexpr int Twips_Per_Pixel = 15; // at 96 dots an inch

// One window as seen: widgets bound both ways to the controls of a form. It holds the form weakly and owns no
// values: it shows what the controls hold and reports what the user does.
class Form_View : public QWidget {
    Q_OBJECT
  public:
    Form_View(Simulator& Sim, const std::shared_ptr<Form>& Shown, const Theme& Colours);

    // Each makes the widget of a control and binds it; the layout of the form places it. One widget per
    // control.
    QPushButton* Make(Button& C);
    QCheckBox* Make(Check_Box& C);
    QComboBox* Make(Combo_Box& C);
    QLineEdit* Make(Text_Box& C);
    QPlainTextEdit* Make_Pane(Text_Box& C); // a text of many lines
    QPlainTextEdit* Make(Marked_Text& C);
    QSlider* Make(Scroll_Bar& C, Qt::Orientation Direction);
    QRadioButton* Make(Option_Button& C);
    QLabel* Make(Label& C, const char* Role = "");
    QGroupBox* Make(Frame& C);
    QTableView* Make(Grid& C);

    // Runs with every look at the form, for what is more than one control (frames by width, painted
    // instruments).
    void When_Shown(std::function<void()> Look) { Looks.push_back(std::move(Look)); }

    void Refresh(); // follows the controls that have changed since the last call
    // Whether the widget that has the keyboard is that of the control that has the focus, or none of this
    // window's has it. So it is after each key and click.
    bool Keyboard_Is_At_Focus() const;
    void Take_Keyboard(); // where it was last, or at the first control
    QWidget* Widget_Of(const Control& C) const;
    std::shared_ptr<Form> Shown_Form() const { return Source.lock(); }
    Simulator& Sim; // for painted instruments that show more than controls
    const Theme& Colours;

    // Lets the user do something: as one event, refusals are a beep.
    void Act(const std::function<void(Desktop&)>& Work);

  Q_SIGNALS:
    void Acted(); // the user did something; the views want a look soon

  protected:
    bool eventFilter(QObject* Watched, QEvent* Happened) override;
    void paintEvent(QPaintEvent* Wanted) override;

  private:
    struct Binding {
        Visible_Control* Source;
        QWidget* Widget;
        QWidget* Pressed; // what the mouse meets: the widget itself or what lies in it
        std::function<void()> Show;
        std::uint64_t Seen = ~std::uint64_t{0};
        bool Was_Shown = false; // a frame may hide it without its being touched
    };

    void Bind(Visible_Control& C, QWidget* W, std::function<void()> Show);
    void Show_Common(const Visible_Control& C, QWidget* W);
    void Show_Refusal(const Typed_Control& C, QWidget* W);
    Binding* Binding_Of(const QObject* W);
    void Follow_Focus(const Desktop& Windows);
    void Enter(Binding& B, Qt::FocusReason Why);
    void Press(Binding& B, const QMouseEvent& Pressed);
    bool Type_Key(Binding& B, const QKeyEvent& Pressed);
    bool Preview_Key(const QKeyEvent& Pressed);

    std::weak_ptr<Form> Source;
    std::vector<Binding> Bindings;
    std::vector<std::function<void()>> Looks;
    std::map<const QWidget*, Callout*> Callouts;
    QString Letters = QStringLiteral("FMSVWOH"); // taken already, first of all by the menus
    std::uint64_t Seen = ~std::uint64_t{0};
    bool Following = false;              // the view moves the focus itself: no report
    Control* Moved_To = nullptr;         // where the focus went meanwhile
    const Control* Focus_Seen = nullptr; // of the model, compared only
};

} // namespace brinewright
