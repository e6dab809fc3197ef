#pragma once

#include "ui/instruments/instrument.hpp"

#include <optional>

namespace brinewright {

// Degrees from true north, 0 to 360.
struct Compass_Reading {
    float Heading_deg = 0;
    std::optional<float> Course_deg; // none while the ship stands still
    std::optional<float> Bug_deg;    // what is steered for
    bool Heading_Up = true;          // the rose turns and the heading stands at the top; otherwise north does
    bool operator==(const Compass_Reading&) const = default;
};

// A rose with a scale every 5 degrees and figures every 30. Outside it the heading is a filled triangle and
// the bug a bracket on the rim; inside the figures the course is an open triangle. Both are written in the
// middle.
void Paint_Compass_Rose(QPainter& Painter, const QRectF& Place, const Compass_Reading& Shown,
                        Palette_Kind Kind);

} // namespace brinewright
