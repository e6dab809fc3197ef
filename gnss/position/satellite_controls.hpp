#pragma once

namespace brinewright {

struct frmPosition;
struct Simulator;

// Which satellites of the sky a GNSS window uses: a box for each of them and cmbSats, their number, which
// drive each other. The sky is one for both windows: the marks and the list of satellites in use are those of
// the window that changed its choice last, and both windows send from them.

// Captions, hints and the choice that a new window starts with. Before the wiring, so that it runs nothing.
void Preset_Satellite_Boxes(frmPosition& W);

void Wire_Satellite_Controls(Simulator& Sim, frmPosition& W);
void Fill_Satellite_Lists(frmPosition& W);

// Makes the boxes' choice that of the sky; as many satellites in view as in use.
void Restore_Satellites(Simulator& Sim, frmPosition& W);

// A box of any of the three groups.
void chkSv_Click(Simulator& Sim, frmPosition& W);
void cmbSats_Click(Simulator& Sim, frmPosition& W);

} // namespace brinewright
