#pragma once

#include "platform/table.hpp"

#include <cstdint>

namespace brinewright {

// Own ship. Positions in degrees, north and east positive; speeds in knots; angles in degrees.
struct Navdata_State {
    double Nav_Lat = 0;
    double Nav_Lon = 0;
    float Nav_SOG = 0;
    double Nav_COG = 0;
    double Nav_HDG = 0;
    float Nav_Rudder = 0; // degrees per minute: the commanded rate of turn, to starboard positive
    double Start_Lat = 0;
    double Start_Lon = 0;
    float Max_Speed_Ahead = 0;
    float Max_Speed_Astern = 0;
    float Max_Rudder = 0; // degrees per minute: the greatest rate of turn
    float Magnetic_Variation = 0;
    double Lat_Offset = 0;          // metres north, of position 2 from position 1
    double Lon_Offset = 0;          // metres east
    float Current_Set = 0;          // degrees
    float Current_Drift = 0;        // knots
    float Ship_SOG_Noise_Index = 0; // a ListIndex, held as a float
    float Ship_ROT_Noise_Index = 0; // a ListIndex, held as a float
};

} // namespace brinewright
