#pragma once

namespace brinewright {

struct Simulator;
struct frmSetup;

// Checks each box of the port setup when it is left. What is not valid is refused in a message box, and the
// old text comes back.
void Wire_Validation(Simulator& Sim, frmSetup& F);

} // namespace brinewright
