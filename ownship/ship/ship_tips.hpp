#pragma once

namespace brinewright {

struct frmShip;

// What the controls mean, with units and ranges.
void Set_Tool_Tips(frmShip& W);

} // namespace brinewright
