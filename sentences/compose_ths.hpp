#pragma once

#include <cstdint>
#include <string>

namespace brinewright {

struct THS_Record {
    std::string Talker = "HE";
    float Heading = 0; // degrees true
    char Mode = 'A';   // A, E, M, S, V
};

// THS: true heading and status.
//
//        1     2
//        |     |
// $--THS,xxx.x,a*hh
//
// 1  heading, degrees true, 000.0 to 359.9; not wrapped when it rounds up to 360.0
// 2  mode: A autonomous, E estimated, M manual, S simulator, V not valid
//
// Decimals: of the heading, 0 to 3; any other value means 1.
std::string Compose_THS(const THS_Record& Record, std::int16_t Decimals, bool No_Checksum);

} // namespace brinewright
