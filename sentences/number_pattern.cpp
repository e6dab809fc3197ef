#include "sentences/number_pattern.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>

namespace brinewright {
namespace {

// 0.d1d2d3... times ten to the power of Point. The last digit is not 0; zero has no digits and Point 0.
struct Decimal_Number {
    std::array<char, 20> Digits; // Count of them are set: at most 17 of a double, 19 of an integer
    int Count = 0;
    int Point = 0;
    bool Is_Negative = false;

    char& At(int Index) { return Digits[static_cast<std::size_t>(Index)]; }
    char At(int Index) const { return Digits[static_cast<std::size_t>(Index)]; }
};

void Strip_Zeros(Decimal_Number& Number) {
    while (Number.Count > 0 && Number.At(Number.Count - 1) == '0') --Number.Count;
    if (Number.Count == 0) Number.Point = 0;
}

template <class Real>
Decimal_Number Split_Real(Real Value) {
    Decimal_Number Number;
    // "inf" or "nan" on the wire would break a listener's number parser, and an empty field is the work of
    // the marker alone. So a value that is not finite, which only a fault upstream can make, counts as 0.
    if (!std::isfinite(Value) || Value == 0) return Number;
    Number.Is_Negative = Value < 0;
    std::array<char, 32> Text; // d.dddde-dd, shortest
    const char* const End =
        std::to_chars(Text.data(), Text.data() + Text.size(), std::abs(Value), std::chars_format::scientific)
            .ptr;
    const char* Place = Text.data();
    for (; *Place != 'e'; ++Place)
        if (*Place != '.') Number.At(Number.Count++) = *Place;
    ++Place;
    if (*Place == '+') ++Place; // which from_chars does not take
    int Exponent = 0;
    std::from_chars(Place, End, Exponent);
    Number.Point = Exponent + 1;
    Strip_Zeros(Number);
    return Number;
}

Decimal_Number Split_Integer(std::int64_t Value) {
    Decimal_Number Number;
    Number.Is_Negative = Value < 0;
    // Unsigned, because the most negative value has no positive counterpart.
    const std::uint64_t Magnitude =
        Value < 0 ? 0 - static_cast<std::uint64_t>(Value) : static_cast<std::uint64_t>(Value);
    const char* const End =
        std::to_chars(Number.Digits.data(), Number.Digits.data() + Number.Digits.size(), Magnitude).ptr;
    Number.Count = Number.Point = static_cast<int>(End - Number.Digits.data());
    Strip_Zeros(Number);
    return Number;
}

// Keeps the first Kept digits, halves away from zero. Kept 0 may leave a 1 one place further to the left.
void Round_To_Digits(Decimal_Number& Number, int Kept) {
    if (Kept >= Number.Count) return;
    const bool Is_Up = Kept >= 0 && Number.At(Kept) >= '5';
    Number.Count = std::max(Kept, 0);
    if (!Is_Up) return Strip_Zeros(Number);
    while (Number.Count > 0 && Number.At(Number.Count - 1) == '9') --Number.Count;
    if (Number.Count > 0) {
        ++Number.At(Number.Count - 1);
    } else {
        Number.At(Number.Count++) = '1';
        ++Number.Point;
    }
}

// Copies the digits at places First to Last - 1, counted from the point of 0.d1d2..., and 0 where there is
// none.
char* Copy_Digits(char* Out, const Decimal_Number& Number, int First, int Last) {
    for (int Place = First; Place < Last; ++Place)
        *Out++ = Place >= 0 && Place < Number.Count ? Number.At(Place) : '0';
    return Out;
}

void Append_Number(std::string& Out, Decimal_Number Number, const Number_Pattern& Pattern, int Significant) {
    int Integers = Pattern.Integer_Digits;
    int Decimals = Pattern.Fixed_Decimals;
    if (Pattern.Is_General) {
        Round_To_Digits(Number, Significant);
        Integers = 1;
    } else {
        Round_To_Digits(Number, Number.Point + Pattern.Decimals);
    }
    Integers = std::max(Integers, Number.Point);
    Decimals = std::max(Decimals, Number.Count - Number.Point);

    const std::size_t Old_Size = Out.size();
    const int Added = (Number.Is_Negative ? 1 : 0) + Integers + (Decimals > 0 ? 1 + Decimals : 0);
    Out.resize(Old_Size + static_cast<std::size_t>(Added));
    char* Place = Out.data() + Old_Size;
    if (Number.Is_Negative) *Place++ = '-';
    Place = Copy_Digits(Place, Number, Number.Point - Integers, Number.Point);
    if (Decimals > 0) {
        *Place++ = '.';
        Copy_Digits(Place, Number, Number.Point, Number.Point + Decimals);
    }
    for (const char Letter : Pattern.Text) Out += Letter == ',' ? '.' : Letter;
}

constexpr int All_Digits = std::numeric_limits<int>::max();
constexpr int Float_Digits = 7; // more of a 32-bit float would show how it is stored, not what was meant

// A number that left the range of a double is too large when its first digit that is not 0 has a place above
// the point, its exponent counted in, and too small otherwise.
bool Is_Too_Large(std::string_view Number) {
    const std::string_view Mantissa = Number.substr(0, Number.find_first_of("eE"));
    std::string_view Exponent = Number.substr(std::min(Mantissa.size() + 1, Number.size()));
    if (Exponent.starts_with('+')) Exponent.remove_prefix(1);
    std::int64_t Power = 0;
    const auto Error = std::from_chars(Exponent.data(), Exponent.data() + Exponent.size(), Power).ec;
    if (Error == std::errc::result_out_of_range) return !Exponent.starts_with('-');
    const auto Point = static_cast<std::int64_t>(std::min(Mantissa.find('.'), Mantissa.size()));
    const auto First =
        static_cast<std::int64_t>(std::min(Mantissa.find_first_of("123456789"), Mantissa.size()));
    return Point - First > -Power;
}

double Read_Number(std::string_view Text, bool Is_Comma_Point) {
    Text.remove_prefix(std::min(Text.find_first_not_of(" \t"), Text.size()));
    // Only these can be part of a number; "inf" and "nan", which the library would read, are none.
    std::string Number(
        Text.substr(0, Text.find_first_not_of(Is_Comma_Point ? "+-.,0123456789eE" : "+-.0123456789eE")));
    std::replace(Number.begin(), Number.end(), ',', '.');
    const char* Start = Number.data();
    const char* const End = Start + Number.size();
    if (Number.starts_with('+') && !Number.starts_with("+-")) ++Start; // the library does not take it

    double Value = 0;
    const auto [Stop, Error] = std::from_chars(Start, End, Value);
    if (Error == std::errc::result_out_of_range) {
        const bool Is_Negative = *Start == '-';
        if (Is_Negative) ++Start;
        if (!Is_Too_Large({Start, static_cast<std::size_t>(Stop - Start)})) return 0;
        return Is_Negative ? std::numeric_limits<double>::lowest() : std::numeric_limits<double>::max();
    }
    return Error == std::errc() ? Value : 0;
}

} // namespace

void Append_Dot(std::string& Out, float Value, const Number_Pattern& Pattern) {
    Append_Number(Out, Split_Real(Value), Pattern, Float_Digits);
}

void Append_Dot(std::string& Out, double Value, const Number_Pattern& Pattern) {
    Append_Number(Out, Split_Real(Value), Pattern, All_Digits);
}

void Append_Dot(std::string& Out, std::int64_t Value, const Number_Pattern& Pattern) {
    Append_Number(Out, Split_Integer(Value), Pattern, All_Digits);
}

double Val_Dot(std::string_view Text) { return Read_Number(Text, true); }

double Val(std::string_view Text) { return Read_Number(Text, false); }

} // namespace brinewright
