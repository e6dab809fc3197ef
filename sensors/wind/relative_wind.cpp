#include "sensors/wind/relative_wind.hpp"

#include "ownship/geodesy/angles.hpp"
#include "ownship/geodesy/ellipsoid.hpp"
#include "ownship/geodesy/finite.hpp"
#include "ownship/geodesy/geodetic_constants.hpp"
#include "ownship/geodesy/rhumb.hpp"
#include "shell/kit/value_bars.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace brinewright {

namespace {

struct Point {
    double Lat_rad = 0;
    double Lon_rad = 0;
};

// A metre for each knot: only the direction between two such points counts. A point that a rhumb line cannot
// reach, beyond a pole, is own position.
Point Laid_Off(const Wind_And_Ship& Now, double Course_deg, double Speed_kn) {
    const Point Start{Now.Lat_deg * Degrees_To_Radians, Now.Lon_deg * Degrees_To_Radians};
    Point End = Start;
    constexpr bool Is_Mercator = true;
    Rhumb_Direct(Start.Lat_rad, Start.Lon_rad, Speed_kn * Nautical_Miles_Per_m,
                 Course_deg * Degrees_To_Radians, End.Lat_rad, End.Lon_rad, Is_Mercator);
    return End;
}

// The air moves on from T, the ship from O: seen from the ship the air goes from O to T, and the wind comes
// from the opposite direction.
float Felt_Direction_deg(const Wind_And_Ship& Now, float Downwind_deg) {
    const Point O = Laid_Off(Now, Now.Course_deg, Now.Ground_Speed_kn);
    const Point T = Laid_Off(Now, Downwind_deg, Now.Wind_Speed_kn);
    double Distance_m = 0, Azimuth_rad = 0, Back_Azimuth_rad = 0;
    Ellipsoid_Inverse(O.Lat_rad, O.Lon_rad, T.Lat_rad, T.Lon_rad, Azimuths_Only, Distance_m, Azimuth_rad,
                      Back_Azimuth_rad, WGS84_Semi_Minor_m, WGS84_Flattening);
    return static_cast<float>(Add_Degrees(Azimuth_rad * Radians_To_Degrees, 180));
}

double Felt_Speed_kn(double Wind_kn, double Log_kn, float Heading_deg, float Downwind_deg) {
    float Between_deg = 0;
    std::int16_t Side = 0;
    Angle_Between(Heading_deg, Downwind_deg, Between_deg, Side);
    const double Cosine = std::cos(Between_deg * Degrees_To_Radians);
    const double Square = Wind_kn * Wind_kn + Log_kn * Log_kn - 2 * Log_kn * Wind_kn * Cosine;
    return Finite_Or_Zero(std::sqrt(std::max(Square, 0.0)));
}

} // namespace

Relative_Wind Work_Out_Relative_Wind(const Wind_And_Ship& Now) {
    const double Wind_kn = Finite_Or_Zero(Now.Wind_Speed_kn);
    const double Log_kn = Finite_Or_Zero(Now.Log_Speed_kn);
    const float Heading_deg = Now.Heading_deg;
    const auto Downwind_deg = static_cast<float>(Add_Degrees(Now.Wind_Direction_deg, 180));
    if (Heading_deg == Now.Wind_Direction_deg) return {Wind_kn + Log_kn, 0};
    if (Heading_deg == Downwind_deg) return {std::abs(Wind_kn - Log_kn), Wind_kn > Log_kn ? 180.0F : 0.0F};

    const double Speed_kn = Felt_Speed_kn(Wind_kn, Log_kn, Heading_deg, Downwind_deg);
    if (Speed_kn == 0) return {0, 0};
    const float From_deg = Felt_Direction_deg(Now, Downwind_deg);
    const float Off_Bow_deg =
        From_deg < Heading_deg ? 360 - (Heading_deg - From_deg) : std::abs(Heading_deg - From_deg);
    return {Speed_kn, Normalise_Direction(Off_Bow_deg)};
}

} // namespace brinewright
