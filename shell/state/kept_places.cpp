#include "shell/state/kept_places.hpp"

#include "sentences/number_pattern.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>
#include <string>
#include <string_view>

namespace brinewright {

void Keep_Place(Simulator& Sim, const Form& Window) {
    Simulator_State& S = Sim.State;
    std::int16_t& Count = S.Of<Shell_State>().Open_Form_Count;
    // The list is full at 20 entries: the subscript failure that follows is required. It is not to come again
    // with each further try, so the list begins anew behind it.
    const int Place = Count + 1;
    if (Place > S.Of<Shell_State>().Open_Form_List.Last_Index) Count = 0;
    Open_Form_Entry& Entry = S.Of<Shell_State>().Open_Form_List[Place];
    Entry.Name = Window.Name;
    Entry.Index = static_cast<std::int16_t>(Val(Window.Tag));
    Entry.Top = Window.Top;
    Entry.Left = Window.Left;
    Entry.Height = Window.Height;
    Entry.Width = Window.Width;
    ++Count;
}

void Restore_Place(const Simulator& Sim, Form& Window) {
    const auto Form_Index = static_cast<std::int16_t>(Val(Window.Tag));
    const Simulator_State& S = Sim.State;
    const int Count =
        std::min<int>(S.Of<Shell_State>().Open_Form_Count, S.Of<Shell_State>().Open_Form_List.Last_Index);
    for (int I = 1; I <= Count; ++I) {
        const Open_Form_Entry& Entry = S.Of<Shell_State>().Open_Form_List[I];
        if (Entry.Index != Form_Index) continue;
        Window.Resize(Entry.Width, Entry.Height);
        Window.Left = Entry.Left;
        Window.Top = Entry.Top;
        Window.Unplaced = false;
        return;
    }
}

namespace {

constexpr const char* State_Words[] = {"", "minimised", "maximised"}; // by Window_State
constexpr std::string_view Small_Word = " small";

std::string Manner_Key(const Form& Window) { return "Window " + Window.Path(); }

} // namespace

void Keep_Manner(Simulator& Sim, const Form& Window) {
    std::string Manner = State_Words[static_cast<std::size_t>(Window.State)];
    if (Window.Small) Manner += Small_Word;
    App_Settings& Settings = Sim.Services.Settings();
    if (Settings.Get(Manner_Key(Window), "") != Manner) Settings.Set(Manner_Key(Window), Manner);
}

void Restore_Manner(const Simulator& Sim, Form& Window) {
    const std::string Manner = Sim.Services.Settings().Get(Manner_Key(Window), "");
    std::string_view Word = Manner;
    if (Word.ends_with(Small_Word)) {
        Window.Small = true;
        Word.remove_suffix(Small_Word.size());
    }
    for (std::size_t I = 1; I < std::size(State_Words); ++I)
        if (Word == State_Words[I]) Window.State = static_cast<Window_State>(I); // NOLINT: index of an enum
}

} // namespace brinewright
