#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace brinewright {

struct Field_Value {
    std::string Name;
    std::string Value; // as it stands on the wire
    std::string Unit;
    std::size_t First = 0; // where the value begins in the text; it is as long as Value
    // Alike wherever they stand.
    bool operator==(const Field_Value& Other) const {
        return Name == Other.Name && Value == Other.Value && Unit == Other.Unit;
    }
};

// The parts of a text as it left, each with what it means: the UdPbC header, the tags, talker, type, fields
// and checksum. Any bytes can be given: of merged or split messages each piece is taken apart in its turn,
// what is no sentence comes back as "Unreadable", a cut sentence has the fields that are there, and fields
// beyond those that are described are numbered. At most 500 parts; the rest of such a text is left out.
std::vector<Field_Value> Take_Apart(std::string_view Wire_Text);

} // namespace brinewright
