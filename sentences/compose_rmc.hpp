#pragma once

#include "sentences/sentence_time.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

struct RMC_Record {
    std::string Talker = "GP";
    std::string Status = "A"; // one letter
    double Lat = 0;           // degrees, north positive
    double Lon = 0;           // degrees, east positive
    float SOG = 0;            // knots, never negative
    float COG = 0;            // degrees true
    float Mag_Var = 0;        // degrees, never negative
    char Mag_Dir = 'E';
    char Mode = 'A';
    char Nav_Status = 'S';
};

// RMC: recommended minimum data, with navigational status.
//
//        1         2 3         4 5          6 7   8     9      10   11 12 13
//        |         | |         | |          | |   |     |      |     | | |
// $--RMC,hhmmss.ss,a,ddmm.mmmm,a,dddmm.mmmm,a,x.x,xxx.x,ddmmyy,xxx.x,a,a,a*hh
//
//  1  time of the sensor's clock
//  2  status, A or V
//  3  latitude, degrees and minutes, 0000.0000 to 9000.0000
//  4  N or S
//  5  longitude, degrees and minutes, 00000.0000 to 18000.0000
//  6  E or W
//  7  speed over ground, knots
//  8  course over ground, degrees true, 000.0 to 359.9
//  9  date of the machine's clock. It takes no offset, not even with Use_UTC, and so may differ for some
//  hours of
//     the day from the date that the time field belongs to. It is required that way; ZDA shifts its date.
// 10  magnetic variation, degrees
// 11  E or W
// 12  mode indicator
// 13  navigational status
//
// Decimals_Position: of the minutes of the position, 3 to 6; with any other number fields 3 to 6 are left
// out, commas included. Decimals_Time: of the second, 0 to 3. Instance: the sensor's number, whose offset to
// UTC applies to the time when Use_UTC is set.
std::string Compose_RMC(const Sentence_Time& Time, const RMC_Record& Record, std::int16_t Decimals_Position,
                        std::int16_t Decimals_Time, std::int16_t Instance, bool No_Checksum);

} // namespace brinewright
