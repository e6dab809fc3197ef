#pragma once

#include "ui/instruments/instrument.hpp"

namespace brinewright {

struct Attitude_Reading {
    float Roll_deg = 0;  // starboard side down
    float Pitch_deg = 0; // bow up
    bool operator==(const Attitude_Reading&) const = default;
};

// The horizon as seen over the bow, with a ladder of pitch every 5 degrees, figures every 10. Below it the
// scale of roll, to 30 degrees either side, with a pointer that hangs down as a plumb does: to starboard when
// the ship heels to starboard.
void Paint_Attitude(QPainter& Painter, const QRectF& Place, const Attitude_Reading& Shown, Palette_Kind Kind);

} // namespace brinewright
