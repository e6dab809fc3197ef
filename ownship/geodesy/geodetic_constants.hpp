#pragma once

namespace brinewright {

// Pi is the 15-digit constant and not the full double: longitudes wrap at it and the pole is half of it, so
// that 90 and 180 degrees in radians (times Degrees_To_Radians) are exactly Half_Pi and Pi. std::numbers::pi
// is not.
inline constexpr double Pi = 3.14159265358979;
inline constexpr double Two_Pi = 6.28318530717958;
inline constexpr double Half_Pi = 1.570796326794895;
inline constexpr double Three_Half_Pi = 4.712388980384685;
inline constexpr double Degrees_To_Radians = 0.017453292519943278;
inline constexpr double Radians_To_Degrees = 57.29577951308238;

inline constexpr double m_Per_Nautical_Mile = 1852.0;
inline constexpr double Nautical_Miles_Per_m = 0.0005399568034557236;
inline constexpr double mps_Per_Knot = 0.5144444444444445;

inline constexpr double WGS84_Semi_Major_m = 6378137.0;
inline constexpr double WGS84_Semi_Minor_m = 6356752.31424518;
inline constexpr double WGS84_Flattening = 0.0033528106647474805; // 1 / 298.257223563
inline constexpr double WGS84_Eccentricity_Squared = 0.0066943799901413165;

} // namespace brinewright
