#pragma once

#include "shell/arrange/arrange.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace brinewright {

// Named layouts: which windows stand where. Three come with the program and are fitted to the room at hand;
// the user's own are kept in the application settings, in shares of the room that they were saved in.

struct Layout_Window {
    std::string Class_Name;
    int Instance = 0;
    bool Small = false;
    Window_Place Share; // of the room, 0 to 1; none has a width of 0 in layouts that are fitted
};

struct Window_Layout {
    std::string Name;
    std::vector<Layout_Window> Windows;
};

inline constexpr int Fitted_Layouts = 3, Most_Layouts = 12;

// Those of the program first, then the user's.
std::vector<Window_Layout> All_Layouts(const Simulator& Sim);

// Opens, places and sizes the windows of layout Number (from 1); windows that are not in it go on sending,
// minimised. A number without a layout does nothing.
void Show_Layout(Simulator& Sim, int Number);

// Keeps what stands now under Name, in place of a layout of the user's that has it. Empty, or why not: the
// name is empty or one of the program's, nothing stands, or there is no room for one more.
std::string Save_Layout(Simulator& Sim, const std::string& Name);

// Empty, or why not: layouts of the program stay.
std::string Delete_Layout(Simulator& Sim, const std::string& Name);

} // namespace brinewright
