#include "ownship/geodesy/angles.hpp"
#include "ownship/geodesy/geodetic_constants.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace brinewright {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double Not_A_Number = std::numeric_limits<double>::quiet_NaN();

TEST(Angles, Sums_Are_Normalised) {
    for (const auto& Add : {Add_Degrees, Sum_Heading}) {
        EXPECT_EQ(Add(350, 20), 10);
        EXPECT_EQ(Add(180, 180), 0);
        EXPECT_EQ(Add(-360, 0), 0);
        EXPECT_EQ(Add(-0.5, -720), 359.5);
        EXPECT_EQ(Add(-1e-20, 0), 0) << "a sum that rounds to a full circle is none";
    }
    EXPECT_EQ(Add_Radians(Pi, Pi), 0) << "the circle is that of the 15-digit constant";
    EXPECT_EQ(Add_Radians(-Half_Pi, 0), Two_Pi - Half_Pi);
}

TEST(Angles, Extreme_Arguments_End_And_Stay_In_Range) {
    for (const double Value : {1e5, -1e5, 1e17, -1e17, 1e300, -1e300, std::numeric_limits<double>::max()}) {
        EXPECT_GE(Add_Degrees(Value, Value), 0) << Value;
        EXPECT_LT(Add_Degrees(Value, Value), 360) << Value;
        EXPECT_GE(Add_Radians(Value, 1), 0) << Value;
        EXPECT_LT(Add_Radians(Value, 1), Two_Pi) << Value;
    }
    EXPECT_EQ(Add_Degrees(36000.0 * 360 + 12, 0), 12);
    EXPECT_EQ(Add_Degrees(-1e6 * 360 + 12, 0), 12);
    for (const double Value : {Infinity, -Infinity, Not_A_Number}) {
        EXPECT_EQ(Add_Degrees(Value, 5), 5);
        EXPECT_EQ(Sum_Heading(-5, Value), 355);
        EXPECT_EQ(Reverse_Degrees(Value), 180);
        EXPECT_EQ(Positive_Radians(Value), 0);
        EXPECT_EQ(Mod_Float(static_cast<float>(Value), 60), 0);
        double X = Value;
        EXPECT_EQ(Arc_Sin(X) + Arc_Cos(X), 0);
        float Angle_deg = -1;
        std::int16_t Side = 0;
        Angle_Between(Value, 10, Angle_deg, Side);
        EXPECT_EQ(Angle_deg, 10);
    }
}

TEST(Angles, Reciprocals_Subtract_One_Circle_Only) {
    EXPECT_EQ(Reverse_Degrees(0), 180);
    EXPECT_EQ(Reverse_Degrees(180), 0);
    EXPECT_EQ(Reverse_Degrees(725), 545);
    EXPECT_EQ(Reverse_Degrees(-270), -90);
    EXPECT_EQ(Reverse_Radians(Pi), 0);
    EXPECT_EQ(Positive_Radians(-Half_Pi), Two_Pi - Half_Pi);
    EXPECT_EQ(Positive_Radians(9), 9);
}

TEST(Angles, Angle_Between_Takes_The_Shorter_Side) {
    struct Case {
        double A, B;
        float Angle;
        int Side;
    };
    for (const Case& C :
         {Case{10, 30, 20, 2}, Case{30, 10, 20, 1}, Case{350, 20, 30, 2}, Case{20, 350, 30, 1},
          Case{0, 180, 180, 1}, Case{180, 0, 180, 2}, Case{77, 77, 0, 1}}) {
        float Angle_deg = -1;
        std::int16_t Side = -1;
        Angle_Between(C.A, C.B, Angle_deg, Side);
        EXPECT_EQ(Angle_deg, C.Angle) << C.A << ' ' << C.B;
        EXPECT_EQ(Side, C.Side) << C.A << ' ' << C.B;
    }
}

TEST(Angles, Arcs_Forgive_Rounding_And_Nothing_More) {
    double X = 1.00005;
    EXPECT_DOUBLE_EQ(Arc_Sin(X), std::asin(1.0));
    EXPECT_EQ(X, 1) << "the caller's value is changed";
    X = -1.00005;
    EXPECT_DOUBLE_EQ(Arc_Cos(X), std::acos(-1.0));
    EXPECT_EQ(X, -1);
    for (double Outside : {1.0001, -1.0001, 7.0}) {
        EXPECT_EQ(Arc_Sin(Outside), 0);
        EXPECT_EQ(Arc_Cos(Outside), 0);
    }
    for (double Sine = -0.99; Sine < 1; Sine += 0.01) {
        EXPECT_NEAR(Arc_Sin(Sine), std::asin(Sine), 1e-14);
        EXPECT_NEAR(Arc_Cos(Sine), std::acos(Sine), 1e-14);
    }
}

TEST(Angles, Mod_Float_Rounds_For_The_Division_Only) {
    EXPECT_EQ(Mod_Float(125, 60), 5);
    EXPECT_FLOAT_EQ(Mod_Float(59.75F, 60), -0.25F);
    EXPECT_FLOAT_EQ(Mod_Float(2.5F, 3), 2.5F) << "2.5 is 2 in the division, ties to even";
    EXPECT_FLOAT_EQ(Mod_Float(-7, 4), -3);
    EXPECT_EQ(Mod_Float(3, 0.5F), 0) << "a divisor that rounds to 0";
}

} // namespace brinewright
