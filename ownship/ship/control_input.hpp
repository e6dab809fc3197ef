#pragma once

#include "sentences/compose_rot.hpp"
#include "sentences/compose_vtg.hpp"

#include <string_view>

namespace brinewright {

struct Simulator;

// Opens the UDP port by which another system steers the own ship in Ship mode: each datagram holds a VTG,
// whose speed sets the throttle, or a ROT, whose rate sets the rudder. It is the only input that changes the
// simulation. The port number stands in "Quillon_UDP_port.txt" in the data folder. Whatever fails is told in
// a box, and the program goes on without the control input.
void Start_Control_Input(Simulator& Sim);

// Take apart a sentence. It is cut at its commas, and the last field ends at the "*" when there is one; what
// stands in front of the first comma counts as field 0 and is not looked at, nor are checksum and status.
// An empty number field gives the empty marker, -9999. Of a sentence with too few fields the values that it
// does not have are zero, also the mode or the status. The talker is left empty.
VTG_Record Extract_VTG(std::string_view Sentence);
ROT_Record Extract_ROT(std::string_view Sentence);

} // namespace brinewright
