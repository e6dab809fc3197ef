#pragma once

#include "platform/table.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

// All of the two echo sounders. A level of noise is a place in a list and may, coming from a file, be
// anything.
struct Echo_State {
    float Echo_Depth = 0; // metres, shared by both echo sounders
    Per_Instance<std::string> Echo_Talker;
    Per_Instance<bool> Echo_Noise_Enabled;
    Per_Instance<std::int16_t> Echo_Noise_Level;
    // An interval is the place in the sentence's list of intervals; as it may come from a file it can be
    // anything.
    Per_Instance<bool> DBT_Enabled;
    Per_Instance<std::int16_t> DBT_Interval;
    Per_Instance<bool> DPT_Enabled;
    Per_Instance<std::int16_t> DPT_Interval;
};

} // namespace brinewright
