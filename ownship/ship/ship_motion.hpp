#pragma once

namespace brinewright {

struct Simulator_State;

// The ship as it moves in one second: a kinematic model without inertia. Speed is what is set, the heading
// turns at the rate that is set, and the ship follows the rhumb line of its course.

// A setup file or the start position may have put the ship anywhere: latitude within the poles, longitude
// within -180 to 180, heading and course 0 to under 360.
void Normalise_Navdata(Simulator_State& S);

// Turns and moves the ship by one second at SOG_kn knots (negative: astern) and ROT degrees per minute (to
// starboard positive): Nav_HDG, Nav_COG, Nav_Lat, Nav_Lon. Going astern it swings the other way and its
// course is the reverse of its heading. A step that would pass a pole leaves it where it is. The longitude
// ends in -180 to 180.
void Move_Ship(Simulator_State& S, float SOG_kn, float ROT);

// Gives the sensors what the ship does now: position, speed and course to the GNSS, heading and rate of turn
// to the gyros, the speed that is set, without noise, to the logs. Position 2 stands off by Lat_Offset and
// Lon_Offset metres.
void Feed_Sensors(Simulator_State& S, float SOG_kn, float ROT);

} // namespace brinewright
