#pragma once

namespace brinewright {

struct Simulator;

// From now on the links are looked at once a second: how much they send, whether a device has gone. A serial
// port or UDP link that is closed is tried again every few seconds, and what comes of it is said. The TCP
// server is not: another program may have its port by right.
void Watch_Links(Simulator& Sim);

// Tries to open link Port (1 to 28) now, and says what came of it.
void Open_Link_Again(Simulator& Sim, int Port);

// Notes that link Port, which was open, has failed, and says so. Why is the system's text.
void Link_Fails(Simulator& Sim, int Port, const char* Why);

// Notes that link Port, which had failed, works again, and says so.
void Link_Works(Simulator& Sim, int Port);

} // namespace brinewright
