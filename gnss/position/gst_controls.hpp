#pragma once

#include "platform/controls.hpp"

namespace brinewright {

struct frmPosition;

// The error statistics of GST: a box for each, and its label, which counts up and down under the mouse. The
// record holds 0 until the first edit.

void Preset_GST_Controls(frmPosition& W); // captions and start texts
void Wire_GST_Controls(frmPosition& W);

// Left counts up by 0.1 m or a degree, any other button down.
void lblGST_MouseDown(frmPosition& W, int Index, Mouse_Button Pressed);
void txtGST_LostFocus(frmPosition& W, int Index);

} // namespace brinewright
