#pragma once

namespace brinewright {

struct frmPosition;

// Unit, range and effect of each control, for the eye. Those of the sentences come from their table.
void Set_Tool_Tips(frmPosition& W);     // position, motion, ports
void Set_Fix_Tool_Tips(frmPosition& W); // fix, satellites, statistics

} // namespace brinewright
