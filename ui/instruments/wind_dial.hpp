#pragma once

#include "ui/instruments/instrument.hpp"

namespace brinewright {

// Directions are those that the wind comes from.
struct Wind_Reading {
    float Apparent_Angle_deg = 0; // clockwise from the bow
    float Apparent_Speed = 0;
    float True_Direction_deg = 0; // from north
    float True_Speed = 0;
    float Heading_deg = 0; // turns the true wind to the bow
    QString Speed_Unit;
    bool operator==(const Wind_Reading&) const = default;
};

// The ship from above with its bow up, in a scale of angles off the bow. The apparent wind is a filled arrow,
// the true wind an open and wider one; no wind has no arrow. The figures stand below with the arrows as
// their legend.
void Paint_Wind_Dial(QPainter& Painter, const QRectF& Place, const Wind_Reading& Shown, Palette_Kind Kind);

} // namespace brinewright
