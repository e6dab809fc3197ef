#pragma once

#include <string>

namespace brinewright {

struct DPT_Record {
    std::string Talker = "SD";
    float Depth = 0;  // below the transducer, metres
    float Offset = 0; // metres, positive from the transducer to the waterline, negative to the keel
    float Range = 0;  // greatest depth of the scale in use, metres
};

// DPT: depth.
//
//        1   2    3
//        |   |    |
// $--DPT,x.x,-x.x,x.xx*hh
//
// 1  depth below the transducer, metres, one decimal
// 2  offset of the transducer, metres, one decimal: positive to the waterline, negative to the keel
// 3  greatest depth of the scale in use, metres; one decimal at least, two at most
std::string Compose_DPT(const DPT_Record& Record, bool No_Checksum);

} // namespace brinewright
