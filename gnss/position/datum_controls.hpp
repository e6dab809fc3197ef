#pragma once

namespace brinewright {

struct frmPosition;

// The fields of DTM: two datums and the offset between them.

void Wire_Datum_Controls(frmPosition& W);
void Fill_Datum_Lists(frmPosition& W);
void Restore_Datum(frmPosition& W); // WGS84 to WGS84, north, east

void cmbDatum_Click(frmPosition& W, int Index);
void txtOffset_LostFocus(frmPosition& W, int Index);

} // namespace brinewright
