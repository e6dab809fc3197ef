#include "ownship/ship/joystick.hpp"

#include "ownship/ship/frm_ship.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

#include <cstdlib>

namespace brinewright {

namespace {

constexpr double Polling_ms = 100;
constexpr std::int64_t Large_From = 20001; // off the rest, of axes from 0 to 65535

struct Button_Row {
    int Element;
    Slider frmShip::*Moved;
    int (*Place)(const Slider& Moved);
};
int Middle(const Slider&) { return 0; }
int At_Min(const Slider& Moved) { return Moved.Min; }
int At_Max(const Slider& Moved) { return Moved.Max; }
constexpr Button_Row Buttons[] = {
    {0, &frmShip::sldRudder, Middle},   {0, &frmShip::sldThrottle, Middle},
    {1, &frmShip::sldRudder, Middle},   {2, &frmShip::sldRudder, At_Min},
    {3, &frmShip::sldRudder, At_Max},   {4, &frmShip::sldThrottle, At_Max},
    {5, &frmShip::sldThrottle, At_Min},
};

// There is no dead zone: all but the exact rest steps.
void Step(Slider& Moved, std::int64_t Off_Rest) {
    if (Off_Rest == 0) return;
    const int Size = std::abs(Off_Rest) < Large_From ? Moved.Small_Change : Moved.Large_Change;
    Moved.Set_Value(Moved.Value() + (Off_Rest > 0 ? Size : -Size));
}

} // namespace

bool Joystick_Present(Simulator& Sim, std::int32_t Device_Id) {
    if (Device_Id != First_Joystick) return false;
    const auto Found = Sim.Services.Stick().Read();
    if (!Found) return false;
    Joystick_State& J = Sim.State.Of<Joystick_State>();
    J.Rest = J.Last = *Found;
    return true;
}

void Joystick_Read(Simulator& Sim) {
    Joystick_State& J = Sim.State.Of<Joystick_State>();
    J.Last = Sim.Services.Stick().Read().value_or(Joystick_Reading{J.Rest.X, J.Rest.Y, 0});
    for (int B = J.Buttons.Last_Index; B >= J.Buttons.First_Index; --B)
        J.Buttons[B] = (J.Last.Buttons >> B & 1U) != 0;
}

// With a game controller there is no freezing, so none may be left over: no button would end it. A pause goes
// on: the main window says so, and ends it.
void Start_Joystick(Simulator& Sim, frmShip& W) {
    const bool Present = Joystick_Present(Sim, First_Joystick);
    W.frameJoystick.Visible = Present;
    W.lblJoystick.Visible = !Present;
    W.cmdFreeze.Visible = !Present;
    W.cmdPause.Visible = !Present;
    W.timerJoystick.Set_Interval(Present ? Polling_ms : 0);
    if (!Present) return;
    Sim.State.Of<Shell_State>().Freeze_Active = false;
    Show_Freeze_And_Pause(Sim.State, W);
}

void timerJoystick_Tick(Simulator& Sim, frmShip& W) {
    Joystick_Read(Sim);
    const Joystick_State& J = Sim.State.Of<Joystick_State>();
    Step(W.sldRudder, std::int64_t{J.Last.X} - J.Rest.X);
    Step(W.sldThrottle, std::int64_t{J.Last.Y} - J.Rest.Y);
    for (const Button_Row& Row : Buttons) {
        Slider& Moved = W.*Row.Moved;
        if (J.Buttons[Row.Element]) Moved.Set_Value(Row.Place(Moved));
    }
}

} // namespace brinewright
