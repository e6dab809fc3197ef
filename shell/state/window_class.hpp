#pragma once

#include "platform/form.hpp"

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace brinewright {

struct Layout;
struct Sentence_Row;
struct Simulator;
struct Simulator_State;

// The numbers by which the list of open windows and the slots of Sensor_Table know a window: 0 the ship, 1 to
// 11 the sensors.
namespace form_index {
inline constexpr std::int16_t None = -1, Ship = 0, Last = 11;
}

// Where a window stands in the menus of the main window.
struct Window_Entry {
    const char* Name = nullptr; // of the menu item; null: no menu opens the window
    const char* Menu = nullptr;
    const char* Text = nullptr; // of windows that exist twice without their number
    int Place = 0;              // among all entries of the menu, from the top
    bool Checked_While_Open = true;
    bool In_Ship_Mode_Only = false;
    bool (*Checked)(const Simulator&) = nullptr; // what else the check of the entry says
};

// What the rest of the program has to know of a kind of window. It stands beside the window; the table of
// windows in shell/main names it, and everything that concerns all windows walks that table.
struct Window_Class {
    const char* Name; // "frmGyro"
    int Count = 0;    // so many of them, numbered from 1; 0: it exists once and has no number
    std::int16_t First_Form_Index = form_index::None;
    Window_Entry Entry{};
    // From when it stands; "#" is its number with a blank in front. Null: what the form itself says.
    const char* Caption = nullptr;

    std::shared_ptr<Form> (*Make)(Desktop& Windows, int Instance) = nullptr;
    // Wires and fills it before it is shown; an On_Unload that it sets runs before all else at its closing.
    void (*Load)(Simulator& Sim, Form& Window) = nullptr;
    Layout (*Lay_Out)(Simulator& Sim, Form& Window) = nullptr;
    // With what is most important only, where there is little room; null: there is no small form.
    Layout (*Lay_Out_Small)(Simulator& Sim, Form& Window) = nullptr;
    // What its sensor measures now, whether the window is open or not, in a few words; null: no sensor.
    std::string (*Value_Now)(const Simulator_State& State, int Instance) = nullptr;
    std::span<const Sentence_Row> Sentences{};

    bool Comes_Back = false; // a window without a form index that was open at the end opens at the start
    bool Closes_When_Chosen = false;                       // its entry closes it when it is open
    bool With_Focus = true;                                // is the active window once it has opened
    void (*Shown)(Simulator& Sim, Form& Window) = nullptr; // runs when it stands
    // Whether it may open now; null: always.
    bool (*May_Open)(const Simulator& Sim) = nullptr;
    float Width = 0; // that its opening gives it, twentieths of a point; 0 = its own
    // When it is chosen again while it is open, the window of this class and the same number gets the focus
    // instead.
    const char* Focused_Instead = nullptr;
};

template <class Window>
std::shared_ptr<Form> Make_Single(Desktop& Windows, int) {
    return std::make_shared<Window>(Windows);
}
template <class Window>
std::shared_ptr<Form> Make_Instance(Desktop& Windows, int Instance) {
    return std::make_shared<Window>(Windows, Instance);
}

} // namespace brinewright
