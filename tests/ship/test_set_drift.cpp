// The current between ground and water, against the algebra of vectors.

#include "ownship/ship/set_drift.hpp"
#include "tests/ship/ship_bench.hpp"

#include <cmath>
#include <numbers>

namespace brinewright {
namespace {

struct Current {
    double Set_deg = 0;
    double Drift_kn = 0;
};

Current Computed(float SOG_kn, double COG_deg, float Log_kn, float Heading_deg) {
    Simulator_State S;
    S.Of<Navdata_State>().Nav_SOG = SOG_kn;
    S.Of<Navdata_State>().Nav_COG = COG_deg;
    S.Of<Log_State>().Log_Speed[1] = Log_kn;
    S.Of<Gyro_State>().Gyro_HDG[1] = Heading_deg;
    S.Of<Navdata_State>().Current_Drift = -77;
    Compute_Set_Drift(S);
    return {S.Of<Navdata_State>().Current_Set, S.Of<Navdata_State>().Current_Drift};
}

Current By_Vectors(double SOG_kn, double COG_deg, double Log_kn, double Heading_deg) {
    constexpr double Rad = std::numbers::pi / 180;
    const double North = SOG_kn * std::cos(COG_deg * Rad) - Log_kn * std::cos(Heading_deg * Rad);
    const double East = SOG_kn * std::sin(COG_deg * Rad) - Log_kn * std::sin(Heading_deg * Rad);
    return {std::atan2(East, North) / Rad, std::hypot(North, East)};
}

// Where the angle at the slower of the two vectors' tips is what their lengths make it seem.
bool Told_Rightly(double SOG_kn, double Log_kn, bool Clockwise, double Drift_kn) {
    const double Gap = SOG_kn * SOG_kn - Log_kn * Log_kn;
    const double Square = Drift_kn * Drift_kn;
    return Clockwise ? SOG_kn < Log_kn || Gap > Square : SOG_kn >= Log_kn || -Gap > Square;
}

TEST(Set_Drift, Agrees_With_Vectors_In_Every_Branch) {
    int Branches[2][2] = {};
    int Told_Wrongly = 0;
    for (const float Heading_deg : {0.0F, 10.0F, 170.0F, 181.0F, 359.0F})
        for (const double Off_deg : {-179.0, -90.0, -30.0, -2.0, 2.0, 30.0, 90.0, 179.0})
            for (const float SOG_kn : {2.0F, 9.0F, 10.0F, 11.0F, 25.0F}) {
                constexpr float Log_kn = 10;
                const double COG_deg = std::fmod(Heading_deg + Off_deg + 360, 360);
                const Current Is = Computed(SOG_kn, COG_deg, Log_kn, Heading_deg);
                const Current Wanted = By_Vectors(SOG_kn, COG_deg, Log_kn, Heading_deg);
                EXPECT_NEAR(Is.Drift_kn, Wanted.Drift_kn, 1e-4)
                    << SOG_kn << " " << Heading_deg << " " << Off_deg;
                ++Branches[Off_deg > 0][SOG_kn >= Log_kn];
                const bool Rightly = Told_Rightly(SOG_kn, Log_kn, Off_deg > 0, Wanted.Drift_kn);
                Told_Wrongly += !Rightly;
                // Of the two angles with one sine the other is told: the set is mirrored across the line at
                // right angles to the vector that it is reckoned from.
                const double Mirror_deg = Off_deg > 0 ? Heading_deg + 90.0 : COG_deg + 90;
                const double Set_deg = Rightly ? Wanted.Set_deg : 2 * Mirror_deg - Wanted.Set_deg;
                EXPECT_LT(Apart_deg(Is.Set_deg, Set_deg), 0.01)
                    << SOG_kn << " " << Heading_deg << " " << Off_deg;
            }
    for (const auto& Side : Branches)
        for (const int Count : Side) EXPECT_GT(Count, 30);
    EXPECT_EQ(Told_Wrongly, 70); // the wide triangles below
}

// asin(sin 60 * 10.5 / hypot) and its like, computed by hand: the acute angle stands where the obtuse one
// would be right, and the other way round.
TEST(Set_Drift, Wide_Triangles_Are_Told_As_Required) {
    EXPECT_NEAR(Computed(10.5F, 60, 10, 0).Set_deg, 62.4190, 1e-3);  // vectors: 117.54
    EXPECT_NEAR(Computed(9.5F, 300, 10, 0).Set_deg, 182.5429, 1e-3); // vectors: 237.46
    EXPECT_NEAR(Computed(9.5F, 60, 10, 0).Set_deg, 122.5429, 1e-3);
}

TEST(Set_Drift, Along_One_Line_And_Nothing_At_All) {
    const struct {
        float SOG_kn, Log_kn, Heading_deg;
        double Set_deg, Drift_kn;
    } Rows[] = {{10, 11, 30, 210, 1}, {10, 9, 30, 30, 1}, {10, 10, 30, 0, 0}, {0, 1, 200, 20, 1}};
    for (const auto& R : Rows) {
        // Told apart as 32-bit numbers: what is less off than those can tell is the same course.
        const Current Is = Computed(R.SOG_kn, R.Heading_deg + 1e-9, R.Log_kn, R.Heading_deg);
        EXPECT_EQ(Is.Set_deg, R.Set_deg);
        EXPECT_EQ(Is.Drift_kn, R.Drift_kn);
    }
    EXPECT_EQ(Computed(0, 90, 0, 0).Set_deg, 0);
    EXPECT_EQ(Computed(0, 90, 0, 0).Drift_kn, -77) << "the drift stays what it was";
    for (const float Speed : {1e-30F, 1.0F, 12.3F, 3e38F}) {
        const Current Is = Computed(Speed, 45.000004, Speed, 45);
        EXPECT_TRUE(std::isfinite(Is.Set_deg) && std::isfinite(Is.Drift_kn)) << Speed;
    }
}

} // namespace
} // namespace brinewright
