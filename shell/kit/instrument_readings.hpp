#pragma once

#include <optional>
#include <string>
#include <vector>

namespace brinewright {

// What the painted instruments show, without how they are painted.

struct Attitude_Reading {
    float Roll_deg = 0;  // starboard side down
    float Pitch_deg = 0; // bow up
    bool operator==(const Attitude_Reading&) const = default;
};

// Degrees from true north, 0 to 360.
struct Compass_Reading {
    float Heading_deg = 0;
    std::optional<float> Course_deg; // none while the ship stands still
    std::optional<float> Bug_deg;    // what is steered for
    bool Heading_Up = true;          // the rose turns and the heading stands at the top; otherwise north does
    bool operator==(const Compass_Reading&) const = default;
};

struct Turn_Reading {
    float Rate_deg_min = 0;       // to starboard
    float Full_Scale_deg_min = 0; // at either end; above 0
    bool operator==(const Turn_Reading&) const = default;
};

// Directions are those that the wind comes from.
struct Wind_Reading {
    float Apparent_Angle_deg = 0; // clockwise from the bow
    float Apparent_Speed = 0;
    float True_Direction_deg = 0; // from north
    float True_Speed = 0;
    float Heading_deg = 0; // turns the true wind to the bow
    std::string Speed_Unit;
    bool operator==(const Wind_Reading&) const = default;
};

struct Sky_Mark {
    std::string Name;
    float Elevation_deg = 0; // 0 at the horizon to 90 overhead
    float Azimuth_deg = 0;   // clockwise from north
    float SNR_dB = 0;
    bool In_Use = false; // filled; otherwise an open ring
    bool operator==(const Sky_Mark&) const = default;
};
using Sky_Reading = std::vector<Sky_Mark>;

} // namespace brinewright
