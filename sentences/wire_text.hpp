#pragma once

#include <optional>
#include <string_view>

namespace brinewright {

// What may stand in front of a sentence on the wire, taken off it piece by piece. The pieces are views into
// the text.
//
//   UdPbC\0\s:Brinewright,n:12*hh\$GPGGA,...*hh\r\n
//
// Any bytes can be given: faults are sent on purpose.

// Takes "UdPbC" and the character behind it (NUL, or the blank that monitors show for it) off the head of
// Text. False when Text does not begin with it; Text stays as it is then.
bool Take_UdPbC_Header(std::string_view& Text);

// Takes a tag block off the head of Text and gives what stands between its backslashes. A block of no tags
// has no opening backslash: "*XX\". A block that is not closed reaches to the end. Nothing when Text does not
// begin with one.
std::optional<std::string_view> Take_Tag_Block(std::string_view& Text);

// Takes carriage returns and line feeds off the end.
std::string_view Without_Line_End(std::string_view Text);

// Without header, tag block and line end.
std::string_view Bare_Sentence(std::string_view Text);

struct Sentence_Address {
    std::string_view Talker; // empty for a proprietary sentence
    std::string_view Type;   // "GGA"; of a proprietary sentence all behind the "$" ("PFEC")
};

// The address field of a sentence that begins with "$" or "!"; nothing when it is not one of five characters,
// or of four or more with a P in front, all of them capitals and digits.
std::optional<Sentence_Address> Address_Of(std::string_view Sentence);

} // namespace brinewright
