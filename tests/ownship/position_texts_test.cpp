#include "ownship/geodesy/format_position.hpp"
#include "ownship/geodesy/parse_position.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

namespace brinewright {
namespace {

constexpr double Minute = 1.0 / 60;
constexpr double Second = 1.0 / 3600;

TEST(Format_DM, Screen_And_File_Texts) {
    EXPECT_EQ(Format_DM(62.591666666666667, "LAT", "FORM", 4), "62\xB0 35.5000' N");
    EXPECT_EQ(Format_DM(-6.5, "lon", "Form", 3), "006\xB0 30.000' W");
    EXPECT_EQ(Format_DM(-62.5, "LAT", "FILE", 4), "62\xF8 30.0000' S");
    EXPECT_EQ(Format_DM(-12.5, "BRG", "FORM", 1), "012\xB0 30.0'") << "neither hemisphere nor sign";
    EXPECT_EQ(Format_DM(1.5, "LAT", "FORM", 0), "01\xB0 30' N");
    EXPECT_EQ(Format_DM(1.5, "LAT", "FORM", 7), "01\xB0 30.000000' N");
    EXPECT_EQ(Format_DM(1.5, "LAT", "FORM", -1), "01\xB0 30.000000' N");
}

TEST(Format_DM, Minutes_Never_Print_As_60) {
    EXPECT_EQ(Format_DM(62 + 59.99996 * Minute, "LAT", "FORM", 4), "63\xB0 00.0000' N");
    EXPECT_EQ(Format_DM(62 + 59.99994 * Minute, "LAT", "FORM", 4), "62\xB0 59.9999' N");
    EXPECT_EQ(Format_DM(-(179 + 59.6 * Minute), "LON", "FORM", 0), "180\xB0 00' W");
    // Around each limit, in steps finer than it: what is not carried must not round up.
    for (std::int16_t Decimals = 0; Decimals <= 6; ++Decimals) {
        const double Place = std::pow(10.0, -Decimals);
        for (int Step = -500; Step <= 500; ++Step) {
            const double Degrees = (60 - Place / 2 + Step * Place * 1e-4) * Minute;
            EXPECT_EQ(Format_DM(Degrees, "LAT", "FORM", Decimals).find("60"), std::string::npos);
            EXPECT_EQ(Format_DMS(Degrees * Minute, "LAT", "FORM", Decimals).find("60"), std::string::npos);
        }
    }
}

TEST(Format_DMS, Screen_And_File_Texts) {
    const double Degrees = 62 + 35 * Minute + 30.125 * Second;
    EXPECT_EQ(Format_DMS(Degrees, "LAT", "FORM", 3), "62\xB0"
                                                     "35'30.125\"N");
    EXPECT_EQ(Format_DMS(-Degrees, "LON", "FILE", 0), "062\xF8"
                                                      "35'30\"W");
    EXPECT_EQ(Format_DMS(-1, "BRG", "FORM", 1), "001\xB0"
                                                "00'00.0\"W");
    for (const std::int16_t Decimals : {std::int16_t{5}, std::int16_t{-1}})
        EXPECT_EQ(Format_DMS(1.5, "LAT", "FORM", Decimals), "01\xB0"
                                                            "30'\"N")
            << "no pattern, no seconds";
}

TEST(Format_DMS, Seconds_Carry_Into_Minutes_And_Degrees) {
    EXPECT_EQ(Format_DMS(10 + 20 * Minute + 59.9996 * Second, "LAT", "FORM", 3), "10\xB0"
                                                                                 "21'00.000\"N");
    EXPECT_EQ(Format_DMS(10 + 59 * Minute + 59.9996 * Second, "LON", "FORM", 3), "011\xB0"
                                                                                 "00'00.000\"E");
    EXPECT_EQ(Format_DMS(std::nextafter(11.0, 0.0), "LON", "FORM", 4), "011\xB0"
                                                                       "00'00.0000\"E");
}

TEST(Format_DMS_Wide, Differs_In_Blanks_And_Signs) {
    const double Degrees = 62 + 35 * Minute + 30.125 * Second;
    EXPECT_EQ(Format_DMS_Wide(Degrees, "LAT", "FORM", 3), "62\xB0 35' 30.125\" N");
    EXPECT_EQ(Format_DMS_Wide(-Degrees, "LON", "FILE", 2), "062\xF8 35' 30.13\" W");
    EXPECT_EQ(Format_DMS_Wide(-Degrees, "BRG", "FORM", 9), "-062\xB0 35' 30.1250\"");
    EXPECT_EQ(Format_DMS_Wide(10 + 59 * Minute + 59.99996 * Second, "LAT", "FORM", 4),
              "11\xB0 00' 00.0000\" N");
}

TEST(Format_Times, Hours_Minutes_And_Seconds) {
    EXPECT_EQ(Format_HMS(5445.25, 2), "01:30:45.25");
    EXPECT_EQ(Format_HMS(5445.25, 0), "01:30:45");
    EXPECT_EQ(Format_HMS(360000, 5), "100:00:00");
    EXPECT_EQ(Format_HMS(3660, 0), "01:00:60") << "no carry";
    EXPECT_EQ(Format_HM(5400), "01:30");
    EXPECT_EQ(Format_HM(59.6 * 60), "00:60") << "no carry";
    EXPECT_EQ(Format_HM(2.5 * 60), "00:02") << "ties to even";
}

TEST(Format_Texts, Extreme_Values_Have_A_Text) {
    const double Values[] = {std::numeric_limits<double>::infinity(),
                             std::numeric_limits<double>::quiet_NaN()};
    for (const double Value : Values) {
        EXPECT_EQ(Format_DM(Value, "LAT", "FORM", 1), "00\xB0 00.0' N");
        EXPECT_EQ(Format_HMS(Value, 1), "00:00:00.0");
        EXPECT_EQ(Format_HM(Value), "00:00");
    }
    EXPECT_EQ(Format_DM(-1e300, "LAT", "FORM", 1), "32767\xB0 00.0' S");
    EXPECT_EQ(Format_DMS_Wide(1e300, "LAT", "FORM", 1), "32767\xB0 00' 00.0\" N");
    for (const std::int16_t Decimals : {std::int16_t{-32768}, std::int16_t{32767}})
        EXPECT_EQ(Format_DM(0.5, "LAT", "FORM", Decimals), "00\xB0 30.000000' N");
}

const std::string Lat_North = "LATITUDE FORMAT ERROR. Default, N, used";
const std::string Lon_East = "LONGITUDE FORMAT ERROR. Default, E, used";

using Messages = std::vector<std::string>; // the texts; those with the title "Illegal input" start with "!"

// "*" stands for the degree sign, which would run into the digits behind it.
std::string With_Degrees(std::string Text) {
    for (char& Letter : Text)
        if (Letter == '*') Letter = '\xB0';
    return Text;
}

struct Outcome {
    std::string Text;
    double Value = 0;
    Messages Shown;
};

void Collect(Outcome& Out, const Message_Boxes& Boxes) {
    for (const Message_Box& Box : Boxes.Standing) {
        const bool Is_Warning = Box.Icon == Box_Icon::Warning;
        EXPECT_EQ(Box.Title, Is_Warning ? "Illegal input" : "");
        Out.Shown.push_back((Is_Warning ? "!" : "") + Box.Text);
    }
}

Outcome DMS(std::string Text, std::string_view Kind) {
    Message_Boxes Boxes;
    Outcome Out{std::move(Text), 0, {}};
    Out.Value = Parse_DMS(Out.Text, Kind, Boxes);
    Collect(Out, Boxes);
    return Out;
}

Outcome DM(std::string Text, std::string_view Kind, std::int16_t Decimals = 4) {
    Message_Boxes Boxes;
    Outcome Out{std::move(Text), 0, {}};
    Out.Value = Parse_DM(Out.Text, Kind, Decimals, Boxes);
    Collect(Out, Boxes);
    return Out;
}

struct Case {
    std::string Text;
    std::string Kind;
    double Value;
    std::string Canonical;
    Messages Shown;
};

template <class Parser>
void Check(Parser Parse, const std::vector<Case>& Cases) {
    for (const Case& C : Cases) {
        const Outcome Out = Parse(C.Text, C.Kind);
        EXPECT_NEAR(Out.Value, C.Value, 1e-9) << C.Text;
        EXPECT_EQ(Out.Text, With_Degrees(C.Canonical)) << C.Text;
        EXPECT_EQ(Out.Shown, C.Shown) << C.Text;
    }
}

TEST(Parse_DMS, Accepted_Forms) {
    const double Value = 62 + 35 * Minute + 30 * Second;
    const std::string North = "62*35'30.0000\"N";
    Check(DMS, {
                   {"62 35 30 N", "LAT", Value, North, {}},
                   {"62\xB0"
                    "35'30 N",
                    "Lat",
                    Value,
                    North,
                    {}},
                   {"  62\xF8   35'  30\"  n ", "LAT", Value, North, {}},
                   {"62 35 30\"", "LAT", Value, North, {}},
                   {"-62 35 30", "LAT", -Value, "62*35'30.0000\"S", {}},
                   {"-  62 35 30 N", "LAT", Value, North, {}},
                   {"62.35.30S", "LAT", -Value, "62*35'30.0000\"S", {}},
                   {"62 35'", "LAT", 62 + 35 * Minute, "62*35'00.0000\"N", {}},
                   {"62\xF8", "LAT", 62, "62*00'00.0000\"N", {}},
                   {"62", "LAT", 62, "62*00'00.0000\"N", {}},
                   {"", "LAT", 0, "00*00'00.0000\"N", {}},
                   {"6 0 30,5 w", "LON", -6 - 30.5 * Second, "006*00'30.5000\"W", {}},
                   {"6 0 0 V", "LON", -6, "006*00'00.0000\"W", {}},
                   {"6 0 0 \xF8", "LON", 6, "006*00'00.0000\"E", {}},
                   {"-6 0 0 \xD8", "LON", 6, "006*00'00.0000\"E", {}},
                   {"90 0 0 S", "LAT", -90, "90*00'00.0000\"S", {}},
               });
}

TEST(Parse_DMS, Errors_Are_Told_And_Repaired) {
    const std::string North = "90*00'00.0000\"N";
    Check(
        DMS,
        {
            {"91 0 0 N", "LAT", 90, North, {"LATITUDE FORMAT ERROR. Max 90 deg allowed"}},
            {"180 0 1 W", "LON", -180, "180*00'00.0000\"W", {"LONGITUDE FORMAT ERROR. Max 180 deg allowed"}},
            {"6 35 60 E",
             "LON",
             6.6,
             "006*36'00.0000\"E",
             {"LONGITUDE SECOND FORMAT ERROR. Max 59.9999 allowed"}},
            {"6 59 75 E",
             "LON",
             7,
             "007*00'00.0000\"E",
             {"LONGITUDE SECOND FORMAT ERROR. Max 59.9999 allowed",
              "LONGITUDE MINUTE FORMAT ERROR. Max 59 allowed"}},
            {"62 75 30 N",
             "LAT",
             63 + 30 * Second,
             "63*00'30.0000\"N",
             {"LATITUDE MINUTE FORMAT ERROR. Max 59 allowed"}},
            {"62 35 30 E", "LAT", 62 + 35.5 * Minute, "62*35'30.0000\"N", {Lat_North}},
            {"6 0 0 S", "LON", 6, "006*00'00.0000\"E", {Lon_East}},
            {"62 35 30 South",
             "LAT",
             62 + 35.5 * Minute,
             "62*35'30.0000\"N",
             {"South!   LATITUDE CHARACTER FORMAT ERROR. Default, N, used"}},
            {"-6 0 0 xx",
             "LON",
             -6,
             "006*00'00.0000\"W",
             {"xx!   LONGITUDE CHARACTER FORMAT ERROR. Default, E, used"}},
            {"62\xB0", "LAT", 62, "62*00'00.0000\"N", {Lat_North}},
            {"62 35\"", "LAT", 62 + 35 * Minute, "62*35'00.0000\"N", {Lat_North}},
            {"40000 1 1 N", "LAT", 0, "40000 1 1 N", {"LATITUDE FORMAT ERROR. Overflow"}},
            {"1 99999 1 N", "LAT", 0, "1 99999 1 N", {"LATITUDE FORMAT ERROR. Overflow"}},
            {"1 1 " + std::string(40, '9'),
             "LON",
             0,
             "1 1 " + std::string(40, '9'),
             {"LONGITUDE FORMAT ERROR. Overflow"}},
        });
    EXPECT_NEAR(DMS("32767 60", "BRG").Value, 32768, 1e-9) << "the value reached before the carry overflows";
}

TEST(Parse_DM, Accepted_Forms) {
    const double Value = 62.5 + 0.5 * Minute;
    Check([](std::string Text, std::string_view Kind) { return DM(std::move(Text), Kind); },
          {
              {"62 30.5 N", "LAT", Value, "62* 30.5000' N", {}},
              {"62 30,5 N", "LAT", Value, "62* 30.5000' N", {}},
              {"62\xB0 30.5' S", "LAT", -Value, "62* 30.5000' S", {}},
              {"-62 30.5", "LAT", -Value, "62* 30.5000' S", {}},
              {"62 30.5\"", "LAT", Value, "62* 30.5000' N", {}},
              {"62 59.99996", "LAT", 62 + 59.99996 * Minute, "63* 00.0000' N", {}},
              {"62 1.2.3 N", "LAT", 62.02, "62* 01.2000' N", {}},
              {"123 30 x", "BRG", 123.5, "123* 30.0000'", {}},
              {"123 30'", "BRG", 123.5, "123* 30.0000'", {}},
              {"-5 30", "AZ", 5.5, "005* 30.0000'", {}},
          });
}

TEST(Parse_DM, Errors_Are_Told_And_Repaired) {
    const std::string Adjusted = " Automatic adjustment to range 0-360 deg";
    const std::string Negative = "!AZIMUTH FORMAT ERROR. Negative values not allowed." + Adjusted;
    const std::string Above = "!AZIMUTH FORMAT ERROR. Max value 360 deg." + Adjusted;
    Check([](std::string Text, std::string_view Kind) { return DM(std::move(Text), Kind); },
          {
              {"62 30.5'", "LAT", 62.5 + 0.5 * Minute, "62* 30.5000' N", {Lat_North}},
              {"6 30.5'", "LON", 6.5 + 0.5 * Minute, "006* 30.5000' E", {Lon_East}},
              {"90 0.1", "LAT", 90, "90* 00.0000' N", {"!LATITUDE FORMAT ERROR. Max 90 deg allowed"}},
              {"-200", "LON", -180, "180* 00.0000' W", {"!LONGITUDE FORMAT ERROR. Max 180 deg allowed"}},
              {"6 60 W", "LON", -7, "007* 00.0000' W", {"LONGITUDE MINUTE FORMAT ERROR. Max 60 allowed"}},
              {"62 30 Nord",
               "LAT",
               62.5,
               "62* 30.0000' N",
               {"!Nord!   LATITUDE CHARACTER FORMAT ERROR. Default, N, used"}},
              {"-10 30", "BRG", 350.5, "350* 30.0000'", {Negative}},
              {"-0", "BRG", 0, "000* 00.0000'", {Negative, Above}},
              {"725 6", "BRG", 5.1, "005* 06.0000'", {Above}},
              {"359 60", "BRG", 360, "360* 00.0000'", {"AZIMUTH MINUTE FORMAT ERROR. Max 60 allowed"}},
              {"32768", "BRG", 0, "32768", {"AZIMUTH FORMAT ERROR. Overflow"}},
              {"1 " + std::string(400, '9'),
               "BRG",
               0,
               "1 " + std::string(400, '9'),
               {"AZIMUTH FORMAT ERROR. Overflow"}},
          });
}

// Leaving a box unedited parses the text that the formatters put there.
TEST(Parse_Position, Reads_Its_Own_Texts_Back_In_Silence) {
    std::mt19937 Random(1);
    for (int Round = 0; Round < 5000; ++Round) {
        const bool Is_Lat = Round % 2 == 0;
        const double Bound_deg = Is_Lat ? 90 : 180;
        const double Degrees = std::uniform_real_distribution<double>(-Bound_deg, Bound_deg)(Random);
        const char* const Kind = Is_Lat ? "LAT" : "LON";
        const char* const Purpose = Round % 4 < 2 ? "FORM" : "FILE";

        const Outcome Seconds = DMS(Format_DMS(Degrees, Kind, Purpose, 3), Kind);
        EXPECT_EQ(Seconds.Shown, Messages{}) << Seconds.Text;
        EXPECT_NEAR(Seconds.Value, Degrees, 0.00051 * Second);
        const Outcome Wide = DMS(Format_DMS_Wide(Degrees, Kind, Purpose, 4), Kind);
        EXPECT_EQ(Wide.Shown, Messages{}) << Wide.Text;
        EXPECT_NEAR(Wide.Value, Degrees, 0.00006 * Second);
        EXPECT_EQ(DMS(Wide.Text, Kind).Text, Wide.Text);

        const std::string Typed = Format_DM(Degrees, Kind, "FORM", 4);
        const Outcome Minutes = DM(Typed, Kind);
        EXPECT_EQ(Minutes.Shown, Messages{}) << Typed;
        EXPECT_EQ(Minutes.Text, Typed);
        EXPECT_NEAR(Minutes.Value, Degrees, 0.0000501 * Minute);
    }
}

} // namespace
} // namespace brinewright
