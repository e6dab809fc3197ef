#pragma once

#include "platform/table.hpp"

#include <cstdint>

namespace brinewright {

// Own ship, and the values of the sensors other than GNSS. Positions in degrees, north and east positive;
// speeds in knots; angles in degrees.
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
    double Lat_Offset = 0; // metres north, of position 2 from position 1
    double Lon_Offset = 0; // metres east
    Per_Instance<float> Gyro_Offset;
    Per_Instance<float> Log_Offset;
    Per_Instance<float> Gyro_HDG;
    Per_Instance<float> Gyro_ROT; // degrees per minute
    Per_Instance<float> Log_Speed;
    float Echo_Depth = 0;               // metres, shared by both echo sounders
    Per_Instance<float> Wind_Speed;     // in the unit that the window chose
    Per_Instance<float> Wind_Direction; // where the wind comes from
    Per_Instance<bool> Wind_Relative_Ref;
    float Current_Set = 0;   // degrees
    float Current_Drift = 0; // knots
};

template <class Visitor>
void Visit_State(Navdata_State& S, Visitor&& Visit) {
    Visit("Nav_Lat", S.Nav_Lat);
    Visit("Nav_Lon", S.Nav_Lon);
    Visit("Nav_SOG", S.Nav_SOG);
    Visit("Nav_COG", S.Nav_COG);
    Visit("Nav_HDG", S.Nav_HDG);
    Visit("Nav_Rudder", S.Nav_Rudder);
    Visit("Start_Lat", S.Start_Lat);
    Visit("Start_Lon", S.Start_Lon);
    Visit("Max_Speed_Ahead", S.Max_Speed_Ahead);
    Visit("Max_Speed_Astern", S.Max_Speed_Astern);
    Visit("Max_Rudder", S.Max_Rudder);
    Visit("Magnetic_Variation", S.Magnetic_Variation);
    Visit("Lat_Offset", S.Lat_Offset);
    Visit("Lon_Offset", S.Lon_Offset);
    Visit("Gyro_Offset", S.Gyro_Offset);
    Visit("Log_Offset", S.Log_Offset);
    Visit("Gyro_HDG", S.Gyro_HDG);
    Visit("Gyro_ROT", S.Gyro_ROT);
    Visit("Log_Speed", S.Log_Speed);
    Visit("Echo_Depth", S.Echo_Depth);
    Visit("Wind_Speed", S.Wind_Speed);
    Visit("Wind_Direction", S.Wind_Direction);
    Visit("Wind_Relative_Ref", S.Wind_Relative_Ref);
    Visit("Current_Set", S.Current_Set);
    Visit("Current_Drift", S.Current_Drift);
}

} // namespace brinewright
