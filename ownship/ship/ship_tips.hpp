#pragma once

namespace brinewright {

struct frmShip;
struct frmShipSetup;

// What the controls mean, with units and ranges.
void Set_Tool_Tips(frmShip& W);
void Set_Tool_Tips(frmShipSetup& F);

} // namespace brinewright
