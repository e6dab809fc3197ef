#pragma once

#include "shell/kit/instrument_readings.hpp"
#include "ui/instruments/instrument.hpp"

namespace brinewright {

// The sky as seen from below the antenna, north up: rings at 0, 30 and 60 degrees of elevation, satellites
// coloured by their SNR.
void Paint_Sky(QPainter& Painter, const QRectF& Place, const Sky_Reading& Marks, Palette_Kind Kind);

} // namespace brinewright
