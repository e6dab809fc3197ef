#pragma once

#include "shell/kit/instrument_readings.hpp"
#include "ui/instruments/instrument.hpp"

namespace brinewright {

// The horizon as seen over the bow, with a ladder of pitch every 5 degrees, figures every 10. Below it the
// scale of roll, to 30 degrees either side, with a pointer that hangs down as a plumb does: to starboard when
// the ship heels to starboard.
void Paint_Attitude(QPainter& Painter, const QRectF& Place, const Attitude_Reading& Shown, Palette_Kind Kind);

} // namespace brinewright
