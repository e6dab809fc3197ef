#pragma once

#include <cstdint>

namespace brinewright {

// The difference between the machine's clock and UTC. The fields named Hours hold, in spite of their names,
// the whole offset in signed minutes: what is added to the machine's clock to get UTC.
struct UTC_State {
    bool Use_UTC = false; // false prints the machine's clock unchanged
    std::int16_t UTC_Offset_Hours = 0;
    std::int16_t UTC_Offset_Minutes = 0; // zone minutes of ZDA
    std::int16_t GNSS2_UTC_Offset_Hours = 0;
    std::int16_t GNSS2_UTC_Offset_Minutes = 0;
    std::int16_t GNSS2_UTC_Offset_Seconds = 0;
};

} // namespace brinewright
