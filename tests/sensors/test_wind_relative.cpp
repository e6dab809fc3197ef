// The relative wind: exact cases, the whole compass against a vector sum, places where geodesy ends.

#include "sensors/wind/relative_wind.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace brinewright {
namespace {

constexpr double To_rad = 0.017453292519943295;

double Apart_deg(double A_deg, double B_deg) { return std::abs(std::remainder(A_deg - B_deg, 360)); }

TEST(Relative_Wind, Head_And_Following_Wind_Are_Exact) {
    const struct {
        double Wind_kn;
        float From_deg, Heading_deg;
        double Log_kn, Felt_kn;
        float Felt_From_deg;
    } Rows[] = {{10, 0, 0, 5, 15, 0},           {5, 180, 0, 5, 0, 0},          {8, 180, 0, 5, 3, 180},
                {3, 180, 0, 5, 2, 0},           {12.5, 90, 270, 0, 12.5, 180}, {0, 45, 45, 7, 7, 0},
                {20, 359.9F, 359.9F, 4, 24, 0}, {6, 30, 210, -4, 10, 180},     {5, 10, 10, -10, -5, 0}};
    for (const auto& Row : Rows) {
        // A wild course and speed over ground must not reach these cases.
        const Relative_Wind Felt =
            Work_Out_Relative_Wind({Row.Wind_kn, Row.From_deg, Row.Heading_deg, Row.Log_kn, 62, 6, 123, 17});
        EXPECT_DOUBLE_EQ(Felt.Speed_kn, Row.Felt_kn) << Row.Wind_kn << " from " << Row.From_deg;
        EXPECT_EQ(Felt.Direction_deg, Row.Felt_From_deg) << Row.Wind_kn << " from " << Row.From_deg;
    }
}

TEST(Relative_Wind, Is_The_Vector_Sum_All_Round_The_Ship) {
    int Compared = 0;
    for (const double Lat_deg : {-60.0, 0.0, 35.0, 62.6})
        for (const float Heading_deg : {0.0F, 44.9F, 180.0F, 301.5F})
            for (const double Ship_kn : {0.0, 6.5, -3.0, 25.0})
                for (float From_deg = 0.5F; From_deg < 360; From_deg += 4.5F) {
                    constexpr double Wind_kn = 14;
                    const Relative_Wind Felt = Work_Out_Relative_Wind(
                        {Wind_kn, From_deg, Heading_deg, Ship_kn, Lat_deg, 179.99999, Heading_deg, Ship_kn});
                    // Ahead and to starboard, where the air comes from.
                    const double Off_Bow_rad = (From_deg - Heading_deg) * To_rad;
                    const double Ahead_kn = Wind_kn * std::cos(Off_Bow_rad) + Ship_kn;
                    const double Starboard_kn = Wind_kn * std::sin(Off_Bow_rad);
                    ASSERT_NEAR(Felt.Speed_kn, std::hypot(Ahead_kn, Starboard_kn), 1e-4);
                    ASSERT_LT(Apart_deg(Felt.Direction_deg, std::atan2(Starboard_kn, Ahead_kn) / To_rad), 0.2)
                        << From_deg << " on " << Heading_deg << " at " << Ship_kn;
                    ++Compared;
                }
    EXPECT_EQ(Compared, 4 * 4 * 4 * 80);
}

// Speed from heading and log, direction from course and speed over ground, the flattening included: computed
// apart from this program, in plane vectors scaled by the radii of curvature.
TEST(Relative_Wind, Takes_Speed_From_The_Log_And_Direction_Over_Ground) {
    const struct {
        Wind_And_Ship Now;
        double Felt_kn, Felt_From_deg;
    } Rows[] = {
        {{10, 1, 0, 5, 62, 6, 0, 5}, 14.9995, 0.668},
        {{10, 359, 0, 5, 62, 6, 0, 5}, 14.9995, 359.332},
        {{12, 90, 0, 16, 0, 0, 0, 16}, 20.0000, 37.055},
        {{20, 225, 45.5F, 8, 0, 179.9999, 45.5, 8}, 12.0005, 179.359},
        {{33.5, 310, 290, 14.2, -54, -68, 302, 13}, 47.0947, 17.701},
        {{5, 123.4F, 250, -3, 80, -30, 250, -3}, 7.2032, 213.864},
        {{0, 77, 30, 12, 45, 0, 33, 12.5}, 12.0000, 3.088},
        {{25, 200, 20.5F, 0, 62, 6, 0, 0}, 25.0000, 179.527},
        {{40, 10, 350, 20, 89, 100, 20, 22}, 59.1904, 23.545},
    };
    for (const auto& Row : Rows) {
        const Relative_Wind Felt = Work_Out_Relative_Wind(Row.Now);
        EXPECT_NEAR(Felt.Speed_kn, Row.Felt_kn, 0.0001) << Row.Now.Wind_Direction_deg;
        EXPECT_LT(Apart_deg(Felt.Direction_deg, Row.Felt_From_deg), 0.01)
            << Felt.Direction_deg << " instead of " << Row.Felt_From_deg;
    }
    EXPECT_EQ(Work_Out_Relative_Wind({0, 77, 30, 0, 45, 0, 33, 12.5}).Direction_deg, 0) << "no felt wind";
}

TEST(Relative_Wind, Is_Finite_And_Within_The_Circle_Everywhere) {
    constexpr float Huge = std::numeric_limits<float>::max(),
                    Infinite = std::numeric_limits<float>::infinity();
    for (const double Lat_deg : {90.0, -90.0, 89.99999, -89.99999, 91.0, 1e300})
        for (const double Lon_deg : {0.0, 180.0, -180.0, 1e300})
            for (const float Angle_deg : {0.0F, 45.0F, 90.0F, 359.99998F, -30.0F, 1e30F, Infinite})
                for (const float Speed_kn : {0.0F, 1e-9F, 12.0F, -12.0F, 7e6F, Huge, Infinite}) {
                    const Relative_Wind Felt = Work_Out_Relative_Wind(
                        {Speed_kn, Angle_deg, 10, 8, Lat_deg, Lon_deg, Angle_deg, Speed_kn});
                    ASSERT_TRUE(std::isfinite(Felt.Speed_kn))
                        << Lat_deg << ' ' << Angle_deg << ' ' << Speed_kn;
                    ASSERT_TRUE(Felt.Direction_deg >= 0 && Felt.Direction_deg < 360) << Felt.Direction_deg;
                }
}

} // namespace
} // namespace brinewright
