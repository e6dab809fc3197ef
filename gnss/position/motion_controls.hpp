#pragma once

namespace brinewright {

struct frmPosition;
struct Simulator;
struct Simulator_State;

// Speed and course of a GNSS window: a bar in tenths, a label with the value in effect and a box to type in,
// and the arrow keys. What is set holds from the next simulator tick on.

void Wire_Motion_Controls(Simulator& Sim, frmPosition& W);

// Brings bars, labels and boxes to the speed and course in the state. Writes nothing as long as the controls
// are not wired.
void Show_Motion(const Simulator_State& State, frmPosition& W);

void scrSOG_Change(Simulator& Sim, frmPosition& W);
void txtSOG_LostFocus(Simulator& Sim, frmPosition& W);
void scrCOG_Change(Simulator& Sim, frmPosition& W);
void txtCOG_LostFocus(Simulator& Sim, frmPosition& W);

void cmdArrows_Click(Simulator& Sim, frmPosition& W);
void txtDummy_LostFocus(Simulator& Sim, frmPosition& W);
// True when Key_Code is one of the four arrows.
bool frmPosition_KeyDown(frmPosition& W, int Key_Code);

} // namespace brinewright
