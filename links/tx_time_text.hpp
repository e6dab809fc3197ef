#pragma once

#include "platform/clock.hpp"

#include <string>

namespace brinewright {

// The time as status lines show it: "hh:mm:" and the seconds as "00.0". In the last half second of a minute
// the seconds come out as a small negative number; that is required and not corrected.
std::string Tx_Time_Text(Clock& Machine_Clock);

// "dd.mm.yyyy hh:mm:ss"
std::string Date_Time_Text(std::int64_t Local_us);

} // namespace brinewright
