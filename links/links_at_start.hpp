#pragma once

namespace brinewright {

struct Simulator;

// "Open network links at start", kept in the application settings and on at first.
bool Opens_Network_Links(const Simulator& Sim);
void Set_Opens_Network_Links(Simulator& Sim, bool On);

// Opens the links of a setup that has just been read: when it counted serial ports, as required, and also
// when it uses the TCP server or a UDP link, unless the user does not want that.
void Open_Links_Of_Setup(Simulator& Sim);

// The setup uses links, and nobody has opened any since the start.
bool Links_Are_Closed(const Simulator& Sim);

// Opens all links of the setup now.
void Open_All_Links(Simulator& Sim);

} // namespace brinewright
