#pragma once

#include <string>

namespace brinewright {

struct DBT_Record {
    std::string Talker = "SD";
    float Depth_Feet = 0; // below the transducer, like all of them
    float Depth_Metres = 0;
    float Depth_Fathoms = 0;
};

// DBT: depth below the transducer.
//
//        1    2 3    4 5    6
//        |    | |    | |    |
// $--DBT,x.xx,f,x.xx,M,x.xx,F*hh
//
// 1  depth, feet; one decimal at least, two at most, here and in the others
// 2  f: in lower case, which is required
// 3  depth, metres
// 4  M
// 5  depth, fathoms
// 6  F
std::string Compose_DBT(const DBT_Record& Record, bool No_Checksum);

} // namespace brinewright
