#pragma once

#include "ownship/geodesy/geodetic_constants.hpp"

#include <algorithm>
#include <iterator>

namespace brinewright {

inline constexpr double Knots_Per_mps = 1.9438444924406046;

// A unit in which a wind gauge gives its speed.
struct Wind_Unit {
    const char* Name;
    char Letter; // as in sentences
    double Knots_Per_Unit;
    double Units_Per_Knot;
    double mps_Factor; // a speed times the factor and by the divisor is in metres per second
    double mps_Divisor;
};

inline constexpr Wind_Unit Wind_Units[] = {
    {"knots", 'N', 1, 1, mps_Per_Knot, 1},
    {"m/s", 'M', Knots_Per_mps, mps_Per_Knot, 1, 1},
    {"km/h", 'K', 0.5399568034557235, 1.852, 1, 3.6},
};

// Knots for a letter that is none of theirs.
inline const Wind_Unit& Unit_Of_Letter(char Letter) {
    const auto* const Found = std::find_if(std::begin(Wind_Units), std::end(Wind_Units),
                                           [&](const Wind_Unit& Unit) { return Unit.Letter == Letter; });
    return Found == std::end(Wind_Units) ? Wind_Units[0] : *Found;
}

} // namespace brinewright
