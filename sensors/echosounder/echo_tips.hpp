#pragma once

namespace brinewright {

struct frmEchosounder;

// Unit, range and effect of each control, for the eye. Those of the sentences come from their table.
void Set_Tool_Tips(frmEchosounder& W);

} // namespace brinewright
