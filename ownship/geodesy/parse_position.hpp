#pragma once

#include "platform/message_box.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace brinewright {

// Angles typed by the user. A text is degrees, minutes and (Parse_DMS) seconds, each ended by any character
// that is not part of the number, then the hemisphere letter; what is missing at the end counts as 0 or as
// north or east. A leading "-" means south or west. "O-slash" is east and "V" west. The result is in degrees,
// south and west negative, and Text is rewritten in its canonical form.
//
// These never fail and take any bytes: what cannot be used is told in a box and replaced by a default. Where
// a number does not fit (whole degrees are 16 bits wide), the box ends in "Overflow", Text stays as it was,
// and the result is what had been reached, in general 0.

// Kind is "LAT"; any other is read as a longitude, though only "LON" is checked for its range and hemisphere.
// 16-bit whole minutes, 32-bit float seconds. Text becomes 62<deg>35'30.0000"N.
double Parse_DMS(std::string& Text, std::string_view Kind, Message_Boxes& Boxes);

// Kind is "LAT", "LON" or "BRG" (a bearing, brought into 0 to 360 with a message); any other is an angle
// without range. None but the first two has a hemisphere. Minutes are doubles, with "." or ",". Text becomes
// what Format_DM prints with Decimals. As a last character, "'" is taken for a hemisphere letter and told as
// wrong, but not in front of a real one: the text of Format_DM reads back in silence.
double Parse_DM(std::string& Text, std::string_view Kind, std::int16_t Decimals, Message_Boxes& Boxes);

} // namespace brinewright
