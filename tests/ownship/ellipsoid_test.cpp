#include "ownship/geodesy/ellipsoid.hpp"
#include "ownship/geodesy/geodetic_constants.hpp"
#include "tests/ownship/geodesy_bench.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace brinewright {
namespace {

struct Inverse_Result {
    double Distance_m = Untouched;
    double Azimuth_rad = Untouched;
    double Back_Azimuth_rad = Untouched;

    bool Is_Finite() const {
        return std::isfinite(Distance_m) && std::isfinite(Azimuth_rad) && std::isfinite(Back_Azimuth_rad);
    }
};

Inverse_Result Inverse(double Lat_1_deg, double Lon_1_deg, double Lat_2_deg, double Lon_2_deg,
                       std::int16_t Mode = Distance_And_Azimuths) {
    Inverse_Result R;
    Ellipsoid_Inverse(Lat_1_deg * Rad, Lon_1_deg * Rad, Lat_2_deg * Rad, Lon_2_deg * Rad, Mode, R.Distance_m,
                      R.Azimuth_rad, R.Back_Azimuth_rad, WGS84_Semi_Minor_m, WGS84_Flattening);
    return R;
}

struct Position {
    double Lat_rad = Untouched;
    double Lon_rad = Untouched;
};

Position Direct(double Lat_deg, double Lon_deg, double Distance_m, double Azimuth_deg) {
    Position P;
    Ellipsoid_Direct(Lat_deg * Rad, Lon_deg * Rad, Distance_m, Azimuth_deg * Rad, P.Lat_rad, P.Lon_rad,
                     WGS84_Semi_Major_m, WGS84_Eccentricity_Squared);
    return P;
}

// The series ends with f squared, so that what is left of each angle and each relative distance is f cubed,
// 3.8e-8. Past a quarter of the circumference only the azimuth holds, less and less towards the antipode.
TEST(Ellipsoid, Inverse_Agrees_With_Geodesics) {
    const double Left_Over = std::pow(WGS84_Flattening, 3);
    const auto Rows = Read_Golden_Rows("ellipsoid_inverse.txt");
    ASSERT_GT(Rows.size(), 500U);
    for (const Golden_Row& Row : Rows) {
        ASSERT_EQ(Row.size(), 6U);
        const Inverse_Result R = Inverse(Row[0], Row[1], Row[2], Row[3]);
        const std::string Where =
            testing::PrintToString(Row) + " gave " + testing::PrintToString(R.Azimuth_rad / Rad);
        const bool Is_Short = Row[4] < 9.95e6;
        if (Is_Short) {
            EXPECT_NEAR(R.Distance_m, Row[4], 1.2 * Left_Over * Row[4] + 1e-5) << Where;
        }
        // One metre at the equator is told to a few micrometres in the table and in doubles.
        const double Tolerance_rad =
            Is_Short ? 0.6 * Left_Over + 1e-8 / std::max(Row[4], 1.0) : 50 * Left_Over;
        EXPECT_NEAR(std::remainder(R.Azimuth_rad - Row[5] * Rad, Two_Pi), 0, Tolerance_rad) << Where;
        EXPECT_TRUE(R.Azimuth_rad >= 0 && R.Azimuth_rad < Two_Pi) << Where;
        EXPECT_NEAR(std::abs(R.Back_Azimuth_rad - R.Azimuth_rad), Pi, 1e-14) << Where;
        EXPECT_TRUE(R.Back_Azimuth_rad >= 0 && R.Back_Azimuth_rad < Two_Pi) << Where;
    }
}

TEST(Ellipsoid, Equator_And_Meridian_Azimuths_Are_Exact) {
    EXPECT_EQ(Inverse(0, 10, 0, 11).Azimuth_rad, Half_Pi);
    EXPECT_EQ(Inverse(0, 10, 0, -10).Azimuth_rad, Three_Half_Pi);
    EXPECT_EQ(Inverse(0, -10, 0, 10).Azimuth_rad, Half_Pi);
    EXPECT_EQ(Inverse(0, 179, 0, -179).Azimuth_rad, Half_Pi);
    EXPECT_EQ(Inverse(0, -179, 0, 179).Azimuth_rad, Three_Half_Pi);
    EXPECT_EQ(Inverse(10, 5, 20, 5).Azimuth_rad, 0);
    EXPECT_EQ(Inverse(20, 5, 10, 5).Azimuth_rad, Pi);
    EXPECT_EQ(Inverse(20, 5, 10, 5).Back_Azimuth_rad, 0);
}

TEST(Ellipsoid, Modes_Write_What_They_Are_Asked_For) {
    const Inverse_Result Distance = Inverse(10, 5, 20, 8, Distance_Only);
    EXPECT_GT(Distance.Distance_m, 1e6);
    EXPECT_EQ(Distance.Azimuth_rad, Untouched);
    EXPECT_EQ(Distance.Back_Azimuth_rad, Untouched);
    const Inverse_Result Azimuths = Inverse(10, 5, 20, 8, Azimuths_Only);
    EXPECT_EQ(Azimuths.Distance_m, Untouched);
    EXPECT_NE(Azimuths.Azimuth_rad, Untouched);
}

TEST(Ellipsoid, Degenerate_Pairs_Give_Zero) {
    const double Bad = std::numeric_limits<double>::quiet_NaN();
    for (const Inverse_Result& R :
         {Inverse(62, 6, 62, 6), Inverse(62, 6, 62 + 5e-9, 6, Azimuths_Only), Inverse(45, -180, 45, 180),
          Inverse(0, 180, 0, -180), Inverse(Bad, 6, 62, 6),
          Inverse(62, std::numeric_limits<double>::infinity(), 62, 6)}) {
        EXPECT_EQ(R.Distance_m, 0);
        EXPECT_EQ(R.Azimuth_rad, 0);
        EXPECT_EQ(R.Back_Azimuth_rad, 0);
    }
}

// Quarters and halves of circles make the radicands and divisors of the series vanish.
TEST(Ellipsoid, Inverse_Is_Finite_Everywhere) {
    const double Angles_deg[] = {-180, -179.9999, -90, -45, -1e-9, 0,   1e-9, 30,
                                 45,   89.99999,  90,  135, 179.5, 180, 1e9,  1e300};
    for (const double Lat_1 : Angles_deg)
        for (const double Lat_2 : Angles_deg)
            for (const double Lon_1 : Angles_deg)
                for (const double Lon_2 : Angles_deg)
                    ASSERT_TRUE(Inverse(Lat_1, Lon_1, Lat_2, Lon_2).Is_Finite())
                        << Lat_1 << ' ' << Lon_1 << ' ' << Lat_2 << ' ' << Lon_2;
    EXPECT_NEAR(Inverse(0, 0, 0, 90).Distance_m, Half_Pi * WGS84_Semi_Major_m, 0.4);
}

// The formula follows the normal section, whose end lies off that of the geodesic by up to e'^2 s^3 / 12 a^2.
TEST(Ellipsoid, Direct_Agrees_With_Geodesics) {
    const auto Rows = Read_Golden_Rows("ellipsoid_direct.txt");
    ASSERT_GT(Rows.size(), 250U);
    for (const Golden_Row& Row : Rows) {
        ASSERT_EQ(Row.size(), 6U);
        const Position P = Direct(Row[0], Row[1], Row[3], Row[2]);
        const double North_m = (P.Lat_rad - Row[4] * Rad) * WGS84_Semi_Major_m;
        const double East_m =
            std::remainder(P.Lon_rad - Row[5] * Rad, Two_Pi) * std::cos(P.Lat_rad) * WGS84_Semi_Major_m;
        EXPECT_LT(std::hypot(North_m, East_m), 1.5e-17 * std::pow(Row[3], 3) + 1e-6)
            << testing::PrintToString(Row);
        EXPECT_LE(std::abs(P.Lon_rad), Pi);
    }
}

// Over a long distance the changed term shows: 3 times r1 in place of r2 would move the end by half a metre
// here.
TEST(Ellipsoid, Direct_Has_Its_Own_Fourth_Order_Term) {
    const double Distance_m = 2e6, Lat_rad = 45 * Rad;
    const Position P = Direct(45, 0, Distance_m, 0);
    const double E2 = WGS84_Eccentricity_Squared, E2_Second = E2 / (1 - E2);
    const double R1 = -E2_Second / 2;
    const double R2 = 3 * E2_Second * (1 - R1) / 2;
    const double N_m = WGS84_Semi_Major_m / std::sqrt(1 - E2 / 2);
    const auto End_Lat = [&](double Factor) {
        const double Sigma = Distance_m / N_m;
        const double Theta =
            Sigma - R1 * (1 + R1) * std::pow(Sigma, 3) / 6 - R2 * (1 + Factor) * std::pow(Sigma, 4) / 24;
        const double Radius_m = N_m / (1 - R1 * Theta * Theta / 2 - R2 * std::pow(Theta, 3) / 6);
        // On a meridian the end lies in the plane: down the normal to the axis, then Radius_m at Theta
        // further.
        const double Z_m = Radius_m * std::sin(Lat_rad + Theta) - N_m * E2 * std::sin(Lat_rad);
        return std::atan2(Z_m * (1 + E2_Second), Radius_m * std::cos(Lat_rad + Theta));
    };
    EXPECT_NEAR(P.Lat_rad, End_Lat(R2), 1e-13);
    EXPECT_GT(std::abs(P.Lat_rad - End_Lat(3 * R1)), 1e-9);
}

TEST(Ellipsoid, Direct_Stays_And_Stops) {
    const Position Stay = Direct(89.123456789, -179.987654321, 0, 77);
    EXPECT_EQ(Stay.Lat_rad, 89.123456789 * Rad);
    EXPECT_EQ(Stay.Lon_rad, -179.987654321 * Rad);
    const double Huge[] = {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN(),
                           1e308};
    for (const double Bad : Huge) {
        for (const Position& P : {Direct(1, 2, Bad, 3), Direct(1, 2, 3, Bad)})
            EXPECT_TRUE(std::isfinite(P.Lat_rad) && std::isfinite(P.Lon_rad)) << Bad;
    }
    // A sphere, where the arc to the pole is exact.
    Position Pole;
    Ellipsoid_Direct(0, 1, Half_Pi, 0, Pole.Lat_rad, Pole.Lon_rad, 1, 0);
    EXPECT_EQ(Pole.Lat_rad, Half_Pi);
    EXPECT_EQ(Pole.Lon_rad, 0);
    Ellipsoid_Direct(0, 1, Half_Pi, Pi, Pole.Lat_rad, Pole.Lon_rad, 1, 0);
    EXPECT_EQ(Pole.Lat_rad, -Half_Pi);
}

} // namespace
} // namespace brinewright
