#pragma once

#include "shell/kit/instrument_readings.hpp"
#include "ui/instruments/instrument.hpp"

namespace brinewright {

// The step between the figures of a scale that ends at Full_Scale: a third of it, a half, or all of it,
// the first of these that is a whole multiple of 5.
int Figure_Step(int Full_Scale);

// A bar that grows from the middle: red to port, green to starboard. Its scale is in degrees per minute; a
// rate beyond it fills the side.
void Paint_Rate_Of_Turn(QPainter& Painter, const QRectF& Place, const Turn_Reading& Shown, Palette_Kind Kind);

} // namespace brinewright
