#pragma once

#include <string>

namespace brinewright {

struct VTG_Record {
    std::string Talker = "GP";
    float COG_True = 0;     // degrees
    float COG_Magnetic = 0; // degrees
    float SOG_Knots = 0;
    float SOG_Kmh = 0;
    char Mode = 'A';
};

// VTG: course and speed over ground.
//
//        1      2 3      4 5    6 7      8 9
//        |      | |      | |    | |      | |
// $--VTG,xxx.xx,T,xxx.xx,M,x.xx,N,xxx.xx,K,a*hh
//
// 1  course over ground, degrees true, 000.0 to 359.99; one decimal at least, two at most
// 2  T
// 3  course over ground, degrees magnetic
// 4  M
// 5  speed over ground, knots
// 6  N
// 7  speed over ground, km/h. Three integer digits where the knots have one: that asymmetry is required.
// 8  K
// 9  mode indicator
std::string Compose_VTG(const VTG_Record& Record, bool No_Checksum);

} // namespace brinewright
