#pragma once

namespace brinewright {

struct frmPosition;
struct Simulator;

// What a fix claims to be: quality, 2D or 3D, precision, differential corrections, heights. Nothing here
// moves the position. A control writes the records of its sentences at once, and the next tick sends them.
// Nothing of it is kept over a restart.

void Wire_Fix_Quality(Simulator& Sim, frmPosition& W);
void Fill_Fix_Quality(frmPosition& W);
void Restore_Fix_Quality(frmPosition& W); // the choices that a new window starts with

// The fields that a click writes not, from their boxes. GNS stays without station and heights until the user
// has left a box once: "0" beside the "0100" of GGA is the required start state.
void Read_Fix_Boxes(frmPosition& W);

void cmbQuality_Click(frmPosition& W);
void optMode3D2D_Click(frmPosition& W);
void chkDifferential_Click(frmPosition& W);
void txtStnID_LostFocus(Simulator& Sim, frmPosition& W);

} // namespace brinewright
