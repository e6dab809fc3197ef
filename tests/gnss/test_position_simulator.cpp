// The position of a GNSS window: steps, noise, held offset and the position boxes.

#include "tests/support/sentence_bench.hpp"

#include <cmath>
#include <numbers>

namespace brinewright {
namespace {

constexpr double WGS84_a_m = 6378137.0, WGS84_f = 1 / 298.257223563;

struct Point {
    double Lat = 0, Lon = 0; // degrees
};

double Radians(double Degrees) { return Degrees * std::numbers::pi / 180; }

// An independent step: the curvature radii of the ellipsoid, integrated along the geodesic in many small
// pieces.
Point Stepped(Point From, double Distance_m, double Azimuth_deg) {
    constexpr int Pieces = 1000;
    const double e2 = WGS84_f * (2 - WGS84_f), ds = Distance_m / Pieces;
    double Lat = Radians(From.Lat), Lon = Radians(From.Lon), Azimuth = Radians(Azimuth_deg);
    for (int I = 0; I < Pieces; ++I) {
        const double W2 = 1 - e2 * std::pow(std::sin(Lat), 2);
        const double Meridian_m = WGS84_a_m * (1 - e2) / std::pow(W2, 1.5),
                     Normal_m = WGS84_a_m / std::sqrt(W2);
        const double Turn = std::sin(Azimuth) * std::tan(Lat) / Normal_m * ds;
        Lon += std::sin(Azimuth + Turn / 2) / (Normal_m * std::cos(Lat)) * ds;
        Lat += std::cos(Azimuth + Turn / 2) / Meridian_m * ds;
        Azimuth += Turn;
    }
    return {Lat * 180 / std::numbers::pi, Lon * 180 / std::numbers::pi};
}

// Metres north and east of From, on the ellipsoid; for points close together.
Point Metres_Between(Point From, Point To) {
    const double e2 = WGS84_f * (2 - WGS84_f), W2 = 1 - e2 * std::pow(std::sin(Radians(From.Lat)), 2);
    return {Radians(To.Lat - From.Lat) * WGS84_a_m * (1 - e2) / std::pow(W2, 1.5),
            Radians(To.Lon - From.Lon) * WGS84_a_m / std::sqrt(W2) * std::cos(Radians(From.Lat))};
}

Point True_Position(const Sentence_Bench& B, int I = 1) {
    return {B.GNSS().GNSS_Start_Lat[I], B.GNSS().GNSS_Start_Lon[I]};
}
Point Reported(const Sentence_Bench& B, int I = 1) { return {B.GNSS().GNSS_Lat[I], B.GNSS().GNSS_Lon[I]}; }

frmPosition& Start_At(Sentence_Bench& Bench, Point At, float SOG, float COG, std::int16_t I = 1) {
    Bench.GNSS().GNSS_Start_Lat[I] = At.Lat;
    Bench.GNSS().GNSS_Start_Lon[I] = At.Lon;
    frmPosition& W = Bench.Open<frmPosition>(I);
    Bench.GNSS().GNSS_SOG[I] = SOG;
    Bench.GNSS().GNSS_COG[I] = COG;
    Bench.Click(W.cmdStart);
    return W;
}

void Expect_Near(Point A, Point B, double Tolerance_deg) {
    EXPECT_NEAR(A.Lat, B.Lat, Tolerance_deg);
    EXPECT_NEAR(A.Lon, B.Lon, Tolerance_deg);
}

TEST(Position_Simulator, A_Minute_Of_Steps_Follows_The_Geodesic) {
    constexpr double Millimetre_deg = 1e-8;
    struct Case {
        Point At;
        float SOG, COG;
    };
    for (const Case& C : {Case{{60, 5}, 10, 90}, Case{{-33.9, 18.4}, 40, 217.5F}, Case{{0, -30}, 25, 0},
                          Case{{78.2, 15.6}, 17.3F, 300}}) {
        Sentence_Bench Bench;
        Start_At(Bench, C.At, C.SOG, C.COG);
        EXPECT_EQ(Reported(Bench).Lat, 0) << "nothing is reported before the first tick";
        Bench.Run_To(60.5);
        Point Wanted = C.At;
        for (int I = 0; I < 60; ++I) Wanted = Stepped(Wanted, C.SOG * 1852.0 / 3600, C.COG);
        Expect_Near(Reported(Bench), Wanted, Millimetre_deg);
        Expect_Near(True_Position(Bench), Reported(Bench), 0);
    }
}

TEST(Position_Simulator, Crosses_The_Date_Line_And_Stands_Bit_For_Bit) {
    Sentence_Bench Bench;
    Start_At(Bench, {10, 179.9999}, 40, 90);
    Bench.Run_To(2.5);
    EXPECT_LT(Reported(Bench).Lon, -179.99);
    Sentence_Bench Still;
    const Point At{62.59166666666667, 6.1666666666666661};
    frmPosition& W = Start_At(Still, At, 0, 123);
    Still.Run_To(3600);
    EXPECT_EQ(True_Position(Still).Lat, At.Lat);
    EXPECT_EQ(Reported(Still).Lon, At.Lon);
    Still.Click(W.chkNoise); // " 0 m"
    W.optAccumulatedNoise.Select(1);
    Still.Run_To(7200);
    EXPECT_EQ(Reported(Still).Lat, At.Lat);
    EXPECT_EQ(True_Position(Still).Lon, At.Lon);
}

TEST(Position_Simulator, Shows_The_Reported_Position_In_The_Chosen_Format) {
    Sentence_Bench Bench;
    frmPosition& W = Start_At(Bench, {62 + 35.5 / 60, -(6 + 10.0 / 60)}, 0, 0);
    EXPECT_EQ(W.txtLat.Text(), "62\xB0 35.5000' N");
    EXPECT_EQ(*W.lblLat.Caption, "00\xB0 00.0000' N");
    Bench.Run_To(1.5);
    EXPECT_EQ(*W.lblLon.Caption, "006\xB0 10.0000' W");
    Bench.Shell().LatLon_Format = 1;
    Bench.Run_To(2.5);
    EXPECT_EQ(*W.lblLat.Caption, "62\xB0"
                                 "35'30.000\"N");
}

TEST(Position_Simulator, Noise_Is_Uniform_In_Distance_And_In_Direction) {
    Sentence_Bench Bench;
    Bench.Sim.Services.Random.Seed(7);
    frmPosition& W = Start_At(Bench, {60, 5}, 0, 0);
    Bench.Click(W.chkNoise);
    Bench.Choose(W.cmbNoise, 19);
    constexpr int Draws = 8000, Bins = 8;
    int By_Distance[Bins] = {}, By_Direction[Bins] = {};
    for (int I = 1; I <= Draws; ++I) {
        Bench.Run_To(I + 0.5);
        const Point Error = Metres_Between({60, 5}, Reported(Bench));
        const double Distance_m = std::hypot(Error.Lat, Error.Lon);
        ASSERT_LT(Distance_m, 100.01);
        const double Turn = std::atan2(Error.Lon, Error.Lat) / (2 * std::numbers::pi) + 0.5;
        ++By_Distance[std::min(static_cast<int>(Distance_m / 100 * Bins), Bins - 1)];
        ++By_Direction[std::min(static_cast<int>(Turn * Bins), Bins - 1)];
    }
    // Five standard deviations of a bin's count.
    const double Spread = 5 * std::sqrt(Draws / static_cast<double>(Bins));
    for (int I = 0; I < Bins; ++I) {
        EXPECT_NEAR(By_Distance[I], Draws / Bins, Spread) << I;
        EXPECT_NEAR(By_Direction[I], Draws / Bins, Spread) << I;
    }
    EXPECT_EQ(True_Position(Bench).Lat, 60)
        << "noise that does not accumulate leaves the true position alone";
}

TEST(Position_Simulator, Noise_Accumulates_Only_When_Asked_And_A_Seed_Repeats_It) {
    const auto Walk = [](std::uint64_t Seed, bool Accumulated) {
        Sentence_Bench Bench;
        Bench.Sim.Services.Random.Seed(Seed);
        frmPosition& W = Start_At(Bench, {60, 5}, 10, 0);
        Bench.Click(W.chkNoise);
        Bench.Choose(W.cmbNoise, 10);
        W.optAccumulatedNoise.Select(Accumulated ? 1 : 0);
        Bench.Run_To(400.5);
        return std::pair{True_Position(Bench), Reported(Bench)};
    };
    Point Straight{60, 5};
    for (int I = 0; I < 400; ++I) Straight = Stepped(Straight, 10 * 1852.0 / 3600, 0);
    const auto [True_Plain, Reported_Plain] = Walk(1, false);
    Expect_Near(True_Plain, Straight, 1e-8);
    EXPECT_NE(Reported_Plain.Lat, True_Plain.Lat);
    const auto [True_Walked, Reported_Walked] = Walk(1, true);
    EXPECT_EQ(True_Walked.Lat, Reported_Walked.Lat);
    EXPECT_EQ(True_Walked.Lon, Reported_Walked.Lon);
    const Point Drift = Metres_Between(Straight, True_Walked);
    EXPECT_GT(std::hypot(Drift.Lat, Drift.Lon), 10.0) << "400 steps of up to 10 m wander further than one";
    EXPECT_EQ(Walk(1, true).second.Lat, Reported_Walked.Lat);
    EXPECT_NE(Walk(2, true).second.Lat, Reported_Walked.Lat);
}

TEST(Position_Simulator, A_Held_Offset_Follows_The_True_Position_Of_GNSS_1) {
    Sentence_Bench Bench;
    frmPosition& First = Start_At(Bench, {60, 5}, 0, 0, 1);
    Bench.Click(First.chkNoise);
    Bench.Choose(First.cmbNoise, 19);
    frmPosition& W = Bench.Open<frmPosition>(2);
    Bench.Click(W.chkFixOffset);
    EXPECT_EQ(W.txtLat.Text(), "0.0 m");
    EXPECT_EQ(*W.txtLat.Width, 735);
    Bench.Type(W.txtLat, "-185,2");
    Bench.Type(W.txtLon, "926 m");
    EXPECT_EQ(W.txtLat.Text(), "-185.2 m");
    EXPECT_EQ(W.txtLon.Text(), "926.0 m");
    Bench.Click(W.cmdStart);
    Bench.Run_To(2.5);
    // 185.2 m are a tenth of a minute of latitude; 926 m half a minute, and a whole one of longitude at 60 N.
    Expect_Near(Reported(Bench, 2), {60 - 0.1 / 60, 5 + 1.0 / 60}, 1e-9);
    Expect_Near(True_Position(Bench, 2), Reported(Bench, 2), 0);
}

TEST(Position_Simulator, A_Held_Offset_With_Noise_Reports_Around_The_Origin) {
    Sentence_Bench Bench;
    Start_At(Bench, {60, 5}, 0, 0, 1);
    frmPosition& W = Start_At(Bench, {60, 5}, 10, 45, 2);
    Bench.Click(W.chkFixOffset);
    Bench.Click(W.chkNoise);
    Bench.Choose(W.cmbNoise, 8);
    Bench.Run_To(1.5);
    const Point Off = Metres_Between({0, 0}, Reported(Bench, 2));
    EXPECT_LE(std::hypot(Off.Lat, Off.Lon), 8.001);
    EXPECT_NE(Reported(Bench, 2).Lat, 0);
    EXPECT_EQ(True_Position(Bench, 2).Lat, 60);
    W.optAccumulatedNoise.Select(1);
    Bench.Run_To(2.5);
    EXPECT_LT(std::abs(True_Position(Bench, 2).Lat), 1e-4) << "until the next tick";
    Bench.Click(W.chkNoise);
    Bench.Run_To(3.5);
    EXPECT_EQ(Reported(Bench, 2).Lat, 60);
}

TEST(Position_Simulator, The_Labels_Slip_When_The_Offset_Is_Released) {
    Sentence_Bench Bench;
    frmPosition& W = Bench.Open<frmPosition>(2);
    Bench.Click(W.chkFixOffset);
    EXPECT_EQ(*W.lblStartLat.Caption, "deltaNorth");
    EXPECT_EQ(*W.lblStartLon.Caption, "deltaEast");
    Bench.Click(W.chkFixOffset);
    EXPECT_EQ(*W.lblStartLat.Caption, "Start Lon");
    EXPECT_EQ(*W.lblStartLon.Caption, "deltaEast");
    EXPECT_EQ(*W.txtLon.Width, 1455);
    EXPECT_EQ(W.txtLon.Text(), "000\xB0 00.0000' E");
    frmPosition& First = Bench.Open<frmPosition>();
    EXPECT_THROW(Bench.Sim.Windows.User_Click(First.chkFixOffset), User_Refusal);
}

} // namespace
} // namespace brinewright
