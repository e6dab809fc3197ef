#pragma once

#include <string>

namespace brinewright {

struct MWV_Record {
    std::string Talker = "WI";
    float Angle = 0;       // degrees
    char Reference = 'R';  // R relative, T true
    float Speed = 0;       // in the unit that follows
    char Speed_Unit = 'N'; // N knots, M metres per second, K kilometres per hour
    char Status = 'A';     // A valid, V not valid
};

// MWV: wind speed and angle.
//
//        1      2 3      4 5
//        |      | |      | |
// $--MWV,xxx.xx,a,xxx.xx,a,a*hh
//
// 1  angle of the wind, degrees, 000.0 to 359.99; one decimal at least, two at most
// 2  reference: R relative to the bow, T true
// 3  speed of the wind in the unit of field 4, with three integer digits like the angle
// 4  unit: N knots, M metres per second, K kilometres per hour
// 5  status: A valid, V not valid
std::string Compose_MWV(const MWV_Record& Record, bool No_Checksum);

} // namespace brinewright
