#pragma once

#include <string_view>

namespace brinewright {

// Text without the Blanks at its start, at its end or at both.
inline std::string_view Left_Trimmed(std::string_view Text, std::string_view Blanks = " ") {
    const auto First = Text.find_first_not_of(Blanks);
    return First == std::string_view::npos ? std::string_view() : Text.substr(First);
}
inline std::string_view Right_Trimmed(std::string_view Text, std::string_view Blanks = " ") {
    return Text.substr(0, Text.find_last_not_of(Blanks) + 1);
}
inline std::string_view Trimmed(std::string_view Text, std::string_view Blanks = " ") {
    return Right_Trimmed(Left_Trimmed(Text, Blanks), Blanks);
}

} // namespace brinewright
