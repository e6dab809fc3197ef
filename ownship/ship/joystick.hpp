#pragma once

#include "platform/joystick.hpp"
#include "platform/table.hpp"

#include <cstdint>

namespace brinewright {

struct frmShip;
struct Simulator;

// What is known of the game controller.
struct Joystick_State {
    Joystick_Reading Rest; // where it stood when it was found
    Joystick_Reading Last;
    Table<bool, 0, 15> Buttons; // that are down
};

// A game controller that moves the two sliders of the ship window. It is polled, and may vanish at any time.

inline constexpr std::int32_t First_Joystick = 0; // the device, the only one that is used

// Whether there is one; if so, where it stands now becomes its rest.
bool Joystick_Present(Simulator& Sim, std::int32_t Device_Id);

// Axes and buttons into the Joystick_State. One that has vanished is at rest with no button down.
void Joystick_Read(Simulator& Sim);

// Looks for it, and lets it steer from now on if there is one: it ends freeze and pause, whose buttons give
// way.
void Start_Joystick(Simulator& Sim, frmShip& W);
void timerJoystick_Tick(Simulator& Sim, frmShip& W);

} // namespace brinewright
