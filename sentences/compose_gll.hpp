#pragma once

#include "sentences/sentence_time.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

struct GLL_Record {
    std::string Talker = "GP";
    double Lat = 0; // degrees, north positive
    double Lon = 0; // degrees, east positive
    char Status = 'A';
    char Mode = 'A';
};

// GLL: position with the time behind it.
//
//        1         2 3          4 5         6 7
//        |         | |          | |         | |
// $--GLL,ddmm.mmmm,a,dddmm.mmmm,a,hhmmss.ss,a,a*hh
//
// 1  latitude, degrees and minutes, 0000.0000 to 9000.0000
// 2  N or S
// 3  longitude, degrees and minutes, 00000.0000 to 18000.0000
// 4  E or W
// 5  time of the sensor's clock
// 6  status, A or V
// 7  mode indicator
//
// Decimals_Position: of the minutes of the position, 3 to 6; with any other number fields 1 to 4 are left
// out, commas included. Decimals_Time: of the second, 0 to 3. Instance: the sensor's number, whose offset to
// UTC applies to the time when Use_UTC is set.
std::string Compose_GLL(const Sentence_Time& Time, const GLL_Record& Record, std::int16_t Decimals_Position,
                        std::int16_t Decimals_Time, std::int16_t Instance, bool No_Checksum);

} // namespace brinewright
