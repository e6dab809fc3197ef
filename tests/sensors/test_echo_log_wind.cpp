// Echo sounder, log and wind gauge: noise, distances, units, what they keep and what they send.

#include "tests/support/sentence_bench.hpp"

namespace brinewright {
namespace {

TEST(Echosounder, Both_Start_From_The_Kept_Depth_And_Only_The_First_Writes_It) {
    Sentence_Bench Bench;
    Bench.Echo().Echo_Depth = 512.25F;
    frmEchosounder& First = Bench.Open<frmEchosounder>();
    frmEchosounder& Second = Bench.Open<frmEchosounder>(2);
    EXPECT_EQ(Bench.Echo().Echo_Depth, 512.25F) << "showing it has changed it";
    EXPECT_EQ(First.scrDepth.Value(), 4000);
    EXPECT_EQ(Second.Depth_Value, 512.25F);
    Second.scrDepth.Set_Value(70);
    EXPECT_EQ(Second.Depth_Value, 7);
    EXPECT_EQ(Bench.Echo().Echo_Depth, 512.25F);
    First.scrDepth.Set_Value(90);
    EXPECT_EQ(Bench.Echo().Echo_Depth, 9);
    EXPECT_EQ(Bench.Tick(Second, "DPT"), Framed("SDDPT,7.0,0.0,400.0"));
    EXPECT_EQ(Bench.Sent[0].Port, 25);

    Bench.Close(First);
    Bench.Echo().Echo_Depth = -3;
    EXPECT_EQ(Bench.Tick(Bench.Open<frmEchosounder>(), "DPT"), Framed("SDDPT,0.0,0.0,400.0"));
}

TEST(Echosounder, Noise_Stays_Within_Its_Bound_And_Above_The_Bottom) {
    Sentence_Bench Bench;
    Bench.Echo().Echo_Noise_Enabled[2] = true;
    Bench.Echo().Echo_Noise_Level[2] = 8;
    frmEchosounder& W = Bench.Open<frmEchosounder>(2);
    EXPECT_TRUE(W.chkNoise.Value());
    EXPECT_EQ(W.cmbNoise.Text(), "8");
    double Least = 1e9, Most = -1e9;
    const auto Run = [&](double Depth_m, int Times) {
        W.scrDepth.Set_Value(std::llround(Depth_m * 10));
        Least = 1e9, Most = -1e9;
        int Different = 0;
        for (int I = 0; I < Times; ++I) {
            for (const char* Type : {"DBT", "DPT"}) Bench.Tick(W, Type);
            const double DBT_m = W.DBT_Record.Depth_Metres, DPT_m = W.DPT_Record.Depth;
            Least = std::min({Least, DBT_m, DPT_m}), Most = std::max({Most, DBT_m, DPT_m});
            Different += std::abs(DBT_m - DPT_m) > 0.1 ? 1 : 0;
        }
        EXPECT_GT(Different, Times / 2) << "one draw for both";
    };
    Run(100, 400);
    EXPECT_GE(Least, 92);
    EXPECT_LE(Most, 108);
    EXPECT_LT(Least, 93);
    EXPECT_GT(Most, 107);
    Run(1, 200);
    EXPECT_EQ(Least, 0);

    Bench.Click(W.chkNoise);
    Bench.Choose(W.cmbNoise, 20);
    EXPECT_FALSE(Bench.Echo().Echo_Noise_Enabled[2]);
    EXPECT_EQ(Bench.Echo().Echo_Noise_Level[2], 20);
    EXPECT_EQ(W.Depth_Value, 1);
    EXPECT_EQ(Bench.Tick(W, "DPT"), Framed("SDDPT,1.0,0.0,400.0"));
}

// From the first draws of seed 0 as the tests of the gyro: 0.159793 0.992145 0.039569 0.597495.
TEST(Log_Noise, Reaches_Water_Speed_And_Drift_But_Not_The_Ground_And_Never_Below_0) {
    Sentence_Bench Bench;
    frmLog& W = Bench.Open<frmLog>();
    for (int I = 0; I < 2; ++I) Bench.Click(W.chkNoise);
    Bench.Set(W.cmbNoise, std::string(" 3")); // can be chosen while noise is off
    EXPECT_EQ(Bench.Log().Log_Noise_Level[1], 3);
    Bench.Click(W.chkNoise);
    Bench.Log().Log_Speed[1] = 7.5F;
    Bench.Nav().Current_Drift = 1.25F;
    EXPECT_EQ(Bench.Tick(W, "VHW"), Framed("VWVHW,000.0,T,000.0,M,5.46,N,10.11,K"));
    EXPECT_EQ(Bench.Tick(W, "VBW"), Framed("VWVBW,10.45,0.0,A,7.5,0.0,A,0.0,A,0.0,A"));
    EXPECT_EQ(*W.lblCurrentSpeed.Caption, "10.45");
    EXPECT_EQ(Bench.Tick(W, "VDR"), Framed("VWVDR,000.0,T,000.0,M,4.7,N")) << "from the log's speed";
    EXPECT_EQ(*W.lblCurrentSpeed.Caption, "10.45");

    // A level that the list does not have counts for all but VDR, which goes by the list.
    Bench.Log().Log_Noise_Level[2] = 1.5F;
    Bench.Log().Log_Noise_Enabled[2] = true;
    Bench.Log().Log_Speed[2] = 10;
    frmLog& Second = Bench.Open<frmLog>(2);
    EXPECT_EQ(Second.cmbNoise.List_Index(), -1);
    EXPECT_EQ(Second.cmbNoise.Text(), "");
    EXPECT_EQ(Bench.Tick(Second, "VBW"), Framed("VWVBW,10.29,0.0,A,10.0,0.0,A,0.0,A,0.0,A"));
    EXPECT_EQ(Bench.Tick(Second, "VDR"), Framed("VWVDR,000.0,T,000.0,M,10.0,N"));
    EXPECT_EQ(Bench.Log().Log_Noise_Level[2], 1.5F);

    Bench.Set(W.cmbNoise, std::string(" 1"));
    Bench.Log().Log_Speed[1] = 0.2F;
    bool Seen_0 = false, Seen_Much = false;
    for (int I = 0; I < 300; ++I) {
        Bench.Tick(W, "VBW");
        const float Speed = W.VBW_Record.Water_Long;
        ASSERT_GE(Speed, 0);
        ASSERT_LE(Speed, 1.2F);
        EXPECT_EQ(W.VBW_Record.Ground_Long, 0.2F);
        Bench.Tick(W, "VDR");
        ASSERT_GE(W.VDR_Record.Drift, 0);
        Seen_0 |= Speed == 0;
        Seen_Much |= Speed > 1.1F;
    }
    EXPECT_TRUE(Seen_0 && Seen_Much);
}

TEST(Log_VLW, Counts_Water_By_The_Log_And_Ground_By_The_GNSS_Of_The_Same_Number) {
    Sentence_Bench Bench;
    Bench.Log().Log_Total_Water[2] = 100; // from before the box was ticked
    Bench.GNSS().GNSS_SOG.Elements = {99, 18};
    Bench.Log().Log_Speed.Elements = {99, 36};
    frmLog& W = Bench.Open<frmLog>(2);
    EXPECT_FALSE(W.cmdResetVLW.Enabled);
    Bench.Choose(W.Sentences["VLW"].Interval_List, 4);
    EXPECT_EQ(Bench.Log().Log_VLW_Seconds[2], 5);
    EXPECT_EQ(W.Sentences["VLW"].Clock.Interval_ms(), 0);
    Bench.Click(W.Sentences["VLW"].Box);
    EXPECT_TRUE(W.cmdResetVLW.Enabled);
    Bench.Run_s(20.5);
    ASSERT_EQ(Bench.Sent.size(), 4U);
    EXPECT_EQ(Bench.Sent[0].Text, Framed("VWVLW,0.0500,N,0.05,N,0.0250,N,0.03,N,"));
    EXPECT_EQ(Bench.Sent[3].Text, Framed("VWVLW,0.2000,N,0.2,N,0.1000,N,0.1,N,"));

    Bench.Click(W.cmdResetVLW);
    Bench.Set(W.Sentences["VLW"].Interval_List,
              std::int64_t{1}); // the next is a period away and counts as one
    EXPECT_EQ(Bench.Log().Log_VLW_Seconds[2], 2);
    Bench.Sent.clear();
    Bench.Run_s(2.5);
    ASSERT_EQ(Bench.Sent.size(), 1U);
    EXPECT_EQ(Bench.Sent[0].Text, Framed("VWVLW,0.2200,N,0.02,N,0.1100,N,0.01,N,"));

    Bench.Click(W.Sentences["VLW"].Box);
    EXPECT_FALSE(W.cmdResetVLW.Enabled);
    EXPECT_THROW(Bench.Sim.Windows.User_Click(W.cmdResetVLW), User_Refusal);
    EXPECT_NEAR(Bench.Log().Log_Total_Water[2], 0.22, 1e-6);
    Bench.Run_s(10);
    EXPECT_EQ(Bench.Sent.size(), 1U);
    Bench.Click(W.Sentences["VLW"].Box);
    for (const float Counter : {Bench.Log().Log_Total_Water[2], Bench.Log().Log_Trip_Water[2],
                                Bench.Log().Log_Total_Ground[2], Bench.Log().Log_Trip_Ground[2]})
        EXPECT_EQ(Counter, 0);
    EXPECT_EQ(Bench.Log().Log_VLW_Seconds[1], 0);
}

void Set_Wind(Sentence_Bench& Bench, int k, float Speed, float From_deg) {
    Bench.Wind().Wind_Speed[k] = Speed;
    Bench.Wind().Wind_Direction[k] = From_deg;
}

TEST(Wind_Gauge, Sends_Relative_Wind_From_Its_Own_Gyro_And_Log) {
    Sentence_Bench Bench;
    for (const int k : {1, 2}) Set_Wind(Bench, k, 10, 0);
    Bench.Log().Log_Speed[1] = 5;
    Bench.Gyro().Gyro_HDG[2] = 180;
    Bench.Wind().Wind_Relative_Ref[1] = Bench.Wind().Wind_Relative_Ref[2] = true;
    frmWind& First = Bench.Open<frmWind>();
    frmWind& Second = Bench.Open<frmWind>(2);
    EXPECT_EQ(Bench.Tick(First, "MWV"), Framed("WIMWV,000.0,R,015.0,N,A"));
    EXPECT_EQ(Bench.Sent[0].Port, 26);
    EXPECT_EQ(*First.lblRelativeSpeed.Caption, "15");
    EXPECT_EQ(*First.lblRelativeDir.Caption, "000");
    EXPECT_EQ(*First.lblRelativeWind.Caption, "log 1 and  gyro 1");
    EXPECT_EQ(Bench.Tick(Second, "MWV"), Framed("WIMWV,180.0,R,010.0,N,A"));
    EXPECT_EQ(Bench.Sent[0].Port, 27);
    EXPECT_EQ(*Second.lblRelativeDir.Caption, "180");
    EXPECT_EQ(*Second.lblRelativeWind.Caption, "log 2 and gyro 2");

    // The label follows the ship by itself, in both modes.
    Bench.Log().Log_Speed[1] = 7;
    Bench.Run_s(1.5);
    EXPECT_EQ(*First.lblRelativeSpeed.Caption, "15");
    Bench.Run_s(1);
    EXPECT_EQ(*First.lblRelativeSpeed.Caption, "17");
    Bench.Log().Log_Speed[1] = -30; // faster astern than the wind blows from ahead
    EXPECT_EQ(Bench.Tick(First, "MWV"), Framed("WIMWV,000.0,R,-020.0,N,A"));
    EXPECT_EQ(*First.lblRelativeSpeed.Caption, "-20");
    EXPECT_EQ(*First.lblWindSpeed.Caption, "-20.0");
}

TEST(Wind_Gauge, Units_Count_In_Every_Sentence) {
    Sentence_Bench Bench;
    Set_Wind(Bench, 1, 3600, 90); // enough for every digit of the factors to show
    Bench.Gyro().Gyro_HDG[1] = 90;
    Bench.Log().Log_Speed[1] = 10;
    Bench.Wind().Wind_Relative_Ref[1] = true;
    frmWind& W = Bench.Open<frmWind>();
    EXPECT_EQ(Entries(W.cmbUnits), (Texts{"knots", "m/s", "km/h"}));
    // 3600 m/s are 6997.840 knots; 3600 km/h are 1000 m/s, 1943.844 knots. The log adds 10 knots.
    const struct {
        const char* Unit;
        const char* MWD;
        const char* MWV;
        const char* Shown;
    } Rows[] = {{"knots", "3600.0,N,1852.0,M", "3610.0,N", "3610"},
                {"m/s", "6997.84,N,3600.0,M", "3605.14,M", "3605"},
                {"km/h", "1943.84,N,1000.0,M", "3618.52,K", "3619"}};
    for (const auto& Row : Rows) {
        Bench.Type(W.cmbUnits, Row.Unit);
        EXPECT_EQ(*W.lblUnit[0].Caption, Row.Unit);
        EXPECT_EQ(*W.lblUnit[1].Caption, Row.Unit);
        EXPECT_EQ(*W.lblRelativeSpeed.Caption, Row.Shown) << "worked out at once";
        EXPECT_EQ(Bench.Tick(W, "MWD"), Framed(std::string("WIMWD,090.0,T,090.0,M,") + Row.MWD));
        EXPECT_EQ(Bench.Tick(W, "MWV"), Framed(std::string("WIMWV,000.0,R,") + Row.MWV + ",A"));
        EXPECT_EQ(Bench.Wind().Wind_Speed[1], 3600);
    }
}

TEST(Wind_Gauge, Noise_Reaches_MWV_Alone_And_Stays_In_Bounds) {
    Sentence_Bench Bench;
    Bench.Wind().Wind_Noise_Enabled[2] = true;
    Bench.Wind().Wind_Noise_Level[2][0] = 10;
    Bench.Wind().Wind_Noise_Level[2][1] = 4;
    Set_Wind(Bench, 2, 1, 3);
    frmWind& W = Bench.Open<frmWind>(2);
    EXPECT_EQ(W.cmbNoise[0].Text(), "10");
    EXPECT_EQ(W.cmbNoise[1].Items().size(), 21U);
    // One draw for the angle and another for the speed: 0.159793 and 0.992145 are the first of seed 0.
    EXPECT_EQ(Bench.Tick(W, "MWV"), Framed("WIMWV,356.2,T,004.94,N,A"));
    double Left_deg = 0, Right_deg = 0, Least = 99, Most = 0;
    for (int I = 0; I < 400; ++I) {
        Bench.Tick(W, "MWV");
        const double Angle_deg = W.MWV_Record.Angle, Speed = W.MWV_Record.Speed;
        ASSERT_TRUE(Angle_deg >= 0 && Angle_deg < 360) << Angle_deg;
        const double Off_deg = std::remainder(Angle_deg - 3, 360);
        Left_deg = std::min(Left_deg, Off_deg), Right_deg = std::max(Right_deg, Off_deg);
        Least = std::min(Least, Speed), Most = std::max(Most, Speed);
    }
    EXPECT_TRUE(Left_deg >= -10 && Left_deg < -9.5) << Left_deg;
    EXPECT_TRUE(Right_deg <= 10 && Right_deg > 9.5) << Right_deg;
    EXPECT_EQ(Least, 0);
    EXPECT_TRUE(Most <= 5 && Most > 4.8) << Most;
    EXPECT_EQ(Bench.Tick(W, "MWD"), Framed("WIMWD,003.0,T,003.0,M,001.0,N,000.51,M"));
    EXPECT_EQ(Bench.Wind().Wind_Direction[2], 3);

    W.cmbNoise[1].Set_List_Index(20);
    Bench.Click(W.chkNoise);
    EXPECT_EQ(Bench.Wind().Wind_Noise_Level[2][1], 20);
    EXPECT_EQ(Bench.Wind().Wind_Noise_Level[2][0], 10);
    EXPECT_FALSE(Bench.Wind().Wind_Noise_Enabled[2]);
    EXPECT_EQ(Bench.Tick(W, "MWV"), Framed("WIMWV,003.0,T,001.0,N,A"));
}

} // namespace
} // namespace brinewright
