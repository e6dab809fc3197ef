#pragma once

#include "sentences/sentence_time.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

struct GST_Record {
    std::string Talker = "GP";
    float RMS = 0;                // metres
    float Semi_Major = 0;         // metres
    float Semi_Minor = 0;         // metres
    std::int16_t Orientation = 0; // degrees
    float Sd_Lat = 0;             // metres
    float Sd_Lon = 0;             // metres
    float Sd_Alt = 0;             // metres
};

// GST: statistics of the position's errors.
//
//        1         2    3    4    5   6    7    8
//        |         |    |    |    |   |    |    |
// $--GST,hhmmss.ss,x.xx,x.xx,x.xx,xxx,x.xx,x.xx,x.xx*hh
//
// 1  time of the sensor's clock
// 2  root mean square of the standard deviation of the ranges, metres
// 3  standard deviation of the semi-major axis of the error ellipse, metres
// 4  standard deviation of the semi-minor axis, metres
// 5  orientation of the semi-major axis, degrees from true north, 000 to 359
// 6  standard deviation of the latitude, metres
// 7  standard deviation of the longitude, metres
// 8  standard deviation of the altitude, metres
//
// Decimals_Time: of the second, 0 to 3. Instance: the sensor's number, whose offset to UTC applies to the
// time when Use_UTC is set.
std::string Compose_GST(const Sentence_Time& Time, const GST_Record& Record, std::int16_t Decimals_Time,
                        std::int16_t Instance, bool No_Checksum);

} // namespace brinewright
