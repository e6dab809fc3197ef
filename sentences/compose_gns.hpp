#pragma once

#include "sentences/sentence_time.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

struct GNS_Record {
    std::string Talker = "GP"; // of the constellation setup, not the talker of the sensor
    double Lat = 0;            // degrees, north positive
    double Lon = 0;            // degrees, east positive
    std::string Mode;
    std::int16_t Sats = 0;
    float HDOP = 0;
    float Alt = 0;       // metres
    float Geoid_Sep = 0; // metres
    float Age = 0;       // seconds
    std::int32_t Station_ID = 0;
    char Status = 'S';
};

// GNS: fix data of several constellations, in the form of IEC 61162-1:2024.
//
//        1         2         3 4          5 6    7 8   9   10  11  12
//        |         |         | |          | |    | |   |   |   |   | |
// $--GNS,hhmmss.ss,ddmm.mmmm,a,dddmm.mmmm,a,c--c,x,x.x,x.x,x.x,x.x,x,a*hh
//
//  1  time of the sensor's clock
//  2  latitude, degrees and minutes, 0000.0000 to 9000.0000
//  3  N or S
//  4  longitude, degrees and minutes, 00000.0000 to 18000.0000
//  5  E or W
//  6  mode indicators, up to 6 letters, one for each constellation
//  7  satellites in use
//  8  horizontal dilution of precision
//  9  antenna above mean sea level, metres
// 10  geoidal separation, metres
// 11  age of the differential corrections, seconds
// 12  differential reference station, 0 to 1023. Unpadded, which is required: "100" here is "0100" in GGA.
// 13  navigational status
//
// Decimals_Position: of the minutes of the position, 3 to 6; with any other number fields 2 to 5 are left
// out, commas included. Decimals_Time: of the second, 0 to 3. Instance: the sensor's number, whose offset to
// UTC applies to the time when Use_UTC is set.
std::string Compose_GNS(const Sentence_Time& Time, const GNS_Record& Record, std::int16_t Decimals_Position,
                        std::int16_t Decimals_Time, std::int16_t Instance, bool No_Checksum);

} // namespace brinewright
