#pragma once

#include "ownship/set_sog/frm_set_sog.hpp"
#include "ownship/setup/frm_ship_setup.hpp"
#include "ownship/ship/frm_ship.hpp"
#include "ownship/ship/joystick.hpp"
#include "sentences/number_pattern.hpp"
#include "tests/support/virtual_simulator.hpp"

#include <functional>
#include <optional>
#include <string>

namespace brinewright {

// A game controller that the test moves.
struct Played_Joystick final : Joystick {
    std::optional<Joystick_Reading> Now = Joystick_Reading{};
    std::optional<Joystick_Reading> Read() override { return Now; }
};

// The program in Ship mode on a setup with the navdata of the last session, with the ship window open.
struct Ship_Bench : Virtual_Simulator {
    explicit Ship_Bench(const std::function<void(Simulator_State&)>& Change = {}, Joystick* Stick = nullptr) {
        if (Stick) World.Its_Joystick.reset(Stick);
        Simulator_State Setup = Default_Setup("Ship");
        Setup.Of<Shell_State>().Start_With_Last_Navdata = true;
        if (Change) Change(Setup);
        Start(Setup);
        Told.clear();
        // The sky draws from the same stream.
        Main_Window(Sim).timer_Sky.Set_Interval(0);
        World.Random.Seed(0);
    }
    frmShip& Ship() { return *Open_One<frmShip>(Sim); }
    Simulator_State& State() { return Sim.State; }
    void Place(Slider& Moved, int New) { Set(Moved, std::int64_t{New}); }
    void Key(int Code, Key_Modifiers Held = {}) {
        Sim.Windows.Event([&] { Sim.Windows.User_Key(Ship(), Code, Held); });
    }
};

inline double Apart_deg(double A, double B) { return std::abs(std::remainder(A - B, 360.0)); }

inline std::string Shown(const Visible_Control& C) { return *C.Caption; }

} // namespace brinewright
