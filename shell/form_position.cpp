#include "shell/form_position.hpp"

#include "shell/simulator.hpp"

#include <cmath>
#include <cstdlib>

namespace brinewright {

void Save_Form_Position(Simulator& Sim, const Form& Window) {
    Simulator_State& S = Sim.State;
    // The list is full at 20 entries: the subscript failure that follows is required.
    Open_Form_Entry& Entry = S.Open_Form_List[S.Open_Form_Count + 1];
    Entry.Name = Window.Name;
    Entry.Index = static_cast<std::int16_t>(std::atoi(Window.Tag.c_str()));
    Entry.Top = Window.Top;
    Entry.Left = Window.Left;
    Entry.Height = Window.Height;
    Entry.Width = Window.Width;
    ++S.Open_Form_Count;
}

void Restore_Form_Position(const Simulator& Sim, Form& Window, std::int16_t Form_Index) {
    for (const Open_Form_Entry& Entry : Sim.State.Open_Form_List) {
        if (Entry.Index != Form_Index || Entry.Name.empty()) continue;
        Window.Resize(Entry.Width, Entry.Height);
        Window.Left = Entry.Left;
        Window.Top = Entry.Top;
        return;
    }
}

} // namespace brinewright
