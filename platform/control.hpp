#pragma once

#include "platform/run_time_error.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace brinewright {

struct Form;

// What a control holds, as automation and views exchange it.
using Control_Value = std::variant<std::monostate, bool, std::int64_t, double, std::string>;

enum class Control_Kind {
    Button,
    Check_Box,
    Combo_Box,
    Text_Box,
    Scroll_Bar,
    Option_Button,
    Label,
    Frame,
    Menu_Item,
    Grid,
    Timer
};

// Meanings, not colours: the palettes of the views say what they look like.
enum class Ink { Normal, Black, Red, Green, Amber };

enum class Mouse_Button { Left, Right };

// A part of a window: made with its form and its name, so that the form's list of controls is never written
// twice. The name is its path everywhere: frmPosition[1].chkGGA, frmMonitor.txtCom(17).
class Control {
  public:
    static constexpr int No_Index = -1;

    Control(Form& Owner_Form, Control_Kind Kind_Of_Control, std::string Control_Name, int Element);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    std::string Path() const; // within its form: chkGGA or txtCom(17)
    void Touch();             // views look at a control again when its Revision has grown

    // What a user does. The desktop calls these; they run the handlers as a hand on the control would.
    virtual void User_Click(Mouse_Button) {}
    // Whether it would take this value, before anything moves: throws User_Refusal, and Value_Refusal when it
    // is the value that it does not take.
    virtual void Check(const Control_Value&) const { throw User_Refusal("This takes no value"); }
    virtual void User_Set(const Control_Value& V) { Check(V); }
    virtual Control_Value Current() const { return {}; }
    virtual void Gain_Focus() {}
    virtual void Lose_Focus() {}
    virtual bool Can_Focus() const { return false; }

    Form& Owner;
    const Control_Kind Kind;
    const std::string Name;
    const int Index;
    std::uint64_t Revision = 0;
};

// A value that views follow: writing another value tells them.
template <class T>
class Property {
  public:
    explicit Property(Control& Its_Control, T Start = {}) : Whose(Its_Control), Held(std::move(Start)) {}
    Property(const Property&) = delete;
    Property& operator=(const Property& Other) { return *this = Other.Held; }
    Property& operator=(T New) {
        if (!(Held == New)) {
            Held = std::move(New);
            Whose.Touch();
        }
        return *this;
    }
    operator const T&() const { return Held; }
    const T& operator*() const { return Held; }
    const T* operator->() const { return &Held; }

  private:
    Control& Whose;
    T Held;
};

} // namespace brinewright
