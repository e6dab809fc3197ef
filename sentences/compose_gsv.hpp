#pragma once

#include "platform/table.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

struct GSV_Record {
    std::string Talker = "GP";
    std::int16_t Total = 0;
    std::int16_t Number = 0;
    std::int16_t In_View = 0;
    // One element for each satellite of this sentence.
    Table<std::int16_t, 1, 4> PRN; // 0 is none
    Table<std::int16_t, 1, 4> Elevation;
    Table<std::int16_t, 1, 4> Azimuth;
    Table<std::int16_t, 1, 4> SNR;
};

// GSV: satellites in view, four in each sentence of a series.
//
//        1 2 3  4 5  6   7       17 18  19
//        | | |  | |  |   |     | |  |   |
// $--GSV,x,x,xx,x,xx,xxx,xx,..,x,xx,xxx,xx*hh
//
//  1      sentences in the series
//  2      number of this sentence, from 1
//  3      satellites in view
//  4-7    first satellite: number, elevation (degrees, 0 to 90), azimuth (degrees true, 0 to 359), SNR (dB)
//  8-19   three more satellites
//
// All values are unpadded, an SNR of 0 is "0". Every sentence has all 16 satellite fields, empty where there
// is no satellite, and no signal identifier behind them.
std::string Compose_GSV(const GSV_Record& Record, bool No_Checksum);

} // namespace brinewright
