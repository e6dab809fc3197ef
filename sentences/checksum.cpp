#include "sentences/checksum.hpp"

#include "sentences/number_pattern.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

namespace brinewright {

std::string Hex2(std::int16_t Value) {
    if (Value < 10) return Format_Dot(Value, "00");
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::array<char, 4> Text{'0', '0', '0', '0'};
    std::size_t First = Text.size();
    for (int Rest = Value; Rest != 0; Rest /= 16) Text[--First] = Digits[static_cast<std::size_t>(Rest % 16)];
    First = std::min(First, Text.size() - 2);
    return {Text.data() + First, Text.size() - First};
}

std::string Add_Checksum(std::string_view Sentence) {
    const std::string_view Framed = Sentence.substr(0, Sentence.find('*'));
    if (Framed.size() < 2) return "XX";
    unsigned char Sum = 0;
    for (const char Letter : Framed.substr(1)) Sum ^= static_cast<unsigned char>(Letter);
    return Hex2(Sum);
}

} // namespace brinewright
