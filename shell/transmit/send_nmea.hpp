#pragma once

#include <cstdint>
#include <string>

namespace brinewright {

struct Simulator;

// The one gate through which every sentence of the main sensors leaves: pause, injected faults, line end,
// pacing, routing by port number, monitors, in this order. Text is changed in place; callers must not rely on
// it afterwards. Sends nothing while a message box stands.
void Send_NMEA(Simulator& Sim, std::string& Text, std::int16_t Port);

} // namespace brinewright
