#pragma once

#include <string>

namespace brinewright {

struct VDR_Record {
    std::string Talker = "VW";
    float Set_True = 0;     // degrees, where the current runs to
    float Set_Magnetic = 0; // degrees
    float Drift = 0;        // knots
};

// VDR: set and drift of the current.
//
//        1     2 3     4 5   6
//        |     | |     | |   |
// $--VDR,xxx.x,T,xxx.x,M,x.x,N*hh
//
// 1  direction that the current runs to, degrees true; one decimal, here and in the others
// 2  T
// 3  the same, degrees magnetic
// 4  M
// 5  speed of the current, knots
// 6  N
std::string Compose_VDR(const VDR_Record& Record, bool No_Checksum);

} // namespace brinewright
