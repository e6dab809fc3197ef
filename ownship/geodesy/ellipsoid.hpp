#pragma once

#include <cstdint>

namespace brinewright {

// Geodesics on an ellipsoid. Latitudes, longitudes (north and east positive, longitudes within +-Pi) and
// azimuths are in radians, distances in metres. Nothing here fails: no arguments make a result that is not
// finite.

// Where Distance_m on Azimuth_rad leads: Clarke's best formula, with one term changed. It follows the normal
// section, which leaves the geodesic by up to 15 mm at 100 km, growing with the third power of the distance;
// it is not meant to go past a pole. A distance of exactly 0 gives the start, bit for bit, and so does an
// argument that is not finite. An arc that ends exactly on a pole gives longitude 0.
void Ellipsoid_Direct(double Lat_rad, double Lon_rad, double Distance_m, double Azimuth_rad,
                      double& New_Lat_rad, double& New_Lon_rad, double Semi_Major_m,
                      double Eccentricity_Squared);

inline constexpr std::int16_t Distance_And_Azimuths = 0;
inline constexpr std::int16_t Distance_Only = 1;
inline constexpr std::int16_t Azimuths_Only = 2;

// Distance and azimuth from point 1 to point 2: the series of order f squared after Sodano, without a loop.
// What Mode does not ask for stays as it is, except that points less than 1e-10 apart set all three outputs
// to 0, as do points whose longitudes differ by a full circle and arguments that are not finite.
//
// The distance is good to 0.05 in a million, up to a quarter of the circumference (10,000 km): the arc is
// taken from its sine, so that beyond it comes out as short of the antipode as it should be long. The azimuth
// is good to 0.000002 degrees there, to 0.0002 up to 17,500 km, and loses its meaning at the antipode only;
// it is 0 to under Two_Pi, and exactly Half_Pi, Three_Half_Pi, 0 or Pi along the equator and along a
// meridian. The back azimuth is the azimuth plus Pi, not the azimuth of the geodesic at point 2.
void Ellipsoid_Inverse(double Lat_1_rad, double Lon_1_rad, double Lat_2_rad, double Lon_2_rad,
                       std::int16_t Mode, double& Distance_m, double& Azimuth_rad, double& Back_Azimuth_rad,
                       double Semi_Minor_m, double Flattening);

} // namespace brinewright
