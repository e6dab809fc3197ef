#pragma once

namespace brinewright {

struct frmPosition;
struct Simulator;
struct Simulator_State;

// How many satellites the window sees, at least those in use. The others are free GPS satellites, in
// ascending order.
void cmbInView_Click(Simulator& Sim, frmPosition& W);

// Writes the satellites into hfgGSV, those in use in black and the others in red behind them. Also runs each
// 60 s. An identifier without a satellite shows as number "00"; the other fields of its row stay as they
// were.
void Update_GSVTable(const Simulator_State& State, frmPosition& W);

} // namespace brinewright
