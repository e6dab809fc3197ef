#pragma once

#include "platform/controls.hpp"

#include <initializer_list>

namespace brinewright {

struct Simulator;

// What the windows of gyro, log, echo sounder and wind gauge have in common beyond their sentences.

inline constexpr int Bar_Steps = 10; // of a degree, knot or metre on every bar of these windows

// The next draw, -1 to under 1: times the largest noise it is the noise to either side.
double Signed_Draw(Simulator& Sim);

// A bar of a direction in tenths of a degree runs from -1 to 3600; both ends are the wrap and no places to
// stand on. Called first in the bar's handler: at an end it sets the bar to the other side, which runs the
// handler anew, and returns true, whereupon the handler is to return.
bool Wrap_Direction_Bar(Scroll_Bar& Bar);

// Where such a bar shows an angle of 0 to 360 degrees: nearest tenth, 0 to 3599.
int Direction_Place(const Scroll_Bar& Bar, double Angle_deg);

// A bar's value in its unit.
float Bar_Value(const Scroll_Bar& Bar);

// A plus B in 0 to under 360 degrees, also where the step to 32 bits would round up to a full circle.
float Sum_Direction(double A_deg, double B_deg);

// Hides every control of a list: what stands in a hidden frame is hidden one by one too, so that nobody can
// work it from outside either.
void Hide(std::initializer_list<Visible_Control*> Parts);

} // namespace brinewright
