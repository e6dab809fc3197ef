#pragma once

namespace brinewright {

struct frmWind;
struct Simulator;
struct Simulator_State;

// True wind, unit, reference, noise and status of a wind gauge.

void Fill_Wind_Lists(frmWind& W);

// Brings bars, labels and boxes to the true wind in the state. Writes nothing as long as the controls are not
// wired.
void Show_True_Wind(const Simulator_State& State, frmWind& W);

void Wire_Wind_Controls(Simulator& Sim, frmWind& W);

// Gives the controls what is kept. The unit is not: a window starts with knots.
void Restore_Wind_Settings(const Simulator_State& State, frmWind& W);

void scrHDG_Change(Simulator& Sim, frmWind& W);
void txtHDG_LostFocus(Simulator& Sim, frmWind& W);
void scrSpeed_Change(Simulator& Sim, frmWind& W);
void txtSpeed_LostFocus(Simulator& Sim, frmWind& W);
void cmbUnits_Click(Simulator& Sim, frmWind& W);
void optRef_Click(Simulator& Sim, frmWind& W, int Index);
void chkInvalid_Click(frmWind& W);

} // namespace brinewright
