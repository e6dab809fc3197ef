#pragma once

#include <cstdint>
#include <string>

namespace brinewright {

// Keeps the minutes of a position from rounding up to 60. Callers call it only for minutes above 59.999. With
// Decimals 3, 4, 5, 6 minutes above 59.999, 59.9999, 59.99999, 59.999999 become that limit; with any other
// Decimals nothing happens.
void Limit_Minutes(double& Minutes, std::int16_t Decimals);

// The four fields that all position sentences share, each with the comma in front of it:
//
//   ,ddmm.mmm,a,dddmm.mmm,a
//
// Lat and Lon are degrees, north and east positive; 0 and -0.0 are north and east. Decimals are those of the
// minutes, 3 to 6; with any other number the whole block is left out, commas included. The degrees are never
// rounded.
void Add_Position(std::string& Out, double Lat, double Lon, std::int16_t Decimals);

} // namespace brinewright
