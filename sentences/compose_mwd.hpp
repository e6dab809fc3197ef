#pragma once

#include <string>

namespace brinewright {

struct MWD_Record {
    std::string Talker = "WI";
    float Dir_True = 0;     // degrees, where the wind comes from
    float Dir_Magnetic = 0; // degrees
    float Speed_Knots = 0;
    float Speed_Ms = 0; // metres per second
};

// MWD: direction and speed of the true wind.
//
//        1      2 3      4 5      6 7      8
//        |      | |      | |      | |      |
// $--MWD,xxx.xx,T,xxx.xx,M,xxx.xx,N,xxx.xx,M*hh
//
// 1  direction that the wind comes from, degrees true, 000.0 to 359.99; three integer digits, one decimal at
//    least, two at most, as every number here
// 2  T
// 3  the same, degrees magnetic
// 4  M
// 5  speed of the wind, knots
// 6  N
// 7  speed of the wind, metres per second
// 8  M
std::string Compose_MWD(const MWD_Record& Record, bool No_Checksum);

} // namespace brinewright
