// Heading, turn and attitude of a gyro in Sensor mode: bars and boxes, the simulator's steps, noise, and what
// the sentences make of it.

#include "tests/support/sentence_bench.hpp"

namespace brinewright {
namespace {

void Step(Sentence_Bench& Bench, frmGyro& W) {
    Bench.Sim.Windows.Event([&] { W.timer_Simulator.Tick(); });
}

// Chooses noise and switches it on.
frmGyro& With_Noise(Sentence_Bench& Bench, frmGyro& W, bool Accumulated, const char* Heading,
                    const char* Turn = "0.0", const char* Roll = "0.0", const char* Pitch = "0.0") {
    Bench.Click(W.chkNoise);
    Bench.Click(*W.optAccumulatedNoise.Buttons[Accumulated ? 1 : 0]);
    int Place = 0;
    for (const char* Text : {Heading, Turn, Roll, Pitch})
        Bench.Set(W.cmbNoise[Place++], std::string(Text) + " \xB0");
    return W;
}

TEST(Gyro_Simulator, Without_Noise_Only_The_Ships_Heading_Shows_One_Step_Of_The_Turn) {
    Sentence_Bench Bench;
    frmGyro& W = Bench.Open<frmGyro>();
    Bench.Gyro().Gyro_HDG[1] = 359.8F;
    Bench.Gyro().Gyro_ROT[1] = 30;
    Bench.Click(W.cmdStart);
    Bench.Run_s(0.39);
    EXPECT_EQ(Bench.Nav().Nav_HDG, 0);
    Bench.Run_s(4);
    // 30 degrees a minute by 60: 0.5 degrees in the 0.4 s of a step. A clock's way would be 0.2.
    EXPECT_NEAR(Bench.Nav().Nav_HDG, 0.3, 1e-4);
    EXPECT_EQ(Bench.Gyro().Gyro_HDG[1], 359.8F);
    EXPECT_EQ(Bench.Tick(W, "HDT"), Framed("HEHDT,359.8,T"));
    // The last, which nothing moves, is reported as it is.
    const struct {
        float Heading, Turn;
        double Stepped;
    } Rows[] = {{0.2F, -30, 359.7}, {359.5F, 30, 0}, {359.5F, 29.7F, 359.995}, {-5, 0, -5}};
    for (const auto& Row : Rows) {
        Bench.Gyro().Gyro_HDG[1] = Row.Heading;
        Bench.Gyro().Gyro_ROT[1] = Row.Turn;
        Step(Bench, W);
        EXPECT_NEAR(Bench.Nav().Nav_HDG, Row.Stepped, 1e-4) << Row.Heading;
    }
}

TEST(Gyro_Simulator, Only_Gyro_1_Steers_And_Only_In_Sensor_Mode) {
    Sentence_Bench Bench;
    Bench.Gyro().Gyro_HDG.Elements = {10, 20};
    frmGyro& Second = Bench.Open<frmGyro>(2);
    Step(Bench, Second);
    EXPECT_EQ(Bench.Nav().Nav_HDG, 0);
    EXPECT_EQ(Second.Noisy_HDG, 20);
    frmGyro& First = Bench.Open<frmGyro>();
    Bench.Shell().Mode = "Ship";
    Step(Bench, First);
    EXPECT_EQ(Bench.Nav().Nav_HDG, 0);
    Bench.Shell().Mode = "Sensor";
    Step(Bench, First);
    EXPECT_EQ(Bench.Nav().Nav_HDG, 10);
}

// The numbers of this and the other tests of noise were computed apart, from the first draws of seed 0:
// 0.159793 0.992145 0.039569 0.597495 0.542285 0.057160 0.631528 0.423571.
TEST(Gyro_Simulator, Accumulated_Noise_Moves_Heading_Bar_And_Ship) {
    Sentence_Bench Bench;
    Bench.Gyro().Gyro_HDG[1] = 359.2F;
    Bench.Gyro().Gyro_ROT[1] = 30;
    frmGyro& W = With_Noise(Bench, Bench.Open<frmGyro>(), true, "0.8");
    EXPECT_TRUE(Bench.Gyro().Gyro_Noise_Accumulated[1]);
    EXPECT_EQ(Bench.Gyro().Gyro_Noise_Level[1][0], 4);
    const struct {
        double Heading;
        int Bar;
    } Steps[] = {{359.1557, 3592}, {0.4431, 4},  {0.2064, 2},  {0.8624, 9},
                 {1.4301, 14},     {1.2215, 12}, {1.9320, 19}, {2.3097, 23}};
    for (const auto& Told : Steps) {
        Step(Bench, W);
        EXPECT_NEAR(Bench.Gyro().Gyro_HDG[1], Told.Heading, 3e-4);
        EXPECT_EQ(Bench.Nav().Nav_HDG, Bench.Gyro().Gyro_HDG[1]) << "not rounded by the bar";
        EXPECT_EQ(W.scrHDG.Value(), Told.Bar);
        // Also in the first step, after which the bar stands where it stood.
        EXPECT_EQ(W.Noisy_HDG, static_cast<float>(Told.Bar) / 10) << "rounded by the bar";
    }
    Bench.Choose(W.cmbDecimals, 3);
    EXPECT_EQ(Bench.Tick(W, "HDT").substr(0, 12), "$HEHDT,002.3");
    EXPECT_NEAR(W.HDT_Record.Heading, 2.3097, 3e-4);
    EXPECT_EQ(Bench.Tick(W, "PRDID"), Framed("PRDID,000.0,000.0,002.3")) << "the rounded one";

    Bench.Gyro().Gyro_ROT[1] = 0;
    Bench.Gyro().Gyro_HDG[1] = 359.97F; // the bar wraps while the heading stays
    Bench.Set(W.cmbNoise[0], std::string("0.00001"));
    Step(Bench, W);
    EXPECT_EQ(W.scrHDG.Value(), 0);
    EXPECT_EQ(W.Noisy_HDG, 0);
    EXPECT_NEAR(Bench.Gyro().Gyro_HDG[1], 359.97, 1e-3);
}

TEST(Gyro_Simulator, Noise_That_Is_Not_Accumulated_Leaves_The_Heading_Alone) {
    Sentence_Bench Bench;
    Bench.Gyro().Gyro_HDG[1] = 0.3F;
    Bench.Gyro().Gyro_ROT[1] = -12;
    frmGyro& W = With_Noise(Bench, Bench.Open<frmGyro>(), false, "2.0");
    for (const double Noisy : {358.7392, 2.0686, 358.2583, 0.4900, 0.2691}) {
        Step(Bench, W);
        EXPECT_NEAR(W.Noisy_HDG, Noisy, 3e-4);
        EXPECT_EQ(Bench.Nav().Nav_HDG, W.Noisy_HDG);
        Bench.Tick(W, "THS");
        EXPECT_EQ(W.THS_Record.Heading, W.Noisy_HDG);
        EXPECT_EQ(Bench.Gyro().Gyro_HDG[1], 0.3F);
    }
}

} // namespace
} // namespace brinewright
