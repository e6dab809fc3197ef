#pragma once

#include "sentences/number_pattern.hpp"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace brinewright {

// The frame of every sentence: Begin_Sentence, one Add_... for each field in order, Finish_Sentence. A field
// brings the comma in front of it, so an empty one keeps its comma and a sentence without fields has none.
// Line ends and faults are put behind the finished sentence by the transmit path.

// "$", the talker and the type.
std::string Begin_Sentence(std::string_view Talker, std::string_view Type);

// "$" and the address of a maker's own sentence, "PRDID", which has no talker.
std::string Begin_Proprietary(std::string_view Address);

// A talker is a fixed field of two characters: a longer one is cut, a shorter one filled with blanks.
void Append_Talker(std::string& Out, std::string_view Talker);

// A comma, then the text as it stands; no check is made for characters that frame a sentence.
inline void Add_Text(std::string& Out, std::string_view Text) { (Out += ',') += Text; }
inline void Add_Letter(std::string& Out, char Letter) { (Out += ',') += Letter; }

// A comma, then Value in Pattern, or nothing behind it for the empty marker.
template <Printable_Number Number>
void Add_Number(std::string& Out, Number Value, const Number_Pattern& Pattern) {
    Out += ',';
    Append_Field(Out, Value, Pattern);
}

// What Add_Number writes with the pattern "0", for several whole numbers in a row. A series of satellites is
// twice as fast by it.
template <std::size_t Count>
void Add_Whole_Numbers(std::string& Out, const std::int16_t (&Values)[Count]) {
    constexpr std::size_t Longest = 7; // ",-32768"
    std::array<char, Count * Longest> Text;
    char* End = Text.data();
    for (const std::int16_t Value : Values) {
        *End++ = ',';
        if (Value != Empty_Marker) End = std::to_chars(End, Text.data() + Text.size(), Value).ptr;
    }
    Out.append(Text.data(), End);
}

// "*" and the checksum, unless No_Checksum: then the sentence ends with its last field. Returns the sentence.
std::string Finish_Sentence(std::string Out, bool No_Checksum);

} // namespace brinewright
