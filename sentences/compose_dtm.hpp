#pragma once

#include <string>

namespace brinewright {

struct DTM_Record {
    std::string Talker = "GP";
    std::string Local_Datum = "W84";
    char Sub_Division = ' ';
    float Lat_Offset = 0; // minutes, never negative
    char Lat_Dir = 'N';
    float Lon_Offset = 0; // minutes, never negative
    char Lon_Dir = 'E';
    float Alt_Offset = 0; // metres, signed
    std::string Ref_Datum = "W84";
};

// DTM: datum reference.
//
//        1   2 3   4 5   6 7   8
//        |   | |   | |   | |   |
// $--DTM,ccc,a,x.x,a,x.x,a,x.x,ccc*hh
//
// 1  local datum: W84, P90 or E50
// 2  sub-division: required to be the one blank that the record holds, not an empty field
// 3  latitude offset, minutes, as the shortest decimal text: 0 prints as "0"
// 4  N or S
// 5  longitude offset, minutes, likewise
// 6  E or W
// 7  altitude offset, metres, likewise
// 8  reference datum: W84, P90 or E50
std::string Compose_DTM(const DTM_Record& Record, bool No_Checksum);

} // namespace brinewright
