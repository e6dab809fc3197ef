#pragma once

#include "sentences/sentence_time.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

struct GGA_Record {
    std::string Talker = "GP";
    double Lat = 0; // degrees, north positive
    double Lon = 0; // degrees, east positive
    std::int16_t Quality = 0;
    std::int16_t Sats = 0;
    float HDOP = 0;
    float Alt = 0; // metres
    char Alt_Unit = 'M';
    float Geoid_Sep = 0; // metres
    char Geoid_Unit = 'M';
    float Age = 0; // seconds
    std::int32_t Station_ID = 0;
};

// GGA: fix data.
//
//        1         2         3 4          5 6 7 8   9   10    12    14
//        |         |         | |          | | | |   |   | |   | |   |
// $--GGA,hhmmss.ss,ddmm.mmmm,a,dddmm.mmmm,a,x,x,x.x,x.x,M,x.x,M,x.x,xxxx*hh
//
//  1  time of the sensor's clock
//  2  latitude, degrees and minutes, 0000.0000 to 9000.0000
//  3  N or S
//  4  longitude, degrees and minutes, 00000.0000 to 18000.0000
//  5  E or W
//  6  quality, 0 (no fix) to 8
//  7  satellites in use, 0 to 63
//  8  horizontal dilution of precision
//  9  antenna above mean sea level, metres
// 10  M
// 11  geoidal separation, metres
// 12  M
// 13  age of the differential corrections, seconds; written whatever the quality
// 14  differential reference station, 0000 to 1023; written whatever the quality
//
// Decimals_Position: of the minutes of the position, 3 to 6; with any other number fields 2 to 5 are left
// out, commas included. Decimals_Time: of the second, 0 to 3. Instance: the sensor's number, whose offset to
// UTC applies to the time when Use_UTC is set.
std::string Compose_GGA(const Sentence_Time& Time, const GGA_Record& Record, std::int16_t Decimals_Position,
                        std::int16_t Decimals_Time, std::int16_t Instance, bool No_Checksum);

} // namespace brinewright
