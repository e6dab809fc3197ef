#pragma once

#include <cstdint>
#include <string>

namespace brinewright {

struct ROT_Record {
    std::string Talker = "HE";
    float Rate = 0;    // degrees per minute, negative to port
    char Status = 'A'; // A valid, V not valid
};

// ROT: rate of turn.
//
//        1      2
//        |      |
// $--ROT,-xxx.x,a*hh
//
// 1  rate of turn, degrees per minute; a turn to port has the minus in front of the padded digits: -005.5
// 2  status
//
// Decimals: of the rate, 0 to 3; any other value means 1.
std::string Compose_ROT(const ROT_Record& Record, std::int16_t Decimals, bool No_Checksum);

} // namespace brinewright
