#pragma once

#include "platform/control.hpp"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace brinewright {

class Desktop;

// Side: beside the room of the child windows.
enum class Form_Kind { Main, Child, Dialog, Tool, Side };
enum class Window_State { Normal, Minimised, Maximised };

// The keys that are held while another is pressed.
struct Key_Modifiers {
    bool Shift = false;
    bool Ctrl = false;
    bool Alt = false;
};

// A window as a record: its controls, its place, and what runs when it opens, closes or changes size. Lengths
// are in twentieths of a point of the main window's client area.
struct Form : std::enable_shared_from_this<Form> {
    Form(Desktop& Its_Desktop, std::string Class_Name, int Its_Instance, Form_Kind Its_Kind);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form() = default;

    std::string Path() const; // frmMain, or frmPosition[1] for a class with instances
    // By its path within the form, chkGGA or txtCom(17); null when there is none.
    Control* Find(std::string_view Control_Path) const;

    // Setters so that views follow.
    void Set_Caption(std::string New);
    void Set_Place(float New_Left, float New_Top, float New_Width, float New_Height);
    void Resize(float New_Width, float New_Height); // runs On_Resize
    void Set_State(Window_State New);
    void Set_Small(bool New);

    Desktop& Windows;
    const std::string Name;
    const int Instance; // 0 = the class exists once
    const Form_Kind Kind;

    std::string Tag;
    std::string Caption;
    float Left = 0, Top = 0, Width = 0, Height = 0;
    std::string Under; // path of the control below which a dialog opens; empty: at its place
    Window_State State = Window_State::Normal;
    bool Small = false; // it shows its small form, where it has one
    // Nobody has given it a place yet: it takes one where there is room.
    bool Unplaced = true;
    // What its contents take, as a view measured; 0 while none has.
    float Needs_Width = 0, Needs_Height = 0;
    bool Key_Preview = false; // the form sees the keys before its controls do
    bool Loaded = false;
    std::uint64_t Last_Active = 0; // grows from window to window as they are chosen
    std::uint64_t Revision = 0;    // grows when the form itself or one of its controls changes

    std::vector<Control*> Controls; // in the order in which they are made
    std::function<void()> On_Unload;
    std::vector<std::function<void()>> On_Gone; // behind On_Unload, whatever becomes of it
    std::function<void()> On_Resize;
    std::function<void()> On_Got_Focus; // the window itself was chosen
    // With Key_Preview; true = the key is used up.
    std::function<bool(int Key_Code, Key_Modifiers Held)> On_Key_Down;
};

} // namespace brinewright
