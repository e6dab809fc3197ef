#include "shell/kit/kept_choice.hpp"

#include "shell/kit/control_text.hpp"

namespace brinewright {

void Keep(Check_Box& Box, bool& Stored) {
    Box.Click = [&Box, &Stored] { Stored = Box.Value(); };
    Box.Set_Value(Stored);
}

void Keep(Option_Group& Group, bool& Stored) {
    Group.Click = [&Stored](int Index) { Stored = Index == 1; };
    Group.Select(Stored ? 1 : 0);
}

void Keep(Combo_Box& List, std::int16_t& Stored, int Default, Handler After) {
    List.Click = [&List, &Stored, After = std::move(After)] {
        if (After) After();
        Stored = static_cast<std::int16_t>(List.List_Index());
    };
    Restore_Choice(List, Stored, Default);
}

} // namespace brinewright
