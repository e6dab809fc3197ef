#include "sentences/checksum.hpp"

#include "sentences/number_pattern.hpp"

namespace brinewright {

std::string Hex2(std::int16_t Value) {
    if (Value < 10) return Format_Dot(Value, "00");
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string Text;
    for (unsigned Rest = static_cast<unsigned>(Value); Rest != 0; Rest /= 16)
        Text.insert(Text.begin(), Digits[Rest % 16]);
    return Value < 16 ? '0' + Text : Text;
}

std::string Add_Checksum(std::string_view Sentence) {
    const std::string_view Framed = Sentence.substr(0, Sentence.find('*'));
    if (Framed.size() < 2) return "XX";
    unsigned char Sum = 0;
    for (const char Letter : Framed.substr(1)) Sum ^= static_cast<unsigned char>(Letter);
    return Hex2(Sum);
}

} // namespace brinewright
