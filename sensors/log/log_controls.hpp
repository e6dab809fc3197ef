#pragma once

namespace brinewright {

struct frmLog;
struct Simulator;
struct Simulator_State;

// What the user sets in a log window: speed, noise, status, and the distances of VLW.

void Wire_Log_Controls(Simulator& Sim, frmLog& W);

// Brings bar, label and box to the speed in the state. Writes nothing as long as the controls are not wired.
void Show_Log_Speed(const Simulator_State& State, frmLog& W);

void Fill_Log_Lists(frmLog& W);

// Chooses what the state holds. Selecting runs the click operations.
void Restore_Log_Settings(Simulator& Sim, frmLog& W);

void scrSpeed_Change(Simulator& Sim, frmLog& W);
void txtSpeed_LostFocus(Simulator& Sim, frmLog& W);
void cmbNoise_Click(Simulator& Sim, frmLog& W);
void chkInvalid_Click(frmLog& W);

// What VLW has beyond the other sentences: ticking its box starts the distances anew, and the counting needs
// to know the seconds between two sentences.
void chkVLW_Clicked(Simulator& Sim, frmLog& W);
void cmbVLWInterval_Clicked(Simulator& Sim, frmLog& W);
void cmdResetVLW_Click(Simulator& Sim, frmLog& W);

} // namespace brinewright
