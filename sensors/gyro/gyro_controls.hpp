#pragma once

namespace brinewright {

struct frmGyro;
struct Simulator;
struct Simulator_State;

// What the user sets in a gyro window: heading, rate of turn, roll and pitch by a bar and a box each, the
// noise, THS mode and decimals.

void Wire_Gyro_Controls(Simulator& Sim, frmGyro& W);

// Brings bars and boxes to what the state holds. Writes nothing as long as the controls are not wired.
void Show_Gyro_Motion(const Simulator_State& State, frmGyro& W);

void Fill_Gyro_Lists(frmGyro& W);

// Chooses what the state holds. Selecting runs the click operations, so that the records fill themselves.
void Restore_Gyro_Settings(Simulator& Sim, frmGyro& W);

void scrHDG_Change(Simulator& Sim, frmGyro& W);
void scrROT_Change(Simulator& Sim, frmGyro& W);
void scrRoll_Change(frmGyro& W);
void scrPitch_Change(frmGyro& W);
void cmbNoise_Change(frmGyro& W, int Index);
void cmbNoise_Click(Simulator& Sim, frmGyro& W, int Index);
void cmbModeIndicator_Click(frmGyro& W);
void cmbDecimals_Click(Simulator& Sim, frmGyro& W);

} // namespace brinewright
