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
