// What the ship does in a second and in a day.

#include "ownship/ship/ship_motion.hpp"
#include "tests/ship/ship_bench.hpp"

#include <charconv>
#include <cmath>
#include <fstream>
#include <limits>
#include <string>
#include <vector>

namespace brinewright {
namespace {

std::vector<std::vector<double>> Golden_Voyages() {
    std::ifstream File(std::string(BRINEWRIGHT_SOURCE_DIR) + "/tests/golden/ship/motion.txt");
    std::vector<std::vector<double>> Rows;
    for (std::string Line; std::getline(File, Line);) {
        if (Line.starts_with('#')) continue;
        std::vector<double>& Row = Rows.emplace_back();
        const char* const End = Line.data() + Line.size();
        double Value = 0;
        for (const char* At = Line.data(); At < End; ++At) {
            At = std::from_chars(At, End, Value).ptr;
            Row.push_back(Value);
        }
    }
    return Rows;
}

float Single(double Value) { return static_cast<float>(Value); }

// A row of the golden file sailed by hand on the window.
void Sail(Ship_Bench& B, const std::vector<double>& Row) {
    Simulator_State& S = B.State();
    S.Of<Navdata_State>().Nav_Lat = Row[0];
    S.Of<Navdata_State>().Nav_Lon = Row[1];
    S.Of<Navdata_State>().Nav_HDG = Row[2];
    S.Of<Gyro_State>().Gyro_Offset[1] = Single(Row[11]);
    S.Of<Log_State>().Log_Offset[1] = Single(Row[12]);
    S.Of<Navdata_State>().Lat_Offset = Row[13];
    S.Of<Navdata_State>().Lon_Offset = Row[14];
    B.Place(B.Ship().sldThrottle, static_cast<int>(Row[3]));
    B.Place(B.Ship().sldRudder, static_cast<int>(Row[4]));
    B.Set(B.Ship().cmbSOGNoise, static_cast<std::int64_t>(Row[8]));
    B.Set(B.Ship().cmbROTNoise, static_cast<std::int64_t>(Row[9]));
    B.Run_s(Row[10]);
}

TEST(Ship_Motion, Voyages_Agree_With_An_Independent_Computation) {
    const auto Rows = Golden_Voyages();
    ASSERT_EQ(Rows.size(), 55U);
    for (const auto& Row : Rows) {
        ASSERT_EQ(Row.size(), 27U);
        Ship_Bench B([&](Simulator_State& S) {
            S.Of<Navdata_State>().Max_Speed_Ahead = Single(Row[5]);
            S.Of<Navdata_State>().Max_Speed_Astern = Single(Row[6]);
            S.Of<Navdata_State>().Max_Rudder = Single(Row[7]);
        });
        Sail(B, Row);
        const Simulator_State& S = B.State();
        const std::string Which = "from " + std::to_string(Row[0]) + ", throttle " + std::to_string(Row[3]) +
                                  ", rate " + std::to_string(Row[4]);
        EXPECT_NEAR(S.Of<Navdata_State>().Nav_Lat, Row[15], 1e-9) << Which;
        EXPECT_LT(Apart_deg(S.Of<Navdata_State>().Nav_Lon, Row[16]), 1e-8) << Which;
        EXPECT_LT(Apart_deg(S.Of<Navdata_State>().Nav_HDG, Row[17]), 1e-8) << Which;
        EXPECT_LT(Apart_deg(S.Of<Navdata_State>().Nav_COG, Row[18]), 1e-8) << Which;
        EXPECT_NEAR(S.Of<GNSS_State>().GNSS_SOG[1], Row[19], 1e-6) << Which;
        EXPECT_NEAR(S.Of<Gyro_State>().Gyro_ROT[1], Row[20], 1e-4) << Which;
        EXPECT_NEAR(S.Of<GNSS_State>().GNSS_Lat[2], Row[21], 1e-9) << Which;
        EXPECT_LT(Apart_deg(S.Of<GNSS_State>().GNSS_Lon[2], Row[22]), 1e-8) << Which;
        EXPECT_LT(Apart_deg(S.Of<Gyro_State>().Gyro_HDG[1], Row[23]), 1e-4) << Which;
        EXPECT_NEAR(S.Of<Log_State>().Log_Speed[1], Row[24], 1e-5) << Which;
        EXPECT_LT(Apart_deg(S.Of<Navdata_State>().Current_Set, Row[25]), 1e-3) << Which;
        EXPECT_NEAR(S.Of<Navdata_State>().Current_Drift, Row[26], 1e-4) << Which;
        EXPECT_EQ(S.Of<GNSS_State>().GNSS_Lat[1], S.Of<Navdata_State>().Nav_Lat);
        EXPECT_EQ(S.Of<GNSS_State>().GNSS_Lon[1], S.Of<Navdata_State>().Nav_Lon);
        EXPECT_EQ(S.Of<GNSS_State>().GNSS_COG[2], Single(S.Of<Navdata_State>().Nav_COG));
        EXPECT_EQ(S.Of<Gyro_State>().Gyro_HDG[2], Single(S.Of<Navdata_State>().Nav_HDG))
            << "gyro 2 has no offset";
        EXPECT_EQ(S.Of<Log_State>().Log_Speed[2], S.Of<Navdata_State>().Nav_SOG)
            << "log 2 has none either, and no noise";
    }
}

TEST(Ship_Motion, An_Hour_At_Ten_Knots_And_A_Full_Circle) {
    Simulator_State S;
    S.Of<Navdata_State>().Nav_Lat = 40;
    for (int Second = 0; Second < 3600; ++Second) Move_Ship(S, 10, 0);
    EXPECT_NEAR(S.Of<Navdata_State>().Nav_Lat, 40 + 10.0 / 60, 1e-10);
    EXPECT_EQ(S.Of<Navdata_State>().Nav_Lon, 0);
    for (int Second = 0; Second < 360; ++Second) {
        Move_Ship(S, 0, 60);
        EXPECT_NEAR(S.Of<Navdata_State>().Nav_HDG, (Second + 1) % 360, 1e-9);
    }
    const double Lat = S.Of<Navdata_State>().Nav_Lat;
    for (int Second = 0; Second < 100000; ++Second) Move_Ship(S, 0, 0);
    EXPECT_EQ(S.Of<Navdata_State>().Nav_Lat, Lat) << "a ship that lies still does not creep";
    Move_Ship(S, -2.5F, 60);
    EXPECT_NEAR(S.Of<Navdata_State>().Nav_HDG, 359, 1e-9) << "to port on a rate to starboard";
    EXPECT_NEAR(S.Of<Navdata_State>().Nav_COG, 179, 1e-9);
    EXPECT_LT(S.Of<Navdata_State>().Nav_Lat, Lat);
}

// A slow turn is less in a second than the heading list shows.
TEST(Ship_Motion, A_Slow_Turn_Turns_The_Ship) {
    Ship_Bench B;
    B.Place(B.Ship().sldRudder, 1);
    B.Run_s(600);
    EXPECT_NEAR(B.Nav().Nav_HDG, 1, 1e-6);
    EXPECT_EQ(B.Ship().cmbHDG.Text(), "001.0");
}

void Expect_Sane(const Simulator_State& S, const std::string& Which) {
    for (int I = 1; I <= 2; ++I) {
        EXPECT_LE(std::abs(S.Of<GNSS_State>().GNSS_Lat[I]), 90) << Which;
        EXPECT_LE(std::abs(S.Of<GNSS_State>().GNSS_Lon[I]), 180) << Which;
        EXPECT_TRUE(std::isfinite(S.Of<GNSS_State>().GNSS_SOG[I]) &&
                    std::isfinite(S.Of<Gyro_State>().Gyro_ROT[I]))
            << Which;
        EXPECT_TRUE(S.Of<GNSS_State>().GNSS_COG[I] >= 0 && S.Of<GNSS_State>().GNSS_COG[I] <= 360) << Which;
        EXPECT_TRUE(S.Of<Gyro_State>().Gyro_HDG[I] >= 0 && S.Of<Gyro_State>().Gyro_HDG[I] <= 360) << Which;
        EXPECT_TRUE(std::isfinite(S.Of<Log_State>().Log_Speed[I])) << Which;
    }
    EXPECT_LE(std::abs(S.Of<Navdata_State>().Nav_Lat), 90) << Which;
    EXPECT_LE(std::abs(S.Of<Navdata_State>().Nav_Lon), 180) << Which;
    EXPECT_TRUE(std::isfinite(S.Of<Navdata_State>().Current_Drift) &&
                S.Of<Navdata_State>().Current_Set >= 0 && S.Of<Navdata_State>().Current_Set <= 360)
        << Which;
}

TEST(Ship_Motion, Hours_At_The_Poles_And_Across_The_Date_Line) {
    for (const double Lat : {89.99, -89.99, 90.0, -90.0, 10.0})
        for (const double Lon : {179.999, -179.999, 180.0, -180.0})
            for (const double Heading : {0.0, 90.0, 271.0}) {
                const std::string Which =
                    std::to_string(Lat) + " " + std::to_string(Lon) + " " + std::to_string(Heading);
                Simulator_State S;
                S.Of<Navdata_State>().Nav_Lat = Lat;
                S.Of<Navdata_State>().Nav_Lon = Lon;
                S.Of<Navdata_State>().Nav_HDG = Heading;
                S.Of<Navdata_State>().Lat_Offset = 300;
                S.Of<Navdata_State>().Lon_Offset = -500;
                for (int Second = 0; Second < 3 * 3600; ++Second) {
                    Move_Ship(S, 40, Second % 7 == 0 ? 3.0F : 0.0F);
                    Feed_Sensors(S, 40, 0);
                    if (Second % 60 == 0) Expect_Sane(S, Which);
                }
            }
}

TEST(Ship_Motion, The_Date_Line_Is_Crossed_Both_Ways_And_The_Pole_Is_Not) {
    Simulator_State S;
    S.Of<Navdata_State>().Nav_Lon = 179.9999;
    S.Of<Navdata_State>().Nav_HDG = 90;
    for (int Second = 0; Second < 60; ++Second) Move_Ship(S, 36, 0);
    EXPECT_NEAR(S.Of<Navdata_State>().Nav_Lon, -180 + 0.01 - 0.0001, 1e-9); // 0.6 NM on the equator
    S.Of<Navdata_State>().Nav_HDG = 270;
    for (int Second = 0; Second < 60; ++Second) Move_Ship(S, 36, 0);
    EXPECT_NEAR(S.Of<Navdata_State>().Nav_Lon, 179.9999, 1e-9);

    S.Of<Navdata_State>().Nav_Lat = 89.9999;
    S.Of<Navdata_State>().Nav_HDG = 0;
    for (int Second = 0; Second < 3600; ++Second) Move_Ship(S, 40, 0);
    EXPECT_LT(S.Of<Navdata_State>().Nav_Lat, 90);
    EXPECT_NEAR(S.Of<Navdata_State>().Nav_Lat, 90, 40.0 / 3600 / 60);
    S.Of<Navdata_State>().Nav_HDG = 180;
    for (int Second = 0; Second < 3600; ++Second) Move_Ship(S, 40, 0);
    EXPECT_NEAR(S.Of<Navdata_State>().Nav_Lat, 90 - 40.0 / 60, 40.0 / 3600 / 60)
        << "and it leaves the pole again";
}

// A setup file may hold numbers that no ship has.
TEST(Ship_Motion, A_Frozen_Ship_Feeds_Its_Sensors_Once) {
    Ship_Bench B([](Simulator_State& S) {
        S.Of<Shell_State>().Freeze_Active = true;
        S.Of<Navdata_State>().Nav_SOG = 20;
        S.Of<Navdata_State>().Nav_COG = -90;
        S.Of<Navdata_State>().Nav_Lat = 95;
        S.Of<Navdata_State>().Nav_Lon = -540;
    });
    EXPECT_EQ(B.GNSS().GNSS_COG[1], 270);
    EXPECT_EQ(B.GNSS().GNSS_Lat[1], 90);
    EXPECT_EQ(std::abs(B.GNSS().GNSS_Lon[1]), 180);
    EXPECT_EQ(B.Log().Log_Speed[2], 20);
    // While it is frozen no value of a sensor changes, whatever is done to the window.
    EXPECT_EQ(Shown(B.Ship().cmdFreeze), "continue");
    EXPECT_TRUE(*B.Ship().lblFreeze.Visible);
    B.Place(B.Ship().sldThrottle, -10);
    B.Close(B.Ship());
    B.Choose_Menu("mnuShip");
    B.Run_s(3);
    EXPECT_EQ(B.Log().Log_Speed[2], 20);
    B.Click(B.Ship().cmdFreeze);
    B.Run_s(1.5);
    EXPECT_EQ(B.Log().Log_Speed[2], 4);
}

TEST(Ship_Motion, Numbers_Beyond_All_Ships_Stay_Finite) {
    constexpr float Huge = std::numeric_limits<float>::max();
    for (const float Wild : {Huge, -Huge, 1e30F, -1e30F}) {
        Ship_Bench B([&](Simulator_State& S) {
            S.Of<Navdata_State>().Nav_SOG = S.Of<Navdata_State>().Nav_Rudder = Wild;
            S.Of<Navdata_State>().Max_Speed_Ahead = S.Of<Navdata_State>().Max_Speed_Astern =
                S.Of<Navdata_State>().Max_Rudder = Wild;
            S.Of<Navdata_State>().Nav_Lat = S.Of<Navdata_State>().Nav_Lon = S.Of<Navdata_State>().Nav_HDG =
                S.Of<Navdata_State>().Nav_COG = static_cast<double>(Wild) * 1e200;
            S.Of<Navdata_State>().Lat_Offset = S.Of<Navdata_State>().Lon_Offset =
                static_cast<double>(Wild) * 1e200;
            S.Of<Gyro_State>().Gyro_Offset[1] = S.Of<Log_State>().Log_Offset[1] = Wild;
            S.Of<Navdata_State>().Ship_SOG_Noise_Index = S.Of<Navdata_State>().Ship_ROT_Noise_Index = Wild;
        });
        EXPECT_LE(*B.Ship().sldRudder.Min, 0);
        EXPECT_EQ(*B.Ship().sldRudder.Max, -*B.Ship().sldRudder.Min);
        EXPECT_EQ(B.Ship().cmbSOGNoise.List_Index(), 0);
        Expect_Sane(B.State(), std::to_string(Wild) + " before the first step");
        B.Run_s(5);
        Expect_Sane(B.State(), std::to_string(Wild));
        for (const int Throttle : {-100, 100, 0}) {
            B.Place(B.Ship().sldThrottle, Throttle);
            B.Run_s(5);
            Expect_Sane(B.State(), std::to_string(Wild));
        }
        EXPECT_EQ(B.Take_Boxes(), Texts{});
    }
}

} // namespace
} // namespace brinewright
