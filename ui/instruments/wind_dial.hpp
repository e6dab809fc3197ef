#pragma once

#include "shell/kit/instrument_readings.hpp"
#include "ui/instruments/instrument.hpp"

namespace brinewright {

// The ship from above with its bow up, in a scale of angles off the bow. The apparent wind is a filled arrow,
// the true wind an open and wider one; no wind has no arrow. The figures stand below with the arrows as
// their legend.
void Paint_Wind_Dial(QPainter& Painter, const QRectF& Place, const Wind_Reading& Shown, Palette_Kind Kind);

} // namespace brinewright
