#include "sentences/number_pattern.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>

namespace brinewright {
namespace {

// 0.d1d2d3... times ten to the power of Point. The last digit is not 0; zero has no digits and Point 0.
struct Decimal_Number {
    std::array<char, 20> Digits; // Count of them are set; a double has at most 17
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

void Read_Digits(std::uint64_t Magnitude, Decimal_Number& Number) {
    const char* const End =
        std::to_chars(Number.Digits.data(), Number.Digits.data() + Number.Digits.size(), Magnitude).ptr;
    Number.Count = Number.Point = static_cast<int>(End - Number.Digits.data());
    Strip_Zeros(Number);
}

// The digits of the shortest decimal text that stands for Value.
template <class Real>
void Read_Shortest_Digits(Real Value, Decimal_Number& Number) {
    std::array<char, 32> Text; // d.dddde-dd
    const char* const End =
        std::to_chars(Text.data(), Text.data() + Text.size(), Value, std::chars_format::scientific).ptr;
    const char* Place = Text.data();
    for (; *Place != 'e'; ++Place)
        if (*Place != '.') Number.At(Number.Count++) = *Place;
    ++Place;
    if (*Place == '+') ++Place; // which from_chars does not take
    int Exponent = 0;
    std::from_chars(Place, End, Exponent);
    Number.Point = Exponent + 1;
    Strip_Zeros(Number);
}

// A short cut for the usual fields, which makes a sentence twice as fast. The shortest text is nearer to
// Value than one step of its type. So unless Value is that near to a half of the last place, Value and its
// text round alike, and one multiplication is enough. Returns false, with Number untouched, when the text has
// to decide.
template <class Real>
bool Read_Rounded_Digits(Real Value, int Decimals, Decimal_Number& Number) {
    constexpr std::array<double, 7> Powers = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};
    constexpr double Largest = 1e15; // below it a double has digits left behind the last place
    // Four steps of the type leave room for the rounding of the product itself.
    constexpr double Nearness = 4 * static_cast<double>(std::numeric_limits<Real>::epsilon());
    if (Decimals >= static_cast<int>(Powers.size())) return false;
    const double Scaled = static_cast<double>(Value) * Powers[static_cast<std::size_t>(Decimals)];
    if (Scaled >= Largest) return false;
    const auto Whole = static_cast<std::int64_t>(Scaled);
    const double Above_Half = Scaled - static_cast<double>(Whole) - 0.5;
    if (std::abs(Above_Half) <= Scaled * Nearness) return false;
    Read_Digits(static_cast<std::uint64_t>(Whole) + (Above_Half > 0 ? 1 : 0), Number);
    if (Number.Count > 0) Number.Point -= Decimals;
    return true;
}

template <class Real>
void Split_Real(Real Value, const Number_Pattern& Pattern, Decimal_Number& Number) {
    // "inf" or "nan" on the wire would break a listener's number parser, and an empty field is the work of
    // the marker alone. So a value that is not finite, which only a fault upstream can make, counts as 0.
    if (!std::isfinite(Value) || Value == 0) return;
    Number.Is_Negative = Value < 0;
    const Real Magnitude = std::abs(Value);
    if (Pattern.Is_General || !Read_Rounded_Digits(Magnitude, Pattern.Decimals, Number))
        Read_Shortest_Digits(Magnitude, Number);
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

// The digits at places First to Last - 1 of 0.d1d2..., and 0 where there is none.
char* Copy_Digits(char* Out, const Decimal_Number& Number, int First, int Last) {
    for (int Place = First; Place < Last; ++Place)
        *Out++ = Place >= 0 && Place < Number.Count ? Number.At(Place) : '0';
    return Out;
}

char* Write_Number(char* Out, const Decimal_Number& Number, int Integers, int Decimals) {
    if (Number.Is_Negative) *Out++ = '-';
    Out = Copy_Digits(Out, Number, Number.Point - Integers, Number.Point);
    if (Decimals == 0) return Out;
    *Out++ = '.';
    return Copy_Digits(Out, Number, Number.Point, Number.Point + Decimals);
}

void Append_Text(std::string& Out, const Number_Pattern& Pattern) {
    for (const char Letter : Pattern.Text) Out += Letter == ',' ? '.' : Letter;
}

// Number is rounded in place. Significant limits the digits of the general pattern.
void Append_Number(std::string& Out, Decimal_Number& Number, const Number_Pattern& Pattern, int Significant) {
    Round_To_Digits(Number, Pattern.Is_General ? Significant : Number.Point + Pattern.Decimals);
    const int Integers = std::max(Pattern.Is_General ? 1 : Pattern.Integer_Digits, Number.Point);
    const int Decimals = std::max(Pattern.Fixed_Decimals, Number.Count - Number.Point);
    const auto Needed = static_cast<std::size_t>(std::max(Integers, 0) + Decimals + 2); // with sign and point

    std::array<char, 48> Usual; // filled in one go it is faster than growing Out twice
    if (Needed <= Usual.size()) {
        char* const End = Write_Number(Usual.data(), Number, Integers, Decimals);
        Out.append(Usual.data(), static_cast<std::size_t>(End - Usual.data()));
    } else {
        const std::size_t Old_Size = Out.size();
        Out.resize(Old_Size + Needed);
        const char* const End = Write_Number(Out.data() + Old_Size, Number, Integers, Decimals);
        Out.resize(static_cast<std::size_t>(End - Out.data()));
    }
    Append_Text(Out, Pattern);
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

// Nothing when Text starts with no number.
std::optional<double> Leading_Number(std::string_view Text, bool Is_Comma_Point) {
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
        if (!Is_Too_Large({Start, static_cast<std::size_t>(Stop - Start)})) return 0.0;
        return Is_Negative ? std::numeric_limits<double>::lowest() : std::numeric_limits<double>::max();
    }
    if (Error != std::errc()) return std::nullopt;
    return Value;
}

} // namespace

void Append_Dot(std::string& Out, float Value, const Number_Pattern& Pattern) {
    Decimal_Number Number;
    Split_Real(Value, Pattern, Number);
    Append_Number(Out, Number, Pattern, Float_Digits);
}

void Append_Dot(std::string& Out, double Value, const Number_Pattern& Pattern) {
    Decimal_Number Number;
    Split_Real(Value, Pattern, Number);
    Append_Number(Out, Number, Pattern, All_Digits);
}

void Append_Dot(std::string& Out, std::int64_t Value, const Number_Pattern& Pattern) {
    std::array<char, 20> Digits;
    // Unsigned, because the most negative value has no positive counterpart.
    const auto Bits = static_cast<std::uint64_t>(Value);
    const char* const End =
        std::to_chars(Digits.data(), Digits.data() + Digits.size(), Value < 0 ? 0 - Bits : Bits).ptr;
    const int Least = Pattern.Is_General ? 1 : Pattern.Integer_Digits;
    const int Count = Value == 0 ? 0 : static_cast<int>(End - Digits.data());
    if (Value < 0) Out += '-';
    if (Count < Least) Out.append(static_cast<std::size_t>(Least - Count), '0');
    Out.append(Digits.data(), static_cast<std::size_t>(Count));
    if (Pattern.Fixed_Decimals > 0) {
        Out += '.';
        Out.append(static_cast<std::size_t>(Pattern.Fixed_Decimals), '0');
    }
    Append_Text(Out, Pattern);
}

double Val_Dot(std::string_view Text) { return Leading_Number(Text, true).value_or(0); }

double Val(std::string_view Text) { return Leading_Number(Text, false).value_or(0); }

bool Starts_With_Number(std::string_view Text) { return Leading_Number(Text, true).has_value(); }

} // namespace brinewright
