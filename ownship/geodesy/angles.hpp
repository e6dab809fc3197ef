#pragma once

#include <cstdint>

namespace brinewright {

// Angle arithmetic. The full circle in radians is Two_Pi of geodetic_constants.hpp. Nothing here fails: an
// argument that is not finite counts as 0.

// A + B in 0 to under a full circle.
double Add_Degrees(double A_deg, double B_deg);
double Add_Radians(double A_rad, double B_rad);
double Sum_Heading(double A_deg, double B_deg);

// A plus B as sentences hold it, in 0 to under 360 degrees also where the step to 32 bits would round up to a
// full circle; and the same direction so.
float Sum_Direction(double A_deg, double B_deg);
float Normalise_Direction(double Angle_deg);

// The opposite direction: half a circle more, less one full circle if that reaches one. The argument is not
// normalised otherwise.
double Reverse_Degrees(double A_deg);
double Reverse_Radians(double A_rad);

// A, plus one full circle when it is negative.
double Positive_Radians(double A_rad);

// The smaller angle between A and B, both 0 to under 360, and the side of A on which B lies: 2 clockwise,
// 1 counter-clockwise or equal. Opposite directions are 180 apart, on side 1 when B is the greater,
// otherwise 2.
void Angle_Between(double A_deg, double B_deg, float& Angle_deg, std::int16_t& Side);

// Radians. An X that rounding has put just outside -1 to 1 (by less than 0.0001) is set to the bound, in the
// caller's variable as well; one further outside gives 0.
double Arc_Sin(double& X);
double Arc_Cos(double& X);

// X - Y * (X divided by Y in whole numbers). Both are rounded to whole numbers for the division, ties to
// even, but not for the difference, so that Mod_Float(59.7, 60) is -0.3. A Y that rounds to 0 gives 0.
float Mod_Float(float X, float Y);

} // namespace brinewright
