#include "ownship/geodesy/format_position.hpp"

#include "ownship/geodesy/finite.hpp"
#include "ownship/geodesy/latin1.hpp"
#include "sentences/number_pattern.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace brinewright {
namespace {

constexpr std::array<std::string_view, 7> Patterns = {"00",      "00.0",     "00.00",    "00.000",
                                                      "00.0000", "00.00000", "00.000000"};

std::string_view Pattern_Of(std::int16_t Decimals, std::int16_t First, std::int16_t Last,
                            std::size_t Otherwise) {
    return Patterns[Decimals >= First && Decimals <= Last ? static_cast<std::size_t>(Decimals) : Otherwise];
}

// The minutes or seconds from which the pattern would print 60: 59 + 9/10 + 9/100 ... + 5 one place further,
// so 59.99995 with 4 decimals. It is written as a difference because the running sum is off by the last bit,
// enough to let 59.995 pass and print 60.00. With negative decimals, for which there is no 9, it is never
// reached.
double Carry_Limit(std::int16_t Decimals) {
    const double Half_Place = 5 * std::pow(10.0, -(Decimals + 1));
    return Decimals < 0 ? 59 + Half_Place : 60 - Half_Place;
}

struct Split_Angle {
    int Degrees = 0;
    double Fraction_min = 0; // what is above Degrees, in minutes
};

Split_Angle Split_Degrees(double Degrees) {
    constexpr double Most_Degrees = 32767; // whole degrees are 16 bits wide
    double Magnitude = std::abs(Finite_Or_Zero(Degrees));
    if (Magnitude >= Most_Degrees + 1) Magnitude = Most_Degrees;
    const int Whole = static_cast<int>(std::floor(Magnitude));
    return {Whole, (Magnitude - Whole) * 60};
}

template <class Real>
struct Sexagesimal {
    int Degrees = 0;
    int Minutes = 0;
    Real Seconds = 0;
};

template <class Real>
Sexagesimal<Real> Split_Sexagesimal(double Degrees, std::int16_t Decimals) {
    const Split_Angle Angle = Split_Degrees(Degrees);
    // In the width of the seconds: what is nearest to the limit in 32 bits prints as 60 and may lie below it.
    const auto Limit_s = static_cast<Real>(Carry_Limit(Decimals));
    Sexagesimal<Real> Parts{Angle.Degrees, static_cast<int>(std::floor(Angle.Fraction_min)), 0};
    Parts.Seconds = static_cast<Real>((Angle.Fraction_min - Parts.Minutes) * 60);
    if (Parts.Seconds >= Limit_s) {
        // Minutes that are 60 already mean the next degree, not one minute more.
        Parts.Minutes = std::min(Parts.Minutes + 1, 60);
        Parts.Seconds = 0;
    }
    if (Parts.Minutes == 60) {
        Parts.Minutes = 0;
        ++Parts.Degrees;
    }
    return Parts;
}

// "N" or "S", "E" or "W"; nothing for other kinds.
std::string_view Hemisphere_Of(std::string_view Kind, double Degrees) {
    if (Kind == "LAT") return Degrees < 0 ? "S" : "N";
    if (Kind == "LON") return Degrees < 0 ? "W" : "E";
    return {};
}

std::string With_Blank(std::string_view Hemisphere) {
    return Hemisphere.empty() ? std::string() : " " + std::string(Hemisphere);
}

std::string Degrees_Text(int Degrees, std::string_view Kind) {
    return Format_Dot(Degrees, Kind == "LAT" ? "00" : "000");
}

char Degree_Sign_Of(std::string_view Purpose) { return Purpose == "FILE" ? File_Degree_Sign : Degree_Sign; }

} // namespace

std::string Format_DM(double Degrees, std::string_view Kind, std::string_view Purpose,
                      std::int16_t Decimals) {
    const std::string Upper_Kind = Upper_Case(Kind);
    Split_Angle Angle = Split_Degrees(Degrees);
    if (Angle.Fraction_min >= Carry_Limit(Decimals)) Angle = {Angle.Degrees + 1, 0};
    return Degrees_Text(Angle.Degrees, Upper_Kind) + Degree_Sign_Of(Purpose) + ' ' +
           Format_Dot(Angle.Fraction_min, Pattern_Of(Decimals, 0, 6, 6)) + Minute_Sign +
           With_Blank(Hemisphere_Of(Upper_Kind, Degrees));
}

std::string Format_DMS(double Degrees, std::string_view Kind, std::string_view Purpose,
                       std::int16_t Decimals) {
    const std::string Upper_Kind = Upper_Case(Kind);
    const auto Parts = Split_Sexagesimal<float>(Degrees, Decimals);
    const std::string Seconds =
        Decimals >= 0 && Decimals <= 4 ? Format_Dot(Parts.Seconds, Pattern_Of(Decimals, 0, 4, 0)) : "";
    return Degrees_Text(Parts.Degrees, Upper_Kind) + Degree_Sign_Of(Purpose) +
           Format_Dot(Parts.Minutes, "00") + Minute_Sign + Seconds + Second_Sign +
           std::string(Hemisphere_Of(Upper_Kind == "LAT" ? "LAT" : "LON", Degrees));
}

std::string Format_DMS_Wide(double Degrees, std::string_view Kind, std::string_view Purpose,
                            std::int16_t Decimals) {
    const std::string Upper_Kind = Upper_Case(Kind);
    auto Parts = Split_Sexagesimal<double>(Degrees, Decimals);
    const std::string_view Hemisphere = Hemisphere_Of(Upper_Kind, Degrees);
    if (Hemisphere.empty() && Degrees < 0) Parts.Degrees = -Parts.Degrees;
    return Degrees_Text(Parts.Degrees, Upper_Kind) + Degree_Sign_Of(Purpose) + ' ' +
           Format_Dot(Parts.Minutes, "00") + Minute_Sign + ' ' +
           Format_Dot(Parts.Seconds, Pattern_Of(Decimals, 0, 3, 4)) + Second_Sign + With_Blank(Hemisphere);
}

std::string Format_HMS(double Time_s, std::int16_t Decimals) {
    const double Time_h = Finite_Or_Zero(Time_s) / 60 / 60;
    const double Hours = std::floor(Time_h);
    const double Time_min = (Time_h - Hours) * 60;
    const double Minutes = std::floor(Time_min);
    // No carry here: 3660 s, which comes out a hair under 61 minutes, reads 01:00:60, and that is required.
    const double Seconds = (Time_min - Minutes) * 60;
    return Format_Dot(Hours, "00:") + Format_Dot(Minutes, "00:") +
           Format_Dot(Seconds, Pattern_Of(Decimals, 1, 4, 0));
}

std::string Format_HM(double Time_s) {
    const double Time_h = Finite_Or_Zero(Time_s) / 60 / 60;
    const double Hours = std::floor(Time_h);
    const auto Minutes = static_cast<std::int16_t>(std::nearbyint((Time_h - Hours) * 60));
    return Format_Dot(Hours, "00:") + Format_Dot(Minutes, "00");
}

} // namespace brinewright
