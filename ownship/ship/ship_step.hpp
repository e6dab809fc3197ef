#pragma once

namespace brinewright {

struct frmShip;
struct Simulator;

// One second of the ship, whatever the clock says: a late tick slows the ship.
void Timer1_Tick(Simulator& Sim, frmShip& W);

} // namespace brinewright
