#include "sentences/number_pattern.hpp"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <locale>

using namespace brinewright;

namespace {

TEST(Format_Dot, Rounds_The_Shortest_Text_Away_From_Zero) {
    EXPECT_EQ(Format_Dot(123.45f, "000.0"), "123.5"); // stored as 123.4499969
    EXPECT_EQ(Format_Dot(123.45f, "000.0#"), "123.45");
    EXPECT_EQ(Format_Dot(-123.45f, "0.0"), "-123.5");
    EXPECT_EQ(Format_Dot(1.005, "0.00"), "1.01"); // stored as 1.00499999999999989
    EXPECT_EQ(Format_Dot(1.0049999999999997, "0.00"), "1.00");
    EXPECT_EQ(Format_Dot(0.05f, "0.0"), "0.1");
    EXPECT_EQ(Format_Dot(0.049f, "0.0"), "0.0");
    EXPECT_EQ(Format_Dot(9.995, "0.00"), "10.00");
    EXPECT_EQ(Format_Dot(2.5, "0"), "3");
    EXPECT_EQ(Format_Dot(0.5, "0"), "1");
    EXPECT_EQ(Format_Dot(0.0000005, "0.000000"), "0.000001");
}

TEST(Format_Dot, The_Empty_Picture) {
    EXPECT_EQ(Format_Dot(0.0f, ""), "0");
    EXPECT_EQ(Format_Dot(0, ""), "0");
    EXPECT_EQ(Format_Dot(100, ""), "100");
    EXPECT_EQ(Format_Dot(1.5f, ""), "1.5");
    EXPECT_EQ(Format_Dot(-0.5f, ""), "-0.5");
    EXPECT_EQ(Format_Dot(123.456789f, ""), "123.4568");
    EXPECT_EQ(Format_Dot(9999999.5f, ""), "10000000");
    EXPECT_EQ(Format_Dot(123.456789012, ""), "123.456789012");
    EXPECT_EQ(Format_Dot(1e-5f, ""), "0.00001");
}

TEST(Format_Dot, Values_That_No_Field_Should_Have) {
    for (const double Value :
         {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(Format_Dot(Value, "00.0"), "00.0");
        EXPECT_EQ(Format_Dot(static_cast<float>(Value), ""), "0");
    }
    EXPECT_EQ(Format_Dot(1e300, "0.0"), "1" + std::string(300, '0') + ".0");
    EXPECT_EQ(Format_Dot(-1e300, "").size(), 302u);
    EXPECT_EQ(Format_Dot(5e-324, "0.00"), "0.00");
    EXPECT_EQ(Format_Dot(1.5, "0." + std::string(300, '0')), "1.5" + std::string(299, '0'));
}

TEST(Format_Field, Only_The_Marker_Is_Empty) {
    EXPECT_EQ(Format_Field(-9999.0f, "000.0"), "");
    EXPECT_EQ(Format_Field(std::int16_t{-9999}, "0"), "");
    EXPECT_EQ(Format_Field(-9999.5f, "000.0"), "-9999.5");
    EXPECT_EQ(Format_Field(9999.0, "0"), "9999");
    EXPECT_EQ(Format_Field(0.0f, "0.0"), "0.0");
}

// No locale with a decimal comma need be installed to have one.
struct Comma_Point final : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(Numbers, Do_Not_Follow_The_Locale) {
    const std::locale Before = std::locale::global(std::locale(std::locale::classic(), new Comma_Point));
    EXPECT_EQ(Format_Dot(1234.5, "0.0"), "1234.5");
    EXPECT_EQ(Val_Dot("1,5"), 1.5);
    EXPECT_EQ(Val_Dot("1.5"), 1.5);
    std::locale::global(Before);
}

TEST(Val_Dot, Reads_The_Leading_Number) {
    struct Row {
        const char* Text;
        double Value;
    };
    for (const Row& R : std::array<Row, 27>{
             {{"0.5 sec", 0.5},   {" 3 sec", 3},     {"12,5", 12.5}, {"abc", 0},    {"", 0},
              {"   ", 0},         {"-7.25'", -7.25}, {"+4", 4},      {"+-4", 0},    {"--4", 0},
              {"-", 0},           {".5", 0.5},       {"5.", 5},      {".", 0},      {"1.2.3", 1.2},
              {"1,234.5", 1.234}, {" 1sec", 1},      {"10e", 10},    {"1e3", 1000}, {"2E-2x", 0.02},
              {"1e+2", 100},      {"e5", 0},         {"nan", 0},     {"inf", 0},    {"-infinity", 0},
              {"0x10", 0},        {"6 2", 6}}})
        EXPECT_EQ(Val_Dot(R.Text), R.Value) << R.Text;
    EXPECT_EQ(Val("12,5"), 12);
    EXPECT_EQ(Val(" 12.5"), 12.5);
}

TEST(Val_Dot, Is_Always_Finite) {
    constexpr double Most = std::numeric_limits<double>::max();
    const std::string Zeros(400, '0');
    EXPECT_EQ(Val_Dot("1e999"), Most);
    EXPECT_EQ(Val_Dot("-1e+999"), -Most);
    EXPECT_EQ(Val_Dot("1e99999999999999999999"), Most);
    EXPECT_EQ(Val_Dot("1" + Zeros), Most);
    EXPECT_EQ(Val_Dot("1" + Zeros + "e-2"), Most);
    EXPECT_EQ(Val_Dot("1e-999"), 0);
    EXPECT_EQ(Val_Dot("1e-99999999999999999999"), 0);
    EXPECT_EQ(Val_Dot("0." + Zeros + "1"), 0);
    EXPECT_EQ(Val_Dot("0." + Zeros + "1e2"), 0);
    EXPECT_EQ(Val_Dot("0e999"), 0);
    EXPECT_DOUBLE_EQ(Val_Dot("0." + Zeros + "1e402"), 10);
}

} // namespace
