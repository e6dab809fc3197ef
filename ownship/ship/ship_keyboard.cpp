#include "ownship/ship/frm_ship.hpp"
#include "shell/state/simulator.hpp"

#include <optional>

namespace brinewright {

namespace {

// How far a key goes: by a step, to the end of its direction, or back to the middle.
enum class Reach { Small, Large, End, Zero };

// Up is more ahead, which is less on the slider.
struct Key_Row {
    int Key_Code;
    Slider frmShip::*Moved;
    int Direction; // -1 towards Min
    Reach Alone;   // without a modifier
};
constexpr Key_Row Keys[] = {
    {key::Up, &frmShip::sldThrottle, -1, Reach::Small},
    {key::Down, &frmShip::sldThrottle, 1, Reach::Small},
    {key::Page_Up, &frmShip::sldThrottle, -1, Reach::Large},
    {key::Page_Down, &frmShip::sldThrottle, 1, Reach::Large},
    {key::Left, &frmShip::sldRudder, -1, Reach::Small},
    {key::Right, &frmShip::sldRudder, 1, Reach::Small},
};

// Empty for more than one modifier at once, which means nothing here.
std::optional<Reach> Reach_Of(const Key_Row& Row, Key_Modifiers Held) {
    if (Held.Shift + Held.Ctrl + Held.Alt > 1) return {};
    if (Held.Shift) return Reach::Large;
    if (Held.Ctrl) return Reach::End;
    if (Held.Alt) return Reach::Zero;
    return Row.Alone;
}

void Move(frmShip& W, const Key_Row& Row, Reach How_Far) {
    Slider& Moved = W.*Row.Moved;
    const int End = Row.Direction < 0 ? Moved.Min : Moved.Max;
    // A throttle at the end stays there, also when Alt would set it to 0.
    if (&Moved == &W.sldThrottle && Moved.Value() == End) return;
    // The steps of the throttle are read from the slider of the rate of turn too, as required.
    switch (How_Far) {
    case Reach::Small: Moved.Set_Value(Moved.Value() + Row.Direction * W.sldRudder.Small_Change); break;
    case Reach::Large: Moved.Set_Value(Moved.Value() + Row.Direction * W.sldRudder.Large_Change); break;
    case Reach::End: Moved.Set_Value(End); break;
    case Reach::Zero: Moved.Set_Value(0); break;
    }
}

void Show_Keyboard_Mode(frmShip& W, bool On) {
    W.Key_Preview = On;
    W.txtDummy.Visible = On; // of no size on the screen: what is hidden could not have the focus there
    W.cmdArrows.Enabled = !On;
    W.lblArrows.Visible = On;
    W.frameArrows.Visible = On;
    W.frameJoystick.Visible = !On && W.timerJoystick.Interval_ms() > 0; // they share a place
    W.cmdSetSOG.Visible = !On;
}

// True: the key is used up.
bool Form_KeyDown(frmShip& W, int Key_Code, Key_Modifiers Held) {
    for (const Key_Row& Row : Keys) {
        if (Row.Key_Code != Key_Code) continue;
        const std::optional<Reach> How_Far = Reach_Of(Row, Held);
        if (How_Far) Move(W, Row, *How_Far);
        return How_Far.has_value();
    }
    return false;
}

} // namespace

void Wire_Ship_Keyboard(Simulator& Sim, frmShip& W) {
    Show_Keyboard_Mode(W, false);
    W.cmdArrows.Click = [&] {
        Show_Keyboard_Mode(W, true);
        Sim.Windows.Set_Focus(&W.txtDummy);
    };
    W.txtDummy.Lost_Focus = [&] { Show_Keyboard_Mode(W, false); };
    // It has the focus only while it steers: what is hidden gets none.
    W.On_Got_Focus = [&] { Sim.Windows.Set_Focus(&W.txtDummy); };
    W.On_Key_Down = [&](int Key_Code, Key_Modifiers Held) {
        if (Key_Code != key::Escape) return Form_KeyDown(W, Key_Code, Held);
        Sim.Windows.Set_Focus(nullptr); // as any other way to leave the box does, this ends the mode
        return true;
    };
}

} // namespace brinewright
