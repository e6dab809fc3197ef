#pragma once

#include <string>

namespace brinewright {

struct frmPosition;
struct Simulator_State;

// The record fields that no control of the window writes, at their start values, and the talker of all
// records. Magnetic variation enters here and never again: a later change of it reaches RMC only when the
// window is opened anew.
void Preset_Records(const Simulator_State& State, frmPosition& W);

// The talker of every sentence of the window, the second GSA apart. GNS takes its own again at each tick.
void Set_Talker(frmPosition& W, const std::string& Talker);

} // namespace brinewright
