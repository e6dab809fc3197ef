#include "sentences/sentence_clock.hpp"

#include "fake_clock.hpp"
#include "sentences/compose_rmc.hpp"
#include "sentences/compose_zda.hpp"
#include "sentences/utc_state.hpp"

#include <gtest/gtest.h>

using namespace brinewright;

namespace {

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

TEST(Compose_UTC, Decimals) {
    EXPECT_EQ(UTC_At(Time_us(12, 34, 56.96), 0), "123456");
    EXPECT_EQ(UTC_At(Time_us(12, 34, 56.96), 1), "1234561.0");
    EXPECT_EQ(UTC_At(Time_us(12, 34, 56.25), 1), "123456.3");
    EXPECT_EQ(UTC_At(Time_us(12, 34, 56.25), 2), "123456.25");
    EXPECT_EQ(UTC_At(Time_us(12, 34, 56.25), 3), "123456.250");
    EXPECT_EQ(UTC_At(Time_us(0, 0, 56.9996), 3), "0000561.000");
    EXPECT_EQ(UTC_At(Time_us(12, 34, 56), 2), "123456.00");
    EXPECT_EQ(UTC_At(Time_us(12, 34, 56.25), 4), "123456");
    EXPECT_EQ(UTC_At(Time_us(12, 34, 56.25), -1), "123456");
}

TEST(Compose_UTC, The_Fraction_Is_A_Second_Reading_In_Steps_Of_A_32_Bit_Float) {
    // The whole second is read at 12:34:56.999, the fraction a tenth later.
    EXPECT_EQ(UTC_At(Time_us(12, 34, 56.999), 2, 100'000), "123456.10");
    EXPECT_EQ(UTC_At(Time_us(22, 0, 0.011), 3), "220000.008"); // 1/128 s = 0.0078125
    EXPECT_EQ(UTC_At(Time_us(22, 0, 0.012), 3), "220000.016");
    EXPECT_EQ(UTC_At(Time_us(23, 59, 59.999), 2), "235959.00"); // the float is 86400
}

TEST(Compose_UTC, Offsets) {
    Fake_Clock Clock(Time_us(23, 30, 0));
    UTC_State UTC;
    UTC.UTC_Offset_Hours = 90; // minutes, in spite of its name
    UTC.GNSS2_UTC_Offset_Hours = -60;
    UTC.GNSS2_UTC_Offset_Seconds = -15;
    const Sentence_Time Time{Clock, UTC};
    EXPECT_EQ(Compose_UTC(Time, 0, 1, false), "233000");
    EXPECT_EQ(Compose_UTC(Time, 0, 1, true), "010000");
    EXPECT_EQ(Compose_UTC(Time, 0, 2, true), "222945");
    EXPECT_EQ(Compose_UTC(Time, 0, 3, true), "010000");
    EXPECT_EQ(Compose_UTC(Time, 0, 2, false), "233000");
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

TEST(Format_Dot, Dates) {
    const Calendar_Time Moment = Split_Time(Time_us(9, 5, 7.9));
    EXPECT_EQ(Format_Dot(Moment, "hhmmss"), "090507");
    EXPECT_EQ(Format_Dot(Moment, "hhnnss"), "090507");
    EXPECT_EQ(Format_Dot(Moment, "ddmmyy"), "010126");
    EXPECT_EQ(Format_Dot(Moment, "yyyy"), "2026");
    EXPECT_EQ(Format_Dot(Moment, "dd.mm.yyyy hh:mm:ss"), "01.01.2026 09:05:07");
    EXPECT_EQ(Format_Dot(Moment, "hh:nn:"), "09:05:");
    EXPECT_EQ(Format_Dot(Split_Time(-1), "ddmmyy hhmmss"), "311269 235959"); // before 1970
    EXPECT_EQ(Format_Dot(Split_Time(951'782'400 * us_Per_Second), "yyyymmdd"), "20000229");
}

} // namespace
