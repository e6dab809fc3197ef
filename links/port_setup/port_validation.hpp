#pragma once

#include "extra/extra_state.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace brinewright {

struct Simulator;
struct frmSetup;

// The whole number that Text is, with a comma counting as a point: "5000" and "5000,0", not "4800,5" or
// "50x". Nothing when it is none, or not First to Last.
std::optional<std::int32_t> Parse_Port_Number(std::string_view Text, std::int32_t First, std::int32_t Last);

// Four groups of digits parted by ".", the first and the fourth 1 to 255, the others 0 to 255; at most 15
// characters.
bool Is_Host_Address(std::string_view Text);

// What to tell of the number typed for a UDP link when an additional GNSS or gyro has it; empty when it is
// free.
std::string UDP_Port_Conflict(const Extra_State& Extra, std::int32_t Port);

// Checks each box of the port setup when it is left. What is not valid is told, and the old text comes back.
void Wire_Validation(Simulator& Sim, frmSetup& F);

} // namespace brinewright
