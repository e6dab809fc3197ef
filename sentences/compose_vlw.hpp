#pragma once

#include <cstdint>
#include <string>

namespace brinewright {

struct VLW_Record {
    std::string Talker = "VW";
    float Total_Water = 0; // nautical miles, like all of them
    float Trip_Water = 0;  // since the reset
    float Total_Ground = 0;
    float Trip_Ground = 0; // since the reset
};

// The speeds that the counters advance by: that of the log, and that over ground of the GNSS sensor with the
// log's number.
struct Log_Speeds {
    float Water_kn = 0;
    float Ground_kn = 0;
};

// The counters of one log, in nautical miles, and the seconds between two of its VLW.
struct VLW_Counters {
    std::int16_t Period_s = 0;
    float& Total_Water;
    float& Trip_Water;
    float& Total_Ground;
    float& Trip_Ground;
};

// VLW: distances through the water and over ground.
//
//        1      2 3    4 5      6 7    8 9
//        |      | |    | |      | |    | |
// $--VLW,x.xxxx,N,x.xx,N,x.xxxx,N,x.xx,N,*hh
//
// 1  total distance through the water, nautical miles, four decimals
// 2  N
// 3  distance through the water since the reset, nautical miles; one decimal at least, two at most
// 4  N
// 5  total distance over ground, nautical miles, four decimals
// 6  N
// 7  distance over ground since the reset, nautical miles; one decimal at least, two at most
// 8  N
// 9  empty, so that a comma stands in front of the checksum: that form is required
//
// The one composer that changes anything. Before it writes, the four Counters grow
// by the way made in their period at Speeds, in 32-bit arithmetic, and the record takes
// them. A negative speed makes them go back. A step that has no finite result leaves its counter as it was.
std::string Compose_VLW(const VLW_Counters& Counters, const Log_Speeds& Speeds, VLW_Record& Record,
                        bool No_Checksum);

} // namespace brinewright
