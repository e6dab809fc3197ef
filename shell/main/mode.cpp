#include "shell/main/frm_main.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

#include <vector>

namespace brinewright {

namespace {

// An event of its own: keeping the place fails when the list of places is full. That is told, and what
// follows goes on all the same.
void Close_In_Event(Simulator& Sim, Form& Window) {
    Sim.Windows.Event([&] { Sim.Windows.Unload(Window); });
}

std::vector<std::int16_t> Open_Sensors(const Simulator& Sim) {
    std::vector<std::int16_t> Open;
    for (std::int16_t Index = form_index::Ship + 1; Index <= form_index::Last; ++Index)
        if (Open_Form_Of_Index(Sim, Index)) Open.push_back(Index);
    return Open;
}

} // namespace

void mnuMode_Click(Simulator& Sim, int Index) {
    Shell_State& S = Sim.State.Of<Shell_State>();
    const char* const Wanted = Index == 1 ? "Ship" : "Sensor";
    if ((S.Mode == "Ship") == (Index == 1)) return;
    const std::vector<std::int16_t> Open = Open_Sensors(Sim);
    for (const std::int16_t Form_Index : Open) Open_Window_Of_Index(Sim, Form_Index);
    S.Mode = Wanted;
    Sim.Told.Switched.Tell();
    // Windows that close keep their place in the list of open windows, and take it from there when they open
    // again. They stand again afterwards, so the list ends as it was: it has room for 20 only, and what it
    // holds from before would stand in front of where they are now.
    const auto Kept_List = S.Open_Form_List;
    const std::int16_t Kept_Count = S.Open_Form_Count;
    S.Open_Form_Count = 0;
    if (Index == 1)
        Open_Window_Of_Index(Sim, form_index::Ship);
    else if (Form* const Ship = Open_Form_Of_Index(Sim, form_index::Ship))
        Close_In_Event(Sim, *Ship);
    for (const std::int16_t Form_Index : Open) {
        if (Form* Window = Open_Form_Of_Index(Sim, Form_Index)) Close_In_Event(Sim, *Window);
        Open_Window_Of_Index(Sim, Form_Index);
    }
    S.Open_Form_List = Kept_List;
    S.Open_Form_Count = Kept_Count;
    // What the mode is about.
    if (Form* const Ship = Open_Form_Of_Index(Sim, form_index::Ship)) Sim.Windows.Activate(*Ship);
}

} // namespace brinewright
