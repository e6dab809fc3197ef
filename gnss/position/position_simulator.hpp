#pragma once

#include "platform/controls.hpp"

namespace brinewright {

struct frmPosition;
struct Simulator;
struct Simulator_State;

// The position of a GNSS window in Sensor mode. The true position (GNSS_Start_Lat, GNSS_Start_Lon) is typed
// or moved a second's way at each tick; the reported one (GNSS_Lat, GNSS_Lon), which the sentences use,
// follows it at the tick, with noise if there is any.

void Wire_Position_Simulator(Simulator& Sim, frmPosition& W);

// The choices of the largest noise: 0 to 16 m by metres, then 25, 50 and 100 m.
void Fill_Noise_List(Combo_Box& List);

void Show_Start_Position(const Simulator_State& State, frmPosition& W);
void Show_Reported_Position(const Simulator_State& State, frmPosition& W);

// One step. It always is a second long, however late the tick comes: there is no clock of its own here.
void timer_Simulator_Tick(Simulator& Sim, frmPosition& W);

void txtLat_LostFocus(Simulator& Sim, frmPosition& W);
void txtLon_LostFocus(Simulator& Sim, frmPosition& W);
void chkFixOffset_Click(Simulator& Sim, frmPosition& W);
void chkNoise_Click(Simulator& Sim, frmPosition& W);
void cmbNoise_Click(Simulator& Sim, frmPosition& W);
void optAccumulatedNoise_Click(Simulator& Sim, frmPosition& W, int Index);

} // namespace brinewright
