#include "ownship/geodesy/ellipsoid.hpp"

#include "ownship/geodesy/angles.hpp"
#include "ownship/geodesy/finite.hpp"
#include "ownship/geodesy/geodetic_constants.hpp"

#include <algorithm>
#include <cmath>

namespace brinewright {
namespace {

double Square(double X) { return X * X; }

double Root(double Radicand) { return std::sqrt(std::max(Radicand, 0.0)); }

// The arc between the two points on the auxiliary sphere, and what both series take from it.
struct Auxiliary_Arc {
    double Sin_Lat_1, Cos_Lat_1, Sin_Lat_2, Cos_Lat_2; // reduced latitudes
    double Lon_Difference_rad;                         // 0 to Pi
    double Sin_Product, Cos_Product;
    double Sin_Arc, Cos_Arc;
    double Sin_Equatorial = 0; // cosine of the latitude at which the great circle turns
    double M = 0;
};

Auxiliary_Arc Make_Arc(double Lat_1_rad, double Lat_2_rad, double Lon_Change_rad, double Flattening) {
    Auxiliary_Arc A{};
    const double Reduced_1_rad = std::atan((1 - Flattening) * std::tan(Lat_1_rad));
    const double Reduced_2_rad = std::atan((1 - Flattening) * std::tan(Lat_2_rad));
    A.Sin_Lat_1 = std::sin(Reduced_1_rad);
    A.Cos_Lat_1 = std::cos(Reduced_1_rad);
    A.Sin_Lat_2 = std::sin(Reduced_2_rad);
    A.Cos_Lat_2 = std::cos(Reduced_2_rad);
    A.Lon_Difference_rad = std::abs(Lon_Change_rad);
    if (A.Lon_Difference_rad > Pi) A.Lon_Difference_rad = Two_Pi - A.Lon_Difference_rad;
    const double Sin_Lon = std::sin(A.Lon_Difference_rad);
    const double Cos_Lon = std::cos(A.Lon_Difference_rad);
    A.Sin_Product = A.Sin_Lat_1 * A.Sin_Lat_2;
    A.Cos_Product = A.Cos_Lat_1 * A.Cos_Lat_2;
    A.Cos_Arc = A.Sin_Product + A.Cos_Product * Cos_Lon;
    A.Sin_Arc = Root(Square(Sin_Lon * A.Cos_Lat_2) +
                     Square(A.Sin_Lat_2 * A.Cos_Lat_1 - A.Sin_Lat_1 * A.Cos_Lat_2 * Cos_Lon));
    if (A.Sin_Arc == 0) return A; // the same point after a full circle: the callers leave it alone
    A.Sin_Equatorial = A.Cos_Product * Sin_Lon / A.Sin_Arc;
    A.M = 1 - Square(A.Sin_Equatorial);
    return A;
}

double Series_Distance_m(const Auxiliary_Arc& Arc, double Semi_Minor_m, double Flattening) {
    // Half f squared, f plus f squared; the letters are those of the published series.
    const double H = Square(Flattening) / 2;
    const double G = Flattening + Square(Flattening);
    const double S = Arc.Sin_Arc, C = Arc.Cos_Arc, A = Arc.Sin_Product, M = Arc.M;
    // An arc over a quarter circle comes out as its supplement here: see the header.
    const double P = std::atan2(S, Root(1 - Square(S)));
    const double Cot = 1 / std::tan(P);
    return Semi_Minor_m * ((1 + G) * P + A * (G * S - H * P * P / S) +
                           M * (-G / 2 * P - G / 2 * S * C + H * P * P * Cot) - H * A * A * S * C +
                           M * M * (H / 8 * S * C + H / 8 * P - H * P * P * Cot - H / 4 * S * C * C * C) +
                           A * M * (H * S * C * C + H * P * P / S));
}

// The difference of longitudes on the auxiliary sphere. It needs the whole arc, up to half a circle: with the
// supplement it would turn the azimuth of a long geodesic by up to half a degree.
double Series_Longitude_rad(const Auxiliary_Arc& Arc, double Flattening) {
    const double F2 = Square(Flattening);
    const double G = Flattening + F2;
    const double S = Arc.Sin_Arc, C = Arc.Cos_Arc, A = Arc.Sin_Product, M = Arc.M;
    const double P = std::atan2(S, C);
    return (G * P + A * (-F2 / 2 * S - F2 * P * P / S) +
            M * (-5 * F2 / 4 * P + F2 / 4 * S * C + F2 * P * P * C / S)) *
               Arc.Sin_Equatorial +
           Arc.Lon_Difference_rad;
}

// Eastward is positive, the shorter way round.
double Lon_Change_East_rad(double Lon_1_rad, double Lon_2_rad) {
    const double Change_rad = Lon_2_rad - Lon_1_rad;
    if (Change_rad > Pi) return Change_rad - Two_Pi;
    return Change_rad < -Pi ? Change_rad + Two_Pi : Change_rad;
}

// The true azimuth, 0 to under Two_Pi. The quadrant comes from the signs of both components, which needs no
// division and is right in every case.
double True_Azimuth_rad(const Auxiliary_Arc& Arc, double Lat_1_rad, double Lon_1_rad, double Lat_2_rad,
                        double Lon_2_rad, double Flattening) {
    const bool Is_West = Lon_Change_East_rad(Lon_1_rad, Lon_2_rad) < 0;
    if (Lat_1_rad == 0 && Lat_2_rad == 0) return Is_West ? Three_Half_Pi : Half_Pi;
    if (Lon_1_rad == Lon_2_rad) return Lat_2_rad < Lat_1_rad ? Pi : 0;
    const double Lambda_rad = Finite_Or_Zero(Series_Longitude_rad(Arc, Flattening));
    const double East = std::sin(Lambda_rad) * Arc.Cos_Lat_2;
    const double North = Arc.Sin_Lat_2 * Arc.Cos_Lat_1 - std::cos(Lambda_rad) * Arc.Sin_Lat_1 * Arc.Cos_Lat_2;
    return Add_Radians(std::atan2(Is_West ? -East : East, North), 0);
}

} // namespace

void Ellipsoid_Direct(double Lat_rad, double Lon_rad, double Distance_m, double Azimuth_rad,
                      double& New_Lat_rad, double& New_Lon_rad, double Semi_Major_m,
                      double Eccentricity_Squared) {
    New_Lat_rad = Lat_rad;
    New_Lon_rad = Lon_rad;
    if (Distance_m == 0) return;

    const double Sin_Lat = std::sin(Lat_rad), Cos_Lat = std::cos(Lat_rad);
    const double Sin_Azimuth = std::sin(Azimuth_rad), Cos_Azimuth = std::cos(Azimuth_rad);
    const double Second_Squared = Eccentricity_Squared / (1 - Eccentricity_Squared);
    const double R1 = -Second_Squared * Square(Cos_Lat) * Square(Cos_Azimuth);
    const double R2 = 3 * Second_Squared * (1 - R1) * Cos_Lat * Sin_Lat * Cos_Azimuth;
    const double Normal_m = Semi_Major_m / Root(1 - Eccentricity_Squared * Square(Sin_Lat));
    const double Sigma = Distance_m / Normal_m;
    // The published last term has R2 (1 + 3 R1); R2 (1 + R2) is required as it stands.
    const double Theta =
        Sigma - R1 * (1 + R1) * Square(Sigma) * Sigma / 6 - R2 * (1 + R2) * Square(Square(Sigma)) / 24;
    const double R3 = 1 - R1 * Square(Theta) / 2 - R2 * Square(Theta) * Theta / 6;
    const double Radius_m = Normal_m / R3;
    const double Sin_End = Sin_Lat * std::cos(Theta) + Cos_Lat * std::sin(Theta) * Cos_Azimuth;
    if (std::abs(Sin_End) >= 1) { // above 1 by rounding only
        New_Lat_rad = std::copysign(Half_Pi, Sin_End);
        New_Lon_rad = 0;
        return;
    }
    const double Secant = 1 / std::sqrt(1 - Square(Sin_End));
    double Sin_Change = std::sin(Theta) * Sin_Azimuth * Secant;
    const double Scale = Normal_m * Eccentricity_Squared / Radius_m;
    // (1 - Scale * sin(lat) / p) * t with t = Secant * p; on the equator, p = 0, only the product has a
    // value.
    const double Tangent =
        Sin_End == 0 ? -Scale * Sin_Lat * Secant : (1 - Scale * Sin_Lat / Sin_End) * (Secant * Sin_End);
    const double End_Lat_rad = std::atan(Tangent * (1 + Second_Squared));
    double End_Lon_rad = Lon_rad + Arc_Sin(Sin_Change);
    if (std::abs(End_Lon_rad) > Pi) End_Lon_rad += End_Lon_rad <= 0 ? Two_Pi : -Two_Pi;
    if (!std::isfinite(End_Lat_rad) || !std::isfinite(End_Lon_rad)) return;
    New_Lat_rad = End_Lat_rad;
    New_Lon_rad = End_Lon_rad;
}

void Ellipsoid_Inverse(double Lat_1_rad, double Lon_1_rad, double Lat_2_rad, double Lon_2_rad,
                       std::int16_t Mode, double& Distance_m, double& Azimuth_rad, double& Back_Azimuth_rad,
                       double Semi_Minor_m, double Flattening) {
    const double Lat_Change_rad = Lat_2_rad - Lat_1_rad;
    const double Lon_Change_rad = Lon_2_rad - Lon_1_rad;
    const bool Is_Finite = std::isfinite(Lat_Change_rad) && std::isfinite(Lon_Change_rad);
    const bool Is_Same = std::abs(Lat_Change_rad) < 1e-10 && std::abs(Lon_Change_rad) < 1e-10;
    const Auxiliary_Arc Arc =
        Is_Finite ? Make_Arc(Lat_1_rad, Lat_2_rad, Lon_Change_rad, Flattening) : Auxiliary_Arc{};
    if (!Is_Finite || Is_Same || Arc.Sin_Arc == 0) {
        Distance_m = Azimuth_rad = Back_Azimuth_rad = 0;
        return;
    }
    if (Mode != Azimuths_Only) Distance_m = Finite_Or_Zero(Series_Distance_m(Arc, Semi_Minor_m, Flattening));
    if (Mode != Distance_Only) {
        Azimuth_rad = True_Azimuth_rad(Arc, Lat_1_rad, Lon_1_rad, Lat_2_rad, Lon_2_rad, Flattening);
        Back_Azimuth_rad = Reverse_Radians(Azimuth_rad);
    }
}

} // namespace brinewright
