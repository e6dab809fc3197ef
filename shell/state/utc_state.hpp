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

template <class Visitor>
void Visit_State(UTC_State& S, Visitor&& Visit) {
    Visit("Use_UTC", S.Use_UTC);
    Visit("UTC_Offset_Hours", S.UTC_Offset_Hours);
    Visit("UTC_Offset_Minutes", S.UTC_Offset_Minutes);
    Visit("GNSS2_UTC_Offset_Hours", S.GNSS2_UTC_Offset_Hours);
    Visit("GNSS2_UTC_Offset_Minutes", S.GNSS2_UTC_Offset_Minutes);
    Visit("GNSS2_UTC_Offset_Seconds", S.GNSS2_UTC_Offset_Seconds);
}

} // namespace brinewright
