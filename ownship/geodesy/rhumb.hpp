#pragma once

namespace brinewright {

// Rhumb lines on the sphere of 60 nautical miles to the degree. Latitudes, longitudes (north and east
// positive) and courses are in radians, distances in nautical miles. Is_Mercator chooses the exact rhumb
// line, as all callers of the system do; without it the mid-latitude approximation is used.
//
// The outputs keep what they held, without a word, where a routine says so; a caller that passes its own
// position as the output thereby stays where it is. They also keep it when an argument is not finite.

// Where Distance_NM on Course_rad leads. The outputs stay as they are when that is beyond a pole, so that a
// ship stops there. The longitude is wrapped at Pi once: a step around the pole of more than a full circle is
// not brought back into -Pi to Pi.
void Rhumb_Direct(double Lat_rad, double Lon_rad, double Distance_NM, double Course_rad, double& New_Lat_rad,
                  double& New_Lon_rad, bool Is_Mercator);

// Distance and course (0 to under Two_Pi) from position 1 to position 2, the shorter way round. Both are 0
// for positions less than 1e-6 apart. With Is_Mercator the outputs stay as they are when a latitude is
// exactly
// +-Half_Pi.
void Rhumb_Inverse(double Lat_1_rad, double Lon_1_rad, double Lat_2_rad, double Lon_2_rad,
                   double& Distance_NM, double& Course_rad, bool Is_Mercator);

} // namespace brinewright
