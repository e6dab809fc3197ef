#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

namespace brinewright {

// How a number becomes text: a small picture string.
//
//   0     a digit that is always printed: leading zeros in front of the point, trailing zeros behind it
//   #     behind the point a digit that is printed unless it is a trailing zero; in front of it nothing while
//         the integer part is 0
//   text  behind the digits it is copied (" m", " deg", "'", ":"), with each "," as "."
//   ""    the shortest plain decimal text, at most 7 significant digits for a 32-bit float; 0 gives "0"
//
// The value is rounded to the last place of the picture, halves away from zero, starting from the shortest
// decimal text that stands for it: the 32-bit float 123.45 is 123.45 here, not 123.4499969. A negative value
// has "-" in front of the padded digits, also when it rounds to zero (-0.04 in "0.0" gives -0.0). More
// integer digits than the picture holds are all printed. The point is always ".", nothing depends on the
// locale, and the text of a number never has an exponent.
struct Number_Pattern {
    int Integer_Digits = 0; // printed at least in front of the point
    int Fixed_Decimals = 0; // printed at least behind it
    int Decimals = 0;       // printed at most behind it; the value is rounded to this place
    bool Is_General = false;
    std::string_view Text; // what stands behind the digits; a view into the picture
};

constexpr Number_Pattern Parse_Pattern(std::string_view Picture) {
    const auto Is_Digit = [&](std::size_t I) {
        return I < Picture.size() && (Picture[I] == '0' || Picture[I] == '#');
    };
    Number_Pattern Pattern;
    Pattern.Is_General = Picture.empty();
    std::size_t Place = 0;
    for (; Is_Digit(Place); ++Place)
        if (Picture[Place] == '0' || Pattern.Integer_Digits > 0) ++Pattern.Integer_Digits;
    if (Place < Picture.size() && Picture[Place] == '.') {
        for (++Place; Is_Digit(Place); ++Place) {
            ++Pattern.Decimals;
            if (Picture[Place] == '0') Pattern.Fixed_Decimals = Pattern.Decimals;
        }
    }
    Pattern.Text = Picture.substr(Place);
    return Pattern;
}

// "000.0#"_Pattern is taken apart by the compiler; the composers use this form.
consteval Number_Pattern operator""_Pattern(const char* Picture, std::size_t Size) {
    return Parse_Pattern({Picture, Size});
}

// Append Value to Out. A value that is not finite counts as 0.
void Append_Dot(std::string& Out, float Value, const Number_Pattern& Pattern);
void Append_Dot(std::string& Out, double Value, const Number_Pattern& Pattern);
void Append_Dot(std::string& Out, std::int64_t Value, const Number_Pattern& Pattern);

template <std::integral Number>
void Append_Dot(std::string& Out, Number Value, const Number_Pattern& Pattern) {
    Append_Dot(Out, static_cast<std::int64_t>(Value), Pattern);
}

template <class Number>
concept Printable_Number =
    std::integral<Number> || std::same_as<Number, float> || std::same_as<Number, double>;

// A numeric field with this value is empty on the wire.
inline constexpr int Empty_Marker = -9999;

// Appends nothing for the empty marker, otherwise what Append_Dot appends.
template <Printable_Number Number>
void Append_Field(std::string& Out, Number Value, const Number_Pattern& Pattern) {
    if (static_cast<double>(Value) != Empty_Marker) Append_Dot(Out, Value, Pattern);
}

template <Printable_Number Number>
std::string Format_Dot(Number Value, std::string_view Picture) {
    std::string Text;
    Append_Dot(Text, Value, Parse_Pattern(Picture));
    return Text;
}

template <Printable_Number Number>
std::string Format_Field(Number Value, std::string_view Picture) {
    std::string Text;
    Append_Field(Text, Value, Parse_Pattern(Picture));
    return Text;
}

// The number that Text starts with, for all that is typed or read from a list: "," counts as ".", leading
// blanks are skipped, reading stops at the first character that cannot continue a number, and no number gives
// 0. Signs and an exponent behind "e" or "E" belong to a number, the words for infinity and not-a-number do
// not. The result is always finite: what exceeds the range of a double becomes its largest value.
double Val_Dot(std::string_view Text);

// The same, but a "," ends the number.
double Val(std::string_view Text);

// Whether Val_Dot has a number to read, be it 0.
bool Starts_With_Number(std::string_view Text);

} // namespace brinewright
