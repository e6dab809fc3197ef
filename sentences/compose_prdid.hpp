#pragma once

#include <string>

namespace brinewright {

struct PRDID_Record {
    std::string Talker = "HE"; // not used
    float Pitch = 0;           // degrees
    float Roll = 0;            // degrees
    float Heading = 0;         // degrees true
};

// $PRDID: attitude and heading, a maker's own sentence. It has no talker; the one in the record is not used.
//
//        1       2       3
//        |       |       |
// $PRDID,-xxx.xx,-xxx.xx,xxx.xx*hh
//
// 1  pitch, degrees, three integer digits; one decimal at least, two at most
// 2  roll, degrees, alike
// 3  heading, degrees true, 000.0 to 359.99
std::string Compose_PRDID(const PRDID_Record& Record, bool No_Checksum);

} // namespace brinewright
