// Heading, turn and attitude of a gyro in Sensor mode: bars and boxes, the simulator's steps, noise, and what
// the sentences make of it.

#include "ownship/navdata_state.hpp"
#include "sensor_bench.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "shell/state/fault_state.hpp"
#include "shell/state/iec450_state.hpp"
#include "shell/state/shell_state.hpp"

namespace brinewright {
namespace {

void Step(Sensor_Bench& Bench, frmGyro& W) {
    Bench.Sim.Windows.Event([&] { W.timer_Simulator.Tick(); });
}

// Chooses noise and switches it on.
frmGyro& With_Noise(Sensor_Bench& Bench, frmGyro& W, bool Accumulated, const char* Heading,
                    const char* Turn = "0.0", const char* Roll = "0.0", const char* Pitch = "0.0") {
    Bench.Click(W.chkNoise);
    Bench.Click(*W.optAccumulatedNoise.Buttons[Accumulated ? 1 : 0]);
    int Place = 0;
    for (const char* Text : {Heading, Turn, Roll, Pitch})
        Bench.Set(W.cmbNoise[Place++], std::string(Text) + " \xB0");
    return W;
}

TEST(Gyro_Sentences, Report_What_Is_Set) {
    Sensor_Bench Bench;
    frmGyro& W = Bench.Open_Gyro(2);
    Bench.S.Of<Gyro_State>().Gyro_HDG[2] = 7.25F;
    Bench.S.Of<Gyro_State>().Gyro_ROT[2] = -5.5F;
    Bench.Set(W.scrRoll, std::int64_t{-123});
    Bench.Set(W.scrPitch, std::int64_t{45});
    EXPECT_EQ(Bench.Tick(W.Sentences["HDT"].Clock), Framed("HEHDT,007.3,T"));
    EXPECT_EQ(Bench.Sent.at(0).Port, 19);
    EXPECT_EQ(*W.lblCurrentHdg.Caption, "007.25");
    EXPECT_EQ(Bench.Tick(W.Sentences["THS"].Clock), Framed("HETHS,007.3,A"));
    EXPECT_EQ(Bench.Tick(W.Sentences["ROT"].Clock), Framed("HEROT,-005.5,A"));
    EXPECT_EQ(Bench.Tick(W.Sentences["HDM"].Clock), "0 sentences");
    EXPECT_EQ(Bench.Tick(W.Sentences["ATT"].Clock), Framed("PFEC,HEatt,007.25,004.5,-012.3"));
    EXPECT_EQ(Bench.Tick(W.Sentences["PRDID"].Clock), Framed("PRDID,004.5,-012.3,007.25"));
    EXPECT_EQ(*W.lblCurrentRot.Caption, "-005.5");
    EXPECT_EQ(*W.lblCurrentRoll.Caption, "-12.3");
    EXPECT_EQ(*W.lblCurrentPitch.Caption, "4.5");

    Bench.Type(W.txtTalker, "gp");
    Bench.Set(W.cmbDecimals, std::int64_t{2});
    Bench.Set(W.cmbModeIndicator, std::string("V=Not valid"));
    EXPECT_EQ(Bench.Tick(W.Sentences["THS"].Clock), Framed("GPTHS,007.25,V"));
    EXPECT_EQ(Bench.Tick(W.Sentences["ROT"].Clock), Framed("GPROT,-005.50,A"));
    EXPECT_EQ(Bench.Tick(W.Sentences["ATT"].Clock), Framed("PFEC,GPatt,007.25,004.5,-012.3"));
    EXPECT_EQ(Bench.S.Of<Gyro_State>().Gyro_Talker[2], "GP");
    EXPECT_EQ(Bench.S.Of<Gyro_State>().Gyro_Talker[1], "HE");
    EXPECT_EQ(Bench.S.Of<Gyro_State>().Gyro_Decimals[1], 1);

    Bench.Sim.State.Of<Fault_State>().Fault_No_Checksum = true;
    EXPECT_EQ(Bench.Tick(W.Sentences["HDT"].Clock), "$GPHDT,007.25,T");
    Bench.S.Of<IEC450_State>().IEC450_Enabled = Bench.S.Of<IEC450_State>().Use_n_Tag = true;
    EXPECT_EQ(Bench.Tick(W.Sentences["PRDID"].Clock).substr(0, 5), "\\n:1*");
}

TEST(Gyro_Bars, The_Heading_Bar_Wraps_And_Noise_Keeps_It_From_The_Heading) {
    Sensor_Bench Bench;
    frmGyro& W = Bench.Open_Gyro();
    Bench.Set(W.scrHDG, std::int64_t{-1});
    EXPECT_EQ(W.scrHDG.Value(), 3599);
    EXPECT_EQ(Bench.S.Of<Gyro_State>().Gyro_HDG[1], 359.9F);
    EXPECT_EQ(W.txtHDG.Text(), "359.9");
    Bench.Set(W.scrHDG, std::int64_t{3600});
    EXPECT_EQ(W.scrHDG.Value(), 0);
    EXPECT_EQ(Bench.S.Of<Gyro_State>().Gyro_HDG[1], 0);
    EXPECT_EQ(W.Noisy_HDG, 0);

    Bench.Click(W.chkNoise);
    EXPECT_TRUE(Bench.S.Of<Gyro_State>().Gyro_Noise_Enabled[1]);
    Bench.Set(W.scrHDG, std::int64_t{1234});
    EXPECT_EQ(W.Noisy_HDG, 123.4F);
    EXPECT_EQ(Bench.S.Of<Gyro_State>().Gyro_HDG[1], 0);
    EXPECT_EQ(Bench.Tick(W.Sentences["HDT"].Clock), Framed("HEHDT,123.4,T"));
    Step(Bench, W);
    EXPECT_EQ(Bench.Tick(W.Sentences["HDT"].Clock), Framed("HEHDT,000.0,T"));
    EXPECT_EQ(Bench.S.Of<Gyro_State>().Gyro_HDG[2], 0);

    Bench.Set(W.scrHDG, std::int64_t{1000});
    Bench.Click(W.chkNoise);
    EXPECT_EQ(Bench.S.Of<Gyro_State>().Gyro_HDG[1], 0);
    EXPECT_EQ(W.txtHDG.Text(), "100.0");
    Bench.Type(W.txtHDG, "100"); // where the bar stands already
    EXPECT_EQ(Bench.S.Of<Gyro_State>().Gyro_HDG[1], 100);
}

TEST(Gyro_Bars, Typed_Values_Move_Their_Bar_Or_Are_Refused_With_A_Box) {
    Sensor_Bench Bench;
    frmGyro& W = Bench.Open_Gyro();
    const struct {
        Text_Box& Box;
        float& Value;
        const char* Typed;
        float Wanted;
        const char* Shown;
        bool Refused;
    } Rows[] = {
        {W.txtHDG, Bench.S.Of<Gyro_State>().Gyro_HDG[1], "123,44", 123.4F, "123.4", false},
        {W.txtHDG, Bench.S.Of<Gyro_State>().Gyro_HDG[1], "123.42", 123.4F, "123.4", false},
        {W.txtHDG, Bench.S.Of<Gyro_State>().Gyro_HDG[1], "361", 123.4F, "123.4", true},
        {W.txtHDG, Bench.S.Of<Gyro_State>().Gyro_HDG[1], "-1e300", 123.4F, "123.4", true},
        {W.txtHDG, Bench.S.Of<Gyro_State>().Gyro_HDG[1], "360", 0, "000.0", false},
        {W.txtHDG, Bench.S.Of<Gyro_State>().Gyro_HDG[1], "7", 7, "007.0", false},
        {W.txtHDG, Bench.S.Of<Gyro_State>().Gyro_HDG[1], "north", 0, "000.0", false},
        {W.txtROT, Bench.S.Of<Gyro_State>().Gyro_ROT[1], "-29.95", -30, "-30.0", false},
        {W.txtROT, Bench.S.Of<Gyro_State>().Gyro_ROT[1], "30.1", -30, "-30.0", true},
        {W.txtROT, Bench.S.Of<Gyro_State>().Gyro_ROT[1], "nan", 0, "0.0", false},
        {W.txtRoll, W.Roll_Value, "15", 15, "15.0", false},
        {W.txtRoll, W.Roll_Value, "-16", 15, "15.0", true},
        {W.txtPitch, W.Pitch_Value, "-15 deg", -15, "-15.0", false},
        {W.txtPitch, W.Pitch_Value, "1e999", -15, "-15.0", true},
    };
    for (const auto& Row : Rows) {
        Bench.Type(Row.Box, Row.Typed);
        EXPECT_EQ(Row.Value, Row.Wanted) << Row.Box.Name << " " << Row.Typed;
        EXPECT_EQ(Row.Box.Text(), Row.Shown) << Row.Box.Name << " " << Row.Typed;
        EXPECT_EQ(!Bench.Take_Boxes().empty(), Row.Refused) << Row.Box.Name << " " << Row.Typed;
    }
    EXPECT_EQ(W.scrPitch.Value(), -150);
    EXPECT_GT(W.scrPitch.Min, W.scrPitch.Max) << "bow up stands at the top";
}

TEST(Gyro_Simulator, Without_Noise_Only_The_Ships_Heading_Shows_One_Step_Of_The_Turn) {
    Sensor_Bench Bench;
    frmGyro& W = Bench.Open_Gyro();
    Bench.S.Of<Gyro_State>().Gyro_HDG[1] = 359.8F;
    Bench.S.Of<Gyro_State>().Gyro_ROT[1] = 30;
    Bench.Click(W.cmdStart);
    Bench.Run_s(0.39);
    EXPECT_EQ(Bench.S.Of<Navdata_State>().Nav_HDG, 0);
    Bench.Run_s(4);
    // 30 degrees a minute by 60: 0.5 degrees in the 0.4 s of a step. A clock's way would be 0.2.
    EXPECT_NEAR(Bench.S.Of<Navdata_State>().Nav_HDG, 0.3, 1e-4);
    EXPECT_EQ(Bench.S.Of<Gyro_State>().Gyro_HDG[1], 359.8F);
    EXPECT_EQ(Bench.Tick(W.Sentences["HDT"].Clock), Framed("HEHDT,359.8,T"));
    // The last, which nothing moves, is reported as it is.
    const struct {
        float Heading, Turn;
        double Stepped;
    } Rows[] = {{0.2F, -30, 359.7}, {359.5F, 30, 0}, {359.5F, 29.7F, 359.995}, {-5, 0, -5}};
    for (const auto& Row : Rows) {
        Bench.S.Of<Gyro_State>().Gyro_HDG[1] = Row.Heading;
        Bench.S.Of<Gyro_State>().Gyro_ROT[1] = Row.Turn;
        Step(Bench, W);
        EXPECT_NEAR(Bench.S.Of<Navdata_State>().Nav_HDG, Row.Stepped, 1e-4) << Row.Heading;
    }
}

TEST(Gyro_Simulator, Only_Gyro_1_Steers_And_Only_In_Sensor_Mode) {
    Sensor_Bench Bench;
    Bench.S.Of<Gyro_State>().Gyro_HDG.Elements = {10, 20};
    frmGyro& Second = Bench.Open_Gyro(2);
    Step(Bench, Second);
    EXPECT_EQ(Bench.S.Of<Navdata_State>().Nav_HDG, 0);
    EXPECT_EQ(Second.Noisy_HDG, 20);
    frmGyro& First = Bench.Open_Gyro(1);
    Bench.S.Of<Shell_State>().Mode = "Ship";
    Step(Bench, First);
    EXPECT_EQ(Bench.S.Of<Navdata_State>().Nav_HDG, 0);
    Bench.S.Of<Shell_State>().Mode = "Sensor";
    Step(Bench, First);
    EXPECT_EQ(Bench.S.Of<Navdata_State>().Nav_HDG, 10);
}

// The numbers of this and the other tests of noise were computed apart, from the first draws of seed 0:
// 0.159793 0.992145 0.039569 0.597495 0.542285 0.057160 0.631528 0.423571.
TEST(Gyro_Simulator, Accumulated_Noise_Moves_Heading_Bar_And_Ship) {
    Sensor_Bench Bench;
    Bench.S.Of<Gyro_State>().Gyro_HDG[1] = 359.2F;
    Bench.S.Of<Gyro_State>().Gyro_ROT[1] = 30;
    frmGyro& W = With_Noise(Bench, Bench.Open_Gyro(), true, "0.8");
    EXPECT_TRUE(Bench.S.Of<Gyro_State>().Gyro_Noise_Accumulated[1]);
    EXPECT_EQ(Bench.S.Of<Gyro_State>().Gyro_Noise_Level[1][0], 4);
    const struct {
        double Heading;
        int Bar;
    } Steps[] = {{359.1557, 3592}, {0.4431, 4},  {0.2064, 2},  {0.8624, 9},
                 {1.4301, 14},     {1.2215, 12}, {1.9320, 19}, {2.3097, 23}};
    for (const auto& Told : Steps) {
        Step(Bench, W);
        EXPECT_NEAR(Bench.S.Of<Gyro_State>().Gyro_HDG[1], Told.Heading, 3e-4);
        EXPECT_EQ(Bench.S.Of<Navdata_State>().Nav_HDG, Bench.S.Of<Gyro_State>().Gyro_HDG[1])
            << "not rounded by the bar";
        EXPECT_EQ(W.scrHDG.Value(), Told.Bar);
        // Also in the first step, after which the bar stands where it stood.
        EXPECT_EQ(W.Noisy_HDG, static_cast<float>(Told.Bar) / 10) << "rounded by the bar";
    }
    Bench.Set(W.cmbDecimals, std::int64_t{3});
    EXPECT_EQ(Bench.Tick(W.Sentences["HDT"].Clock).substr(0, 12), "$HEHDT,002.3");
    EXPECT_NEAR(W.HDT_Record.Heading, 2.3097, 3e-4);
    EXPECT_EQ(Bench.Tick(W.Sentences["PRDID"].Clock), Framed("PRDID,000.0,000.0,002.3")) << "the rounded one";

    Bench.S.Of<Gyro_State>().Gyro_ROT[1] = 0;
    Bench.S.Of<Gyro_State>().Gyro_HDG[1] = 359.97F; // the bar wraps while the heading stays
    Bench.Set(W.cmbNoise[0], std::string("0.00001"));
    Step(Bench, W);
    EXPECT_EQ(W.scrHDG.Value(), 0);
    EXPECT_EQ(W.Noisy_HDG, 0);
    EXPECT_NEAR(Bench.S.Of<Gyro_State>().Gyro_HDG[1], 359.97, 1e-3);
}

TEST(Gyro_Simulator, Noise_That_Is_Not_Accumulated_Leaves_The_Heading_Alone) {
    Sensor_Bench Bench;
    Bench.S.Of<Gyro_State>().Gyro_HDG[1] = 0.3F;
    Bench.S.Of<Gyro_State>().Gyro_ROT[1] = -12;
    frmGyro& W = With_Noise(Bench, Bench.Open_Gyro(), false, "2.0");
    for (const double Noisy : {358.7392, 2.0686, 358.2583, 0.4900, 0.2691}) {
        Step(Bench, W);
        EXPECT_NEAR(W.Noisy_HDG, Noisy, 3e-4);
        EXPECT_EQ(Bench.S.Of<Navdata_State>().Nav_HDG, W.Noisy_HDG);
        Bench.Tick(W.Sentences["THS"].Clock);
        EXPECT_EQ(W.THS_Record.Heading, W.Noisy_HDG);
        EXPECT_EQ(Bench.S.Of<Gyro_State>().Gyro_HDG[1], 0.3F);
    }
}

TEST(Gyro_Noise, Turn_And_Attitude_Draw_In_Each_Sentence) {
    Sensor_Bench Bench;
    frmGyro& W = With_Noise(Bench, Bench.Open_Gyro(), true, "0.0", "4.0", "6.0", "0.8");
    Bench.S.Of<Gyro_State>().Gyro_ROT[1] = 12.5F;
    Bench.Type(W.txtRoll, "-3.2");
    Bench.Type(W.txtPitch, "1.5");
    EXPECT_EQ(Bench.Tick(W.Sentences["ROT"].Clock), Framed("HEROT,009.8,A"));
    EXPECT_EQ(*W.lblCurrentRot.Caption, "009.78");
    EXPECT_EQ(Bench.Tick(W.Sentences["ATT"].Clock), Framed("PFEC,HEatt,000.0,000.76,002.71"));
    EXPECT_EQ(Bench.Tick(W.Sentences["PRDID"].Clock), Framed("PRDID,001.57,-002.03,000.0"));
    EXPECT_EQ(*W.lblCurrentRoll.Caption, "-2.03");
    EXPECT_EQ(W.Roll_Value, -3.2F);
    EXPECT_EQ(Bench.S.Of<Gyro_State>().Gyro_ROT[1], 12.5F);
}

TEST(Gyro_Noise, The_Lists_Take_A_Typed_Number_That_Is_Not_Kept) {
    Sensor_Bench Bench;
    frmGyro& W = Bench.Open_Gyro();
    for (int I = 0; I < 2; ++I) Bench.Click(W.chkNoise);
    Bench.Set(W.cmbNoise[1], std::int64_t{8}); // noise can be chosen while it is off
    Bench.Click(*W.optAccumulatedNoise.Buttons[1]);
    EXPECT_TRUE(Bench.S.Of<Gyro_State>().Gyro_Noise_Accumulated[1]);
    EXPECT_EQ(W.Noise_Max[1], 4);
    Bench.Click(W.chkNoise);
    Bench.Set(W.cmbNoise[1], std::string("2,5 x"));
    EXPECT_EQ(W.Noise_Max[1], 2.5F);
    EXPECT_EQ(Bench.S.Of<Gyro_State>().Gyro_Noise_Level[1][1], 8);
    Bench.Set(W.cmbNoise[1], std::string("much"));
    EXPECT_EQ(W.Noise_Max[1], 0);
    // However much is typed, the heading stays in its circle and numbers stay numbers.
    Bench.Set(W.cmbNoise[0], std::string("-1e300"));
    EXPECT_EQ(W.Noise_Max[0], -360);
    for (const auto& List : W.cmbNoise) Bench.Set(*List, std::string("1e300"));
    EXPECT_EQ(W.Noise_Max[3], 360);
    for (int I = 0; I < 500; ++I) {
        Step(Bench, W);
        ASSERT_TRUE(Bench.S.Of<Gyro_State>().Gyro_HDG[1] >= 0 && Bench.S.Of<Gyro_State>().Gyro_HDG[1] < 360)
            << Bench.S.Of<Gyro_State>().Gyro_HDG[1];
    }
    Bench.S.Of<Gyro_State>().Gyro_ROT[1] = 3e38F;
    for (int I = 0; I < 50; ++I) {
        Step(Bench, W);
        Bench.Tick(W.Sentences["ROT"].Clock);
        Bench.Tick(W.Sentences["ATT"].Clock);
        for (const float Number :
             {Bench.S.Of<Gyro_State>().Gyro_HDG[1], W.ROT_Record.Rate, W.ATT_Record.Roll})
            ASSERT_TRUE(std::isfinite(Number));
    }
    EXPECT_TRUE(Bench.Take_Boxes().empty());
    Bench.Close(W);
    EXPECT_EQ(Bench.Open_Gyro().cmbNoise[1].List_Index(), 8);
}

} // namespace
} // namespace brinewright
