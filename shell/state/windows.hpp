#pragma once

#include "shell/state/window_class.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace brinewright {

// The one way to open a window: opens it, or gives it the focus when it is open. Its place comes from the
// list of open windows when it has a form index and stands there. Instance counts from 1 for windows that
// exist more than once; one that does not exist throws Run_Time_Error "Subscript out of range".
void Open_Window(Simulator& Sim, const Window_Class& Class, int Instance = 0);
void Open_Window(Simulator& Sim, std::string_view Class_Name, int Instance = 0);

// Does nothing for a form index without a window, which a setup file may hold.
void Open_Window_Of_Index(Simulator& Sim, std::int16_t Form_Index);

// All open windows are looked at anew: something has changed that belongs to none of their controls.
void Look_Anew(Simulator& Sim);

// Null when there is no such window.
const Window_Class* Find_Class(const Simulator& Sim, std::string_view Class_Name);
const Window_Class* Class_Of_Index(const Simulator& Sim, std::int16_t Form_Index);
// From 1; 0 for windows that exist once.
int Instance_Of_Index(const Window_Class& Class, std::int16_t Form_Index);

// The text of a window's entry, "GNSS 1"; empty when no menu opens it.
std::string Entry_Text(const Window_Class& Class, int Instance);

// Opens the windows that come back, see Window_Class.
void Open_Those_That_Come_Back(Simulator& Sim);

// The open window; null when it is closed.
Form* Open_Form(const Simulator& Sim, std::string_view Class_Name, int Instance = 0);
Form* Open_Form_Of_Index(const Simulator& Sim, std::int16_t Form_Index);

// The open window of a type that says its Class_Name.
template <class Window>
Window* Open_One(const Simulator& Sim, int Instance = 0) {
    return static_cast<Window*>(Open_Form(Sim, Window::Class_Name, Instance));
}

} // namespace brinewright
