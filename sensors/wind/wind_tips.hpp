#pragma once

namespace brinewright {

struct frmWind;

// Unit, range and effect of each control, for the eye. Those of the sentences come from their table.
void Set_Tool_Tips(frmWind& W);

} // namespace brinewright
