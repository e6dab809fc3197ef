#pragma once

#include "platform/form.hpp"

namespace brinewright {

struct frmShip;
struct Simulator;

// Throttle and rate of turn by the arrow and page keys, from cmdArrows until txtDummy loses the focus.

void Wire_Ship_Keyboard(Simulator& Sim, frmShip& W);

void cmdArrows_Click(Simulator& Sim, frmShip& W);
void txtDummy_LostFocus(frmShip& W);
bool Form_KeyDown(frmShip& W, int Key_Code, Key_Modifiers Held); // true = the key is used up

} // namespace brinewright
