#pragma once

#include "platform/message_box.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace brinewright {

// Latitudes and longitudes in text boxes, in the form that the user chose: LatLon_Format 0 is degrees and
// minutes with 4 decimals, any other value degrees, minutes and seconds with 3. Kind is "LAT" or "LON".

std::string Position_Text(std::int16_t LatLon_Format, double Degrees, std::string_view Kind);

// What the user typed, in degrees, south and west negative. Never fails: what cannot be used is told in a box
// and replaced by a default.
double Parse_Position(std::int16_t LatLon_Format, std::string Text, std::string_view Kind,
                      Message_Boxes& Boxes);

} // namespace brinewright
