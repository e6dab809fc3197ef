#pragma once

#include <cstdint>
#include <string>

namespace brinewright {

struct HDT_Record {
    std::string Talker = "HE";
    float Heading = 0; // degrees true
};

// HDT: true heading.
//
//        1     2
//        |     |
// $--HDT,xxx.x,T*hh
//
// 1  heading, degrees true, 000.0 to 359.9; nothing wraps a value that rounds up to 360.0
// 2  T
//
// Decimals: of the heading, 0 to 3; any other value means 1.
std::string Compose_HDT(const HDT_Record& Record, std::int16_t Decimals, bool No_Checksum);

} // namespace brinewright
