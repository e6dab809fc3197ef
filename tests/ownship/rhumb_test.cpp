#include "ownship/geodesy/geodetic_constants.hpp"
#include "ownship/geodesy/rhumb.hpp"
#include "tests/ownship/geodesy_bench.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace brinewright {
namespace {

struct Result {
    double First = Untouched; // latitude or distance
    double Second = Untouched;
};

Result Rhumb_To(double Lat_deg, double Lon_deg, double Distance_NM, double Course_deg,
                bool Is_Mercator = true) {
    Result R;
    Rhumb_Direct(Lat_deg * Rad, Lon_deg * Rad, Distance_NM, Course_deg * Rad, R.First, R.Second, Is_Mercator);
    return R;
}

Result Rhumb_Between(double Lat_1_deg, double Lon_1_deg, double Lat_2_deg, double Lon_2_deg,
                     bool Is_Mercator = true) {
    Result R;
    Rhumb_Inverse(Lat_1_deg * Rad, Lon_1_deg * Rad, Lat_2_deg * Rad, Lon_2_deg * Rad, R.First, R.Second,
                  Is_Mercator);
    return R;
}

TEST(Rhumb, Agrees_With_The_Sphere) {
    const auto Rows = Read_Golden_Rows("rhumb.txt");
    ASSERT_GT(Rows.size(), 300U);
    for (const Golden_Row& Row : Rows) {
        ASSERT_EQ(Row.size(), 6U);
        const Result There = Rhumb_To(Row[0], Row[1], Row[2], Row[3]);
        EXPECT_NEAR(There.First, Row[4] * Rad, 1e-11);
        EXPECT_NEAR(There.Second, Row[5] * Rad, 1e-11);
        const Result Back = Rhumb_Between(Row[0], Row[1], Row[4], Row[5]);
        EXPECT_NEAR(Back.First, Row[2], 1e-8);
        EXPECT_NEAR(std::remainder(Back.Second - Row[3] * Rad, Two_Pi), 0, 1e-10);
        EXPECT_TRUE(Back.Second >= 0 && Back.Second <= Two_Pi);
    }
}

TEST(Rhumb, Along_A_Parallel) {
    const Result East = Rhumb_To(60, 10, 60, 90);
    EXPECT_NEAR(East.Second, 12 * Rad, 1e-12);
    // Almost along it: the parallel of the end counts as long as the latitude changes by less than 1e-5
    // radians.
    const double Step_rad = 8e-6, Course_deg = 90 - Step_rad / (1 * Rad) / Rad;
    EXPECT_NEAR(Rhumb_To(85, 0, 60, Course_deg).Second, Rad / std::cos(85 * Rad + Step_rad), 1e-7);
    const Result West = Rhumb_Between(60, -179, 60, 179);
    EXPECT_NEAR(West.First, 60, 1e-9);
    EXPECT_EQ(West.Second, Two_Pi - Half_Pi);
}

TEST(Rhumb, The_Date_Line_Wraps_The_Longitude) {
    EXPECT_NEAR(Rhumb_To(0, 179.9, 12, 90).Second, -179.9 * Rad, 1e-12);
    EXPECT_NEAR(Rhumb_To(0, -179.9, 12, 270).Second, 179.9 * Rad, 1e-12);
    EXPECT_NEAR(Rhumb_To(45, 179.9, 60, 60).Second, -178.87 * Rad, 1e-2) << "on the oblique path as well";
}

TEST(Rhumb, The_Poles_Leave_The_Outputs_Alone) {
    for (const bool Is_Mercator : {true, false}) {
        EXPECT_EQ(Rhumb_To(89.5, 10, 31, 0, Is_Mercator).First, Untouched);
        EXPECT_EQ(Rhumb_To(-89.5, 10, 31, 180, Is_Mercator).Second, Untouched);
    }
    for (const double Pole_deg : {90.0, -90.0}) {
        EXPECT_EQ(Rhumb_Between(Pole_deg, 0, 60, 10).First, Untouched);
        EXPECT_EQ(Rhumb_Between(60, 0, Pole_deg, 10).Second, Untouched);
        EXPECT_NEAR(Rhumb_Between(60, 0, Pole_deg, 0, false).First, Pole_deg > 0 ? 1800 : 9000, 1e-6);
    }
    const Result Away = Rhumb_To(-90, 25, 60, 0);
    EXPECT_NEAR(Away.First, -89 * Rad, 1e-12) << "a ship can leave the south pole";
    EXPECT_EQ(Away.Second, 25 * Rad);
}

TEST(Rhumb, Equal_Positions_Have_Neither_Distance_Nor_Course) {
    for (const bool Is_Mercator : {true, false}) {
        EXPECT_EQ(Rhumb_Between(62, 6, 62, 6, Is_Mercator).First, 0);
        EXPECT_EQ(Rhumb_Between(62, 6, 62 + 5e-5, 6 - 5e-5, Is_Mercator).Second, 0) << "within 1e-6 radians";
        EXPECT_NE(Rhumb_Between(62, 6, 62 + 6e-5, 6, Is_Mercator).First, 0);
    }
}

// Half a degree either way over the equator: the angle is 45 degrees in each quadrant, and the sums are the
// system's own.
TEST(Rhumb, Mid_Latitude_Quadrants) {
    EXPECT_NEAR(Rhumb_Between(-0.5, 0, 0.5, 1, false).Second, 45 * Rad, 1e-9);
    EXPECT_NEAR(Rhumb_Between(0.5, 0, -0.5, 1, false).Second, 135 * Rad, 1e-9);
    EXPECT_NEAR(Rhumb_Between(0.5, 1, -0.5, 0, false).Second, 225 * Rad, 1e-9);
    EXPECT_NEAR(Rhumb_Between(-0.5, 1, 0.5, 0, false).Second, 315 * Rad, 1e-9);
    // A course of 120 degrees comes out as 90 + 60.
    const double East_deg = 2 * std::sqrt(3.0) / 2, South_deg = 1;
    EXPECT_NEAR(Rhumb_Between(South_deg / 2, 0, -South_deg / 2, East_deg, false).Second, 150 * Rad, 1e-9);
    EXPECT_EQ(Rhumb_Between(1, 5, 2, 5, false).Second, 0);
    EXPECT_EQ(Rhumb_Between(2, 5, 1, 5, false).Second, Pi);
    EXPECT_EQ(Rhumb_Between(60, 5, 60, 7, false).Second, Half_Pi);
    EXPECT_EQ(Rhumb_Between(60, 5, 60, 3, false).Second, Three_Half_Pi);
    EXPECT_NEAR(Rhumb_Between(60, 5, 60, 3, false).First, 60, 1e-9);
    EXPECT_NEAR(Rhumb_To(59.5, 5, 120, 60, false).Second, (5 + std::sqrt(3.0) * 2) * Rad, 1e-9);
}

TEST(Rhumb, Nothing_But_Finite_Numbers_Is_Written) {
    const double Huge[] = {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN(),
                           1e308};
    for (const bool Is_Mercator : {true, false}) {
        for (const double Bad : Huge) {
            for (const Result& R :
                 {Rhumb_To(Bad, 0, 1, 1, Is_Mercator), Rhumb_To(0, Bad, 1, 1, Is_Mercator),
                  Rhumb_To(0, 0, Bad, 90, Is_Mercator), Rhumb_To(0, 0, 1, Bad, Is_Mercator),
                  Rhumb_Between(Bad, 0, 1, 1, Is_Mercator), Rhumb_Between(0, 0, 1, Bad, Is_Mercator),
                  Rhumb_Between(91, 0, 1, 1, Is_Mercator)}) {
                EXPECT_TRUE(std::isfinite(R.First) && std::isfinite(R.Second)) << Bad;
            }
        }
    }
}

} // namespace
} // namespace brinewright
