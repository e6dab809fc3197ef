#pragma once

#include "sentences/sentence_time.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

// All other content comes from the clock.
struct ZDA_Record {
    std::string Talker = "GP";
};

// ZDA: time and date.
//
//        1         2  3  4    5   6
//        |         |  |  |    |   |
// $--ZDA,hhmmss.ss,dd,mm,yyyy,-xx,xx*hh
//
// 1  time of the sensor's clock with its offset, whatever Use_UTC says
// 2  day, 01 to 31, of the shifted time
// 3  month, 01 to 12
// 4  year
// 5  local zone, hours, cut towards zero. Required to be those of GNSS 1 for both instances, and the offset
// as it is
//    added to the machine's clock, so a negative offset prints as -02.
// 6  local zone, minutes, as stored for the instance; they have no sign
//
// The date moves by whole minutes only, while the time of GNSS 2 also takes the seconds of its offset; the
// difference is required. Decimals_Time: of the second, 0 to 3. Instance: 1, anything else counts as 2.
std::string Compose_ZDA(const Sentence_Time& Time, const ZDA_Record& Record, std::int16_t Decimals_Time,
                        std::int16_t Instance, bool No_Checksum);

} // namespace brinewright
