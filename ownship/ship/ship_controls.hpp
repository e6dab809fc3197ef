#pragma once

#include <string_view>

namespace brinewright {

struct frmShip;
struct Simulator;
struct Simulator_State;

inline constexpr int Rudder_Steps = 10; // of the rudder slider, to a degree per minute

// Throttle, rate of turn, heading, noise, freeze and pause of the ship window.

void Wire_Ship_Controls(Simulator& Sim, frmShip& W);

// The range of the rate of turn, +-Max_Rudder, and its scale. A rate outside it is brought back into it.
void Show_Rudder_Range(const Simulator_State& S, frmShip& W);

// Where sldThrottle stands for Nav_SOG: -100 full ahead to 100 full astern, 0 where the ship can't go that
// way.
int Throttle_Place(const Simulator_State& S, const frmShip& W);

void Show_Throttle(frmShip& W); // the percentage and which way
void Show_SOG(frmShip& W, float SOG_kn, std::string_view Picture);
// Degrees per minute: to port red, to starboard green.
void Show_ROT(frmShip& W, float ROT, std::string_view Picture);
void Show_Freeze_And_Pause(const Simulator_State& S, frmShip& W);
// Heading_deg in cmbHDG, without running its handlers: else the heading would be rounded to a tenth of a
// degree each second, and a slow turn would never turn the ship.
void Show_Heading(frmShip& W, double Heading_deg);

void sldThrottle_Change(Simulator& Sim, frmShip& W);
void sldRudder_Change(Simulator& Sim, frmShip& W);
void cmdZero_Click(Simulator& Sim, frmShip& W);
void cmdZeroRudder_Click(Simulator& Sim, frmShip& W);
void cmbHDG_Change(Simulator& Sim, frmShip& W);
void cmdFreeze_Click(Simulator& Sim, frmShip& W);
void cmdPause_Click(Simulator& Sim, frmShip& W);

} // namespace brinewright
