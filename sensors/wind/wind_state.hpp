#pragma once

#include "platform/table.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

// All of the two wind gauges. A level of noise is a place in a list and may, coming from a file, be anything.
struct Wind_State {
    Per_Instance<float> Wind_Speed;     // in the unit that the window chose
    Per_Instance<float> Wind_Direction; // where the wind comes from
    Per_Instance<bool> Wind_Relative_Ref;
    Per_Instance<std::string> Wind_Talker;
    Per_Instance<bool> Wind_Noise_Enabled;
    Per_Instance<Table<std::int16_t, 0, 1>> Wind_Noise_Level; // direction, speed
    // An interval is the place in the sentence's list of intervals; as it may come from a file it can be
    // anything.
    Per_Instance<bool> MWV_Enabled;
    Per_Instance<std::int16_t> MWV_Interval;
    Per_Instance<bool> MWD_Enabled;
    Per_Instance<std::int16_t> MWD_Interval;
};

} // namespace brinewright
