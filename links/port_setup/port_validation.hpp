#pragma once

namespace brinewright {

struct Simulator;
struct frmSetup;

// Checks each box of the port setup when it is left. What is not valid is refused in a message box, and the
// old text and the focus come back. A UDP link without a port number cannot be ticked.
void Wire_Validation(Simulator& Sim, frmSetup& F);

// Whether OK may take over what the setup shows. The first box that is not good is told in a message and gets
// the focus.
bool All_Is_Valid(frmSetup& F);

} // namespace brinewright
