// The log window: opening, speed, noise, status and distances, and the sentences that leave it.

#include "sensor_bench.hpp"

namespace brinewright {
namespace {

// From the first draws of seed 0 as the tests of the gyro: 0.159793 0.992145 0.039569 0.597495.
TEST(Log_Noise, Reaches_Water_Speed_And_Drift_But_Not_The_Ground_And_Never_Below_0) {
    Sensor_Bench Bench;
    frmLog& W = Bench.Open_Log();
    for (int I = 0; I < 2; ++I) Bench.Click(W.chkNoise);
    Bench.Set(W.cmbNoise, std::string(" 3")); // can be chosen while noise is off
    EXPECT_EQ(Bench.Log().Log_Noise_Level[1], 3);
    Bench.Click(W.chkNoise);
    Bench.Log().Log_Speed[1] = 7.5F;
    Bench.Nav().Current_Drift = 1.25F;
    EXPECT_EQ(Bench.Tick(W.Sentences["VHW"].Clock), Framed("VWVHW,000.0,T,000.0,M,5.46,N,10.11,K"));
    EXPECT_EQ(Bench.Tick(W.Sentences["VBW"].Clock), Framed("VWVBW,10.45,0.0,A,7.5,0.0,A,0.0,A,0.0,A"));
    EXPECT_EQ(*W.lblCurrentSpeed.Caption, "10.45");
    EXPECT_EQ(Bench.Tick(W.Sentences["VDR"].Clock), Framed("VWVDR,000.0,T,000.0,M,4.7,N"))
        << "from the log's speed";
    EXPECT_EQ(*W.lblCurrentSpeed.Caption, "10.45");

    // A level that the list does not have counts for all but VDR, which goes by the list.
    Bench.Log().Log_Noise_Level[2] = 1.5F;
    Bench.Log().Log_Noise_Enabled[2] = true;
    Bench.Log().Log_Speed[2] = 10;
    frmLog& Second = Bench.Open_Log(2);
    EXPECT_EQ(Second.cmbNoise.List_Index(), -1);
    EXPECT_EQ(Second.cmbNoise.Text(), "");
    EXPECT_EQ(Bench.Tick(Second.Sentences["VBW"].Clock), Framed("VWVBW,10.29,0.0,A,10.0,0.0,A,0.0,A,0.0,A"));
    EXPECT_EQ(Bench.Tick(Second.Sentences["VDR"].Clock), Framed("VWVDR,000.0,T,000.0,M,10.0,N"));
    EXPECT_EQ(Bench.Log().Log_Noise_Level[2], 1.5F);

    Bench.Set(W.cmbNoise, std::string(" 1"));
    Bench.Log().Log_Speed[1] = 0.2F;
    bool Seen_0 = false, Seen_Much = false;
    for (int I = 0; I < 300; ++I) {
        Bench.Tick(W.Sentences["VBW"].Clock);
        const float Speed = W.VBW_Record.Water_Long;
        ASSERT_GE(Speed, 0);
        ASSERT_LE(Speed, 1.2F);
        EXPECT_EQ(W.VBW_Record.Ground_Long, 0.2F);
        Bench.Tick(W.Sentences["VDR"].Clock);
        ASSERT_GE(W.VDR_Record.Drift, 0);
        Seen_0 |= Speed == 0;
        Seen_Much |= Speed > 1.1F;
    }
    EXPECT_TRUE(Seen_0 && Seen_Much);
}

TEST(Log_VLW, Counts_Water_By_The_Log_And_Ground_By_The_GNSS_Of_The_Same_Number) {
    Sensor_Bench Bench;
    Bench.Log().Log_Total_Water[2] = 100; // from before the box was ticked
    Bench.GNSS().GNSS_SOG.Elements = {99, 18};
    Bench.Log().Log_Speed.Elements = {99, 36};
    frmLog& W = Bench.Open_Log(2);
    EXPECT_FALSE(W.cmdResetVLW.Enabled);
    Bench.Set(W.Sentences["VLW"].Interval_List, std::int64_t{4});
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

} // namespace
} // namespace brinewright
