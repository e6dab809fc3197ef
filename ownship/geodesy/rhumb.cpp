#include "ownship/geodesy/rhumb.hpp"

#include "ownship/geodesy/angles.hpp"
#include "ownship/geodesy/finite.hpp"
#include "ownship/geodesy/geodetic_constants.hpp"

#include <cmath>

namespace brinewright {
namespace {

// The northing of a latitude on the Mercator chart.
double Stretched_Latitude(double Lat_rad) { return std::log(std::tan(Lat_rad / 2 + Pi / 4)); }

double Wrapped_Once(double Lon_rad) {
    if (!(std::abs(Lon_rad) > Pi)) return Lon_rad;
    const double Excess_rad = std::abs(Lon_rad) - Pi;
    return Lon_rad > 0 ? -(Pi - Excess_rad) : Pi - Excess_rad;
}

struct Rhumb_Leg {
    double Distance_rad = 0;
    double Course_rad = 0;
};

Rhumb_Leg Mercator_Leg(double Lat_1_rad, double Lat_2_rad, double Lat_Change_rad, double Lon_Change_rad) {
    Rhumb_Leg Leg;
    const double Northing = Stretched_Latitude(Lat_2_rad) - Stretched_Latitude(Lat_1_rad);
    if (std::abs(Northing) < 1e-6) {
        Leg.Distance_rad = std::cos(Lat_1_rad) * Lon_Change_rad;
        Leg.Course_rad = Half_Pi;
    } else {
        double Cosine = Northing / std::sqrt(Lon_Change_rad * Lon_Change_rad + Northing * Northing);
        Leg.Course_rad = Arc_Cos(Cosine);
        const double Departure_rad = Lon_Change_rad * Lat_Change_rad / Northing;
        Leg.Distance_rad = std::sqrt(Departure_rad * Departure_rad + Lat_Change_rad * Lat_Change_rad);
    }
    if (Lon_Change_rad < 0) Leg.Course_rad = Two_Pi - Leg.Course_rad;
    return Leg;
}

// The sums are not those of a textbook, which takes Angle, Pi - Angle, Pi + Angle and Two_Pi - Angle. They
// are required as they stand.
double Mid_Latitude_Course(double Angle_rad, double Lat_Change_rad, double Lon_Change_rad) {
    if (Lon_Change_rad == 0) return Lat_Change_rad <= 0 ? Pi : 0;
    if (Lon_Change_rad > 0) return Lat_Change_rad > 0 ? Angle_rad : Angle_rad + Half_Pi;
    return Lat_Change_rad < 0 ? Angle_rad + Pi : Angle_rad + Three_Half_Pi;
}

Rhumb_Leg Mid_Latitude_Leg(double Lat_1_rad, double Lat_2_rad, double Lat_Change_rad, double Lon_Change_rad) {
    const double Departure_rad = std::abs(std::cos((Lat_1_rad + Lat_2_rad) / 2) * Lon_Change_rad);
    if (std::abs(Lat_Change_rad) < 1e-6)
        return {Departure_rad, Lon_Change_rad >= 0 ? Half_Pi : Three_Half_Pi};
    const double Distance_rad = std::sqrt(Lat_Change_rad * Lat_Change_rad + Departure_rad * Departure_rad);
    double Sine = Departure_rad / Distance_rad;
    return {Distance_rad, Mid_Latitude_Course(Arc_Sin(Sine), Lat_Change_rad, Lon_Change_rad)};
}

} // namespace

void Rhumb_Direct(double Lat_rad, double Lon_rad, double Distance_NM, double Course_rad, double& New_Lat_rad,
                  double& New_Lon_rad, bool Is_Mercator) {
    const double Distance_rad = Distance_NM / 60 * Degrees_To_Radians;
    const double Lat_Change_rad = Distance_rad * std::cos(Course_rad);
    const double End_Lat_rad = Lat_rad + Lat_Change_rad;
    if (!(std::abs(End_Lat_rad) <= Half_Pi)) return; // not-a-number included

    double Lon_Change_rad = 0;
    if (std::abs(Lat_Change_rad) < 1e-5) {
        Lon_Change_rad = Distance_rad * std::sin(Course_rad) / std::cos(End_Lat_rad);
    } else if (Is_Mercator) {
        Lon_Change_rad =
            (Stretched_Latitude(End_Lat_rad) - Stretched_Latitude(Lat_rad)) * std::tan(Course_rad);
    } else {
        Lon_Change_rad = Distance_rad * std::sin(Course_rad) / std::cos((Lat_rad + End_Lat_rad) / 2);
    }
    // The chart has no northing for the south pole; all longitudes meet there, so a ship leaves it on its
    // own.
    const double End_Lon_rad = Wrapped_Once(Lon_rad + Finite_Or_Zero(Lon_Change_rad));
    if (!std::isfinite(End_Lon_rad)) return;
    New_Lat_rad = End_Lat_rad;
    New_Lon_rad = End_Lon_rad;
}

void Rhumb_Inverse(double Lat_1_rad, double Lon_1_rad, double Lat_2_rad, double Lon_2_rad,
                   double& Distance_NM, double& Course_rad, bool Is_Mercator) {
    const double Lat_Change_rad = Lat_2_rad - Lat_1_rad;
    double Lon_Change_rad = Lon_2_rad - Lon_1_rad;
    if (std::abs(Lat_Change_rad) < 1e-6 && std::abs(Lon_Change_rad) < 1e-6) {
        Distance_NM = 0;
        Course_rad = 0;
        return;
    }
    if (std::abs(Lon_Change_rad) > Pi) Lon_Change_rad += Lon_Change_rad > 0 ? -Two_Pi : Two_Pi;
    if (Is_Mercator && (std::abs(Lat_1_rad) == Half_Pi || std::abs(Lat_2_rad) == Half_Pi)) return;

    const Rhumb_Leg Leg = Is_Mercator
                              ? Mercator_Leg(Lat_1_rad, Lat_2_rad, Lat_Change_rad, Lon_Change_rad)
                              : Mid_Latitude_Leg(Lat_1_rad, Lat_2_rad, Lat_Change_rad, Lon_Change_rad);
    const double Leg_NM = std::abs(Leg.Distance_rad * 180 / Pi * 60);
    // A latitude beyond a pole has no northing either.
    if (!std::isfinite(Leg_NM) || !std::isfinite(Leg.Course_rad)) return;
    Distance_NM = Leg_NM;
    Course_rad = Leg.Course_rad;
}

} // namespace brinewright
