#include "ownship/geodesy/angles.hpp"

#include "ownship/geodesy/finite.hpp"
#include "ownship/geodesy/geodetic_constants.hpp"

#include <cmath>

namespace brinewright {
namespace {

constexpr double Circle_deg = 360.0;
constexpr double Most_Circles_Counted = 1000;

double Normalised_Sum(double A, double B, double Circle) {
    double Sum = Finite_Or_Zero(Finite_Or_Zero(A) + Finite_Or_Zero(B));
    // Circles are counted one by one, which fixes the rounding of every ordinary sum. One beyond a thousand
    // circles is cut short first: a circle is less than the last digit of 1e20, and counting would never end.
    if (std::abs(Sum) > Most_Circles_Counted * Circle) Sum = std::fmod(Sum, Circle);
    while (Sum < 0) Sum += Circle;
    while (Sum >= Circle) Sum -= Circle;
    return Sum;
}

double Reversed(double A, double Half_Circle, double Circle) {
    const double Sum = Finite_Or_Zero(A) + Half_Circle;
    return Sum >= Circle ? Sum - Circle : Sum;
}

void Pull_To_Bounds(double& X) {
    constexpr double Rounding_Bound = 1.0001;
    if (X > 1 && X < Rounding_Bound) X = 1;
    if (X < -1 && X > -Rounding_Bound) X = -1;
}

} // namespace

double Add_Degrees(double A_deg, double B_deg) { return Normalised_Sum(A_deg, B_deg, Circle_deg); }

double Add_Radians(double A_rad, double B_rad) { return Normalised_Sum(A_rad, B_rad, Two_Pi); }

double Sum_Heading(double A_deg, double B_deg) { return Normalised_Sum(A_deg, B_deg, Circle_deg); }

float Sum_Direction(double A_deg, double B_deg) {
    const auto Sum = static_cast<float>(Add_Degrees(A_deg, B_deg));
    return Sum < 360 ? Sum : 0;
}

float Normalise_Direction(double Angle_deg) { return Sum_Direction(Angle_deg, 0); }

double Reverse_Degrees(double A_deg) { return Reversed(A_deg, Circle_deg / 2, Circle_deg); }

double Reverse_Radians(double A_rad) { return Reversed(A_rad, Pi, Two_Pi); }

double Positive_Radians(double A_rad) {
    const double Angle_rad = Finite_Or_Zero(A_rad);
    return Angle_rad < 0 ? Angle_rad + Two_Pi : Angle_rad;
}

void Angle_Between(double A_deg, double B_deg, float& Angle_deg, std::int16_t& Side) {
    const double A = Finite_Or_Zero(A_deg);
    const double B = Finite_Or_Zero(B_deg);
    const bool Is_Greater = B > A;
    const double Direct = Is_Greater ? B - A : A - B;
    const bool Is_Direct = Direct < 180;
    Angle_deg = static_cast<float>(Is_Direct ? Direct : (Is_Greater ? A + 360 - B : B + 360 - A));
    Side = Is_Greater == Is_Direct ? 2 : 1;
}

double Arc_Sin(double& X) {
    Pull_To_Bounds(X);
    if (X == 1) return 2 * std::atan(1.0);
    if (X == -1) return -2 * std::atan(1.0);
    if (!(X > -1 && X < 1)) return 0;
    return std::atan(X / std::sqrt(1 - X * X));
}

double Arc_Cos(double& X) {
    Pull_To_Bounds(X);
    if (X == 1) return 0;
    if (X == -1) return 4 * std::atan(1.0);
    if (!(X > -1 && X < 1)) return 0;
    return Half_Pi - std::atan(X / std::sqrt(1 - X * X));
}

float Mod_Float(float X, float Y) {
    if (!std::isfinite(X) || !std::isfinite(Y)) return 0;
    const double Whole_X = std::nearbyint(static_cast<double>(X));
    const double Whole_Y = std::nearbyint(static_cast<double>(Y));
    if (Whole_Y == 0) return 0;
    const double Rest = static_cast<double>(X) - static_cast<double>(Y) * std::trunc(Whole_X / Whole_Y);
    return static_cast<float>(Finite_Or_Zero(Rest));
}

} // namespace brinewright
