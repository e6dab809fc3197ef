#pragma once

namespace brinewright {

// What the relative wind is made of. Speeds in knots, angles in degrees. The directions that are compared for
// equality are 32 bits wide, as the state holds them.
struct Wind_And_Ship {
    double Wind_Speed_kn = 0;
    float Wind_Direction_deg = 0; // where the wind comes from
    float Heading_deg = 0;        // of the gyro
    double Log_Speed_kn = 0;      // negative astern
    double Lat_deg = 0;           // own position
    double Lon_deg = 0;
    double Course_deg = 0; // over ground
    double Ground_Speed_kn = 0;
};

struct Relative_Wind {
    double Speed_kn = 0;
    float Direction_deg = 0; // from the bow, clockwise, 0 to under 360, to where the wind comes from
};

// The wind as it is felt on board. The speed comes from heading and log, the direction from course and speed
// over ground: this mixture is required. The direction is right to 0.2 degrees, since its points are laid off
// on the sphere and its azimuth is taken on the ellipsoid. The speed is negative where a ship goes astern
// faster than a wind from exactly ahead blows. All results are finite, whatever the arguments.
Relative_Wind Work_Out_Relative_Wind(const Wind_And_Ship& Now);

} // namespace brinewright
