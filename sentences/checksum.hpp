#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace brinewright {

// Two upper-case hexadecimal digits for 0 to 255. A value under 10 is formatted "00" (so that a negative one
// keeps its sign and decimal digits: -5 gives -05), 10 to 15 get a leading 0, and from 16 on the plain
// hexadecimal text has as many digits as it needs.
std::string Hex2(std::int16_t Value);

// The two checksum characters of Sentence: the exclusive or of all characters behind the first one, up to the
// first "*" or the end. The first character is skipped without looking at what it is. "XX" when nothing is
// left to combine.
std::string Add_Checksum(std::string_view Sentence);

} // namespace brinewright
