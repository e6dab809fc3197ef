#pragma once

#include "platform/table.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

// All of the two logs. The distance counters are in nautical miles and are not kept over a restart.
struct Log_State {
    Per_Instance<float> Log_Offset;
    Per_Instance<float> Log_Speed;
    Per_Instance<std::string> Log_Talker;
    Per_Instance<bool> Log_Noise_Enabled;
    Per_Instance<float> Log_Noise_Level;        // knots
    Per_Instance<std::int16_t> Log_VLW_Seconds; // between two VLW sentences of the log
    Per_Instance<float> Log_Total_Water;
    Per_Instance<float> Log_Total_Ground;
    Per_Instance<float> Log_Trip_Water;
    Per_Instance<float> Log_Trip_Ground;
    // An interval is the place in the sentence's list of intervals; as it may come from a file it can be
    // anything.
    Per_Instance<bool> VHW_Enabled;
    Per_Instance<std::int16_t> VHW_Interval;
    Per_Instance<bool> VBW_Enabled;
    Per_Instance<std::int16_t> VBW_Interval;
    Per_Instance<bool> VDR_Enabled;
    Per_Instance<std::int16_t> VDR_Interval;
    Per_Instance<bool> VLW_Enabled;
    Per_Instance<std::int16_t> VLW_Interval;
};

} // namespace brinewright
