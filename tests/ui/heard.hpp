#pragma once

#include "platform/desktop.hpp"

namespace brinewright {

// How often handlers ran, and what they were told. The handlers of the program are out of the way meanwhile,
// so that every control can be operated whatever it would do.
struct Heard {
    int Clicks = 0, Changes = 0, Entered = 0, Left = 0, Rows = 0;
    Mouse_Button Button_Down = Mouse_Button::Left;
};

inline void Listen(Control& C, Heard& H) {
    const Handler Clicked = [&H] { ++H.Clicks; }, Changed = [&H] { ++H.Changes; };
    switch (C.Kind) {
    case Control_Kind::Button: static_cast<Button&>(C).Click = Clicked; break;
    case Control_Kind::Check_Box: static_cast<Check_Box&>(C).Click = Clicked; break;
    case Control_Kind::Combo_Box: {
        auto& List = static_cast<Combo_Box&>(C);
        List.Click = Clicked;
        List.Change = Changed;
        List.Lost_Focus = [&H] { ++H.Left; };
        break;
    }
    case Control_Kind::Text_Box: {
        auto& Box = static_cast<Text_Box&>(C);
        Box.Change = Changed;
        Box.Got_Focus = [&H] { ++H.Entered; };
        Box.Lost_Focus = [&H] { ++H.Left; };
        break;
    }
    case Control_Kind::Scroll_Bar: static_cast<Scroll_Bar&>(C).Change = Changed; break;
    case Control_Kind::Option_Button:
        static_cast<Option_Button&>(C).Group.Click = [&H](int) { ++H.Clicks; };
        break;
    case Control_Kind::Label:
        static_cast<Label&>(C).Mouse_Down = [&H](Mouse_Button B) {
            ++H.Clicks;
            H.Button_Down = B;
        };
        break;
    case Control_Kind::Grid: static_cast<Grid&>(C).Row_Chosen = [&H] { ++H.Rows; }; break;
    default: break;
    }
}

} // namespace brinewright
