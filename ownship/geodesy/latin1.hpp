#pragma once

#include <string>
#include <string_view>

namespace brinewright {

// Characters of position texts. Texts inside the program are 8-bit Latin-1.
inline constexpr char Degree_Sign = '\xB0';      // on the screen
inline constexpr char File_Degree_Sign = '\xF8'; // code 248, the degree sign of texts in files
inline constexpr char Minute_Sign = '\'';        // code 39
inline constexpr char Second_Sign = '"';         // code 34
inline constexpr char O_Slash = '\xD8';          // "East" in Norwegian starts with it

// Codes E0 to FE are the small letters of C0 to DE, except that F7 is the division sign.
constexpr char Upper_Case(char Letter) {
    const auto Code = static_cast<unsigned char>(Letter);
    const bool Is_Small = (Code >= 'a' && Code <= 'z') || (Code >= 0xE0 && Code <= 0xFE && Code != 0xF7);
    return Is_Small ? static_cast<char>(Code - 0x20) : Letter;
}

inline std::string Upper_Case(std::string_view Text) {
    std::string Upper(Text);
    for (char& Letter : Upper) Letter = Upper_Case(Letter);
    return Upper;
}

} // namespace brinewright
