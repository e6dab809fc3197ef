#pragma once

#include "platform/table.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

struct GSA_Record {
    std::string Talker = "GP";
    char Mode = 'A';
    std::int16_t Fix = 1;
    Table<std::int16_t, 1, 12> PRN; // 0 is none
    float PDOP = 0;
    float HDOP = 0;
    float VDOP = 0;
};

// GSA: satellites in use.
//
//        1 2 3 4      15  16  17
//        | | | |    | |   |   |
// $--GSA,a,x,x,x,..,x,x.x,x.x,x.x*hh
//
//  1      A automatic or M manual choice of 2D and 3D
//  2      1 no fix, 2 2D, 3 3D
//  3-14   satellite numbers, unpadded; empty where there is none
// 15      position dilution of precision
// 16      horizontal dilution of precision
// 17      vertical dilution of precision
std::string Compose_GSA(const GSA_Record& Record, bool No_Checksum);

} // namespace brinewright
