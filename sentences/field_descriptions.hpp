#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace brinewright {

struct Field_Description {
    const char* Name;
    const char* Unit = ""; // or the form that it is written in
};

// The fields of one type of sentence in the order of the wire. A group of fields that comes several times in
// a row stands once among them.
struct Sentence_Description {
    std::string_view Type; // "GGA"
    const char* Meaning;
    std::span<const Field_Description> Fields;
    std::size_t Group_Start = 0; // place of the group's first field
    std::size_t Group_Size = 0;  // 0 = there is no group
    std::size_t Group_Count = 1;

    std::size_t Field_Count() const { return Fields.size() + Group_Size * (Group_Count - 1); }
    // Field Which, from 0, is below Field_Count(). Its name has the number of the group's turn behind it.
    std::string Name(std::size_t Which) const;
    const char* Unit(std::size_t Which) const;
};

// Every type of sentence that this program composes has its row.
std::span<const Sentence_Description> Sentence_Descriptions();
const Sentence_Description* Find_Description(std::string_view Type); // null when there is none

} // namespace brinewright
