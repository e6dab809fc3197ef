#pragma once

#include <string>

namespace brinewright {

struct VBW_Record {
    std::string Talker = "VW";
    float Water_Long = 0;    // knots, negative astern
    float Water_Trans = 0;   // knots, negative to port
    char Water_Status = 'A'; // A valid, V not valid
    float Ground_Long = 0;   // knots
    float Ground_Trans = 0;  // knots
    char Ground_Status = 'A';
    float Stern_Water = 0; // transverse at the stern, knots
    char Stern_Water_Status = 'A';
    float Stern_Ground = 0; // transverse at the stern, knots
    char Stern_Ground_Status = 'A';
};

// VBW: speed over ground and through the water, along and across the ship.
//
//        1     2     3 4     5     6 7     8 9     10
//        |     |     | |     |     | |     | |     |
// $--VBW,-x.xx,-x.xx,a,-x.xx,-x.xx,a,-x.xx,a,-x.xx,a*hh
//
// 1   speed through the water along the ship, knots, negative astern; one decimal at least, two at most
// 2   speed through the water across the ship, knots, negative to port
// 3   status of fields 1 and 2: A valid, V not valid
// 4   speed over ground along the ship, knots
// 5   speed over ground across the ship, knots
// 6   status of fields 4 and 5
// 7   speed through the water across the ship at the stern, knots
// 8   status of field 7
// 9   speed over ground across the ship at the stern, knots
// 10  status of field 9
std::string Compose_VBW(const VBW_Record& Record, bool No_Checksum);

} // namespace brinewright
