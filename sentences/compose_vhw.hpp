#pragma once

#include <string>

namespace brinewright {

struct VHW_Record {
    std::string Talker = "VW";
    float Heading_True = 0;     // degrees
    float Heading_Magnetic = 0; // degrees
    float Speed_Knots = 0;      // through the water
    float Speed_Kmh = 0;        // through the water
};

// VHW: heading and speed through the water.
//
//        1      2 3      4 5    6 7    8
//        |      | |      | |    | |    |
// $--VHW,xxx.xx,T,xxx.xx,M,x.xx,N,x.xx,K*hh
//
// 1  heading, degrees true, 000.0 to 359.99; every number has one decimal at least, two at most
// 2  T
// 3  heading, degrees magnetic
// 4  M
// 5  speed through the water, knots
// 6  N
// 7  speed through the water, km/h
// 8  K
std::string Compose_VHW(const VHW_Record& Record, bool No_Checksum);

} // namespace brinewright
