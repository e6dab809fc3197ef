#pragma once

#include "shell/kit/instrument_readings.hpp"
#include "ui/instruments/instrument.hpp"

namespace brinewright {

// A rose with a scale every 5 degrees and figures every 30. Outside it the heading is a filled triangle and
// the bug a bracket on the rim; inside the figures the course is an open triangle. Both are written in the
// middle.
void Paint_Compass_Rose(QPainter& Painter, const QRectF& Place, const Compass_Reading& Shown,
                        Palette_Kind Kind);

} // namespace brinewright
