#include "fake_clock.hpp"
#include "sentences/checksum.hpp"
#include "sentences/compose_gga.hpp"
#include "sentences/compose_rmc.hpp"
#include "sentences/compose_zda.hpp"
#include "sentences/free_text.hpp"
#include "sentences/position_block.hpp"
#include "sentences/sentence_clock.hpp"
#include "sentences/sentence_frame.hpp"
#include "sentences/utc_state.hpp"

#include <gtest/gtest.h>
#include <limits>

using namespace brinewright;

namespace {

TEST(Add_Checksum, Body) {
    EXPECT_EQ(Add_Checksum("$GPGGA,1*5A"), Add_Checksum("$GPGGA,1"));
    EXPECT_EQ(Add_Checksum("!GPGGA,1"), Add_Checksum("$GPGGA,1"));
    EXPECT_EQ(Add_Checksum("$GPGLL,5057.970,N,00146.110,E,142451,A"), "27");
    EXPECT_EQ(Add_Checksum("$\n"), "0A");
    EXPECT_EQ(Add_Checksum("$AA"), "00");
    EXPECT_EQ(Add_Checksum("$\xE5"), "E5"); // 8-bit characters count with their code
    for (const char* Empty : {"", "$", "$*00", "*", "*12"}) EXPECT_EQ(Add_Checksum(Empty), "XX") << Empty;
}

TEST(Hex2, Widths) {
    EXPECT_EQ(Hex2(0), "00");
    EXPECT_EQ(Hex2(9), "09");
    EXPECT_EQ(Hex2(10), "0A");
    EXPECT_EQ(Hex2(15), "0F");
    EXPECT_EQ(Hex2(16), "10");
    EXPECT_EQ(Hex2(255), "FF");
    EXPECT_EQ(Hex2(256), "100");
    EXPECT_EQ(Hex2(32767), "7FFF");
    EXPECT_EQ(Hex2(-5), "-05");
}

TEST(Sentence_Frame, Talker_Is_Two_Characters_And_Empty_Fields_Keep_Their_Commas) {
    std::string Out = Begin_Sentence("GPS", "XYZ");
    Add_Number(Out, Empty_Marker, "0.0"_Pattern);
    Add_Text(Out, "");
    EXPECT_EQ(Finish_Sentence(Out, true), "$GPXYZ,,");
    EXPECT_EQ(Finish_Sentence(Out, false), "$GPXYZ,,*4C");
    EXPECT_EQ(Begin_Sentence("G", "XYZ"), "$G XYZ");
}

TEST(Limit_Minutes, Limits) {
    const auto Limited = [](double Minutes, std::int16_t Decimals) {
        Limit_Minutes(Minutes, Decimals);
        return Minutes;
    };
    EXPECT_EQ(Limited(59.9995, 4), 59.9995);
    EXPECT_EQ(Limited(59.99995, 4), 59.9999);
    EXPECT_EQ(Limited(59.9995, 3), 59.999);
    EXPECT_EQ(Limited(59.9999999, 5), 59.99999);
    EXPECT_EQ(Limited(59.9999999, 6), 59.999999);
    EXPECT_EQ(Limited(59.9999999, 2), 59.9999999);
    EXPECT_EQ(Limited(59.9999999, 7), 59.9999999);
}

std::string Position(double Lat, double Lon, std::int16_t Decimals) {
    std::string Out;
    Add_Position(Out, Lat, Lon, Decimals);
    return Out;
}

TEST(Position_Block, Never_Reads_60_Minutes) {
    for (std::int16_t Decimals = 3; Decimals <= 6; ++Decimals) {
        const std::string End = "59." + std::string(static_cast<std::size_t>(Decimals), '9');
        for (double Short = 1e-3; Short > 1e-11; Short /= 1.37) {
            const std::string Text = Position(60 - Short / 60, -(120 - Short / 60), Decimals);
            ASSERT_EQ(Text.find("60."), std::string::npos) << Text;
            if (Short > 1e-7) continue;
            ASSERT_EQ(Text, ",59" + End + ",N,119" + End + ",W");
        }
    }
    EXPECT_EQ(Position(60, 120, 4), ",6000.0000,N,12000.0000,E");
}

TEST(Position_Block, Values_That_No_Position_Should_Have) {
    constexpr double Infinite = std::numeric_limits<double>::infinity();
    constexpr double No_Number = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(Position(No_Number, Infinite, 3), ",0000.000,N,00000.000,E");
    EXPECT_EQ(Position(-Infinite, 1e10, 3), ",0000.000,S,1000000000000.000,E");
    EXPECT_EQ(Position(1e300, 0, 3).size(), 301 + std::string(",00.000,N,00000.000,E").size());
    EXPECT_EQ(Position(1, 1, 2), "");
}

// Whatever the record holds, a listener can take the sentence apart.
TEST(Sentence_Frame, Extreme_Records_Stay_Numbers) {
    Fake_Clock Clock(std::numeric_limits<std::int32_t>::max());
    const UTC_State UTC;
    GGA_Record Record;
    Record.Lat = Record.Lon = -std::numeric_limits<double>::max();
    Record.HDOP = std::numeric_limits<float>::infinity();
    Record.Alt = -std::numeric_limits<float>::max();
    Record.Age = std::numeric_limits<float>::quiet_NaN();
    Record.Station_ID = std::numeric_limits<std::int32_t>::min();
    const std::string Text = Compose_GGA({Clock, UTC}, Record, 6, 2, 1, true);
    EXPECT_NE(Text.find(",S,"), std::string::npos);
    EXPECT_NE(
        Text.find("00.000000,W,0,0,0.0,-34028235" + std::string(31, '0') + ".0,M,0.0,M,0.0,-2147483648"),
        std::string::npos)
        << Text;
}

TEST(Check_Free_Text, Replaces_Each_Occurrence_With_A_Warning) {
    Message_Boxes Boxes;
    std::string Text = "A,B,C";
    EXPECT_EQ(Check_Free_Text(Text, Boxes), "AXBXC");
    EXPECT_EQ(Text, "AXBXC");
    ASSERT_EQ(Boxes.Standing.size(), 2u);
    EXPECT_EQ(Boxes.Standing[0].Text, "The character   '  ,  '   is not allowed in a NMEA message free text");
    EXPECT_EQ(Boxes.Standing[0].Icon, Box_Icon::Warning);

    Text = "*$,";
    Check_Free_Text(Text, Boxes);
    EXPECT_EQ(Text, "XXX");
    ASSERT_EQ(Boxes.Standing.size(), 5u);
    for (std::size_t I = 0; I < 3; ++I) EXPECT_EQ(Boxes.Standing[2 + I].Text[19], ",$*"[I]);

    Text = "plain";
    EXPECT_EQ(Check_Free_Text(Text, Boxes), "plain");
    EXPECT_EQ(Boxes.Standing.size(), 5u);
}

constexpr std::int64_t Day_Start_us = 1'767'225'600 * us_Per_Second; // 2026-01-01 00:00:00

constexpr std::int64_t Time_us(int Hour, int Minute, double Second) {
    return Day_Start_us + (Hour * 60 + Minute) * 60 * us_Per_Second +
           static_cast<std::int64_t>(Second * 1e6 + 0.5);
}

std::string UTC_At(std::int64_t Now_us, std::int16_t Decimals, std::int64_t Step_us = 0) {
    Fake_Clock Clock(Now_us, Step_us);
    const UTC_State UTC;
    return Compose_UTC({Clock, UTC}, Decimals, 1, false);
}

TEST(Compose_UTC, The_Fraction_Is_A_Second_Reading_In_Steps_Of_A_32_Bit_Float) {
    // The whole second is read at 12:34:56.999, the fraction a tenth later.
    EXPECT_EQ(UTC_At(Time_us(12, 34, 56.999), 2, 100'000), "123456.10");
    EXPECT_EQ(UTC_At(Time_us(22, 0, 0.011), 3), "220000.008"); // 1/128 s = 0.0078125
    EXPECT_EQ(UTC_At(Time_us(22, 0, 0.012), 3), "220000.016");
    EXPECT_EQ(UTC_At(Time_us(23, 59, 59.999), 2), "235959.00"); // the float is 86400
}

TEST(Sentence_Dates, ZDA_Shifts_The_Date_And_RMC_Does_Not) {
    Fake_Clock Clock(Time_us(23, 30, 0));
    UTC_State UTC;
    UTC.Use_UTC = true;
    UTC.UTC_Offset_Hours = 90;
    const Sentence_Time Time{Clock, UTC};
    EXPECT_EQ(Compose_ZDA(Time, {}, 0, 1, true), "$GPZDA,010000,02,01,2026,01,00");
    EXPECT_EQ(Compose_RMC(Time, {}, 2, 0, 1, true), "$GPRMC,010000,A,0.0,000.0,010126,000.0,E,A,S");
}

} // namespace
