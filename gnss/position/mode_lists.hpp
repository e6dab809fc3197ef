#pragma once

namespace brinewright {

struct frmPosition;

// The mode and status letters of GNS, GLL, VTG and RMC: six lists, of which cmbModeIndicator shows one. Each
// writes one letter of one record.

void Wire_Mode_Lists(frmPosition& W);
void Fill_Mode_Lists(frmPosition& W);
void Reset_Mode_Lists(frmPosition& W); // all to their first entry

void cmbModeIndicator_Click(frmPosition& W);
void cmbGLLRMVVTG_Mode_Click(frmPosition& W, int Index);

} // namespace brinewright
