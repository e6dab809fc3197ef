#pragma once

#include <string>

namespace brinewright {

struct ATT_Record {
    std::string Talker = "HE";
    float Heading = 0; // degrees true
    float Pitch = 0;   // degrees
    float Roll = 0;    // degrees
};

// $PFEC att: heading and attitude, a maker's own sentence.
//
//       1     2      3       4
//       |     |      |       |
// $PFEC,--att,xxx.xx,-xxx.xx,-xxx.xx*hh
//
// 1  the talker with "att" directly behind it
// 2  heading, degrees true, 000.0 to 359.99; one decimal at least, two at most
// 3  pitch, degrees. Pitch and roll get the three integer digits of the heading: that is required.
// 4  roll, degrees
//
// The decimals that the user chooses for the gyro do not apply.
std::string Compose_ATT(const ATT_Record& Record, bool No_Checksum);

} // namespace brinewright
