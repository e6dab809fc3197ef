#pragma once

namespace brinewright {

struct frmGyro;

// Unit, range and effect of each control, for the eye. Those of the sentences come from their table.
void Set_Tool_Tips(frmGyro& W);

} // namespace brinewright
