#include "ownship/geodesy/format_position.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

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

} // namespace
} // namespace brinewright
