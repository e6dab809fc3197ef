#pragma once

namespace brinewright {

struct frmPosition;
struct Simulator_State;

// The record fields that no click writes, as the window opens: from the controls and the state. The magnetic
// variation, the DOP values of the second GSA and the status of RMC enter here and never again; a later
// change of the variation reaches RMC only when the window is opened anew.
void Read_Records(const Simulator_State& State, frmPosition& W);

} // namespace brinewright
