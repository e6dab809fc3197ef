#include "shell/kit/kept_choice.hpp"

namespace brinewright {

void Add_Items(Combo_Box& List, std::span<const char* const> Entries) {
    for (const char* Entry : Entries) List.Add_Item(Entry);
}

void Restore_Choice(Combo_Box& List, int Stored, int Default) {
    const int Count = static_cast<int>(List.Items().size());
    List.Set_List_Index(Stored >= 0 && Stored < Count ? Stored : Default);
}

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
