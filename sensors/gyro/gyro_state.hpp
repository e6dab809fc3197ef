#pragma once

#include "platform/table.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

// All of the two gyros. A level of noise is a place in a list and may, coming from a file, be anything.
struct Gyro_State {
    Per_Instance<float> Gyro_Offset;
    Per_Instance<float> Gyro_HDG;
    Per_Instance<float> Gyro_ROT; // degrees per minute
    Per_Instance<std::string> Gyro_Talker;
    Per_Instance<std::int16_t> Gyro_Decimals; // of heading and rate of turn
    Per_Instance<bool> Gyro_Noise_Enabled;
    Per_Instance<bool> Gyro_Noise_Accumulated;
    Per_Instance<Table<std::int16_t, 0, 3>> Gyro_Noise_Level; // heading, rate of turn, roll, pitch
    // An interval is the place in the sentence's list of intervals; as it may come from a file it can be
    // anything.
    Per_Instance<bool> HDT_Enabled;
    Per_Instance<std::int16_t> HDT_Interval;
    Per_Instance<bool> THS_Enabled;
    Per_Instance<std::int16_t> THS_Interval;
    Per_Instance<bool> ROT_Enabled;
    Per_Instance<std::int16_t> ROT_Interval;
    Per_Instance<bool> HDM_Enabled;
    Per_Instance<std::int16_t> HDM_Interval;
    Per_Instance<bool> ATT_Enabled;
    Per_Instance<std::int16_t> ATT_Interval;
    Per_Instance<bool> PRDID_Enabled;
    Per_Instance<std::int16_t> PRDID_Interval;
};

} // namespace brinewright
