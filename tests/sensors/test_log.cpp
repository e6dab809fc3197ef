// The log window: opening, speed, noise, status and distances, and the sentences that leave it.

#include "gnss/gnss_state.hpp"
#include "ownship/navdata_state.hpp"
#include "sensor_bench.hpp"
#include "sensors/log/log_state.hpp"
#include "shell/state/fault_state.hpp"
#include "shell/state/iec450_state.hpp"
#include "shell/state/shell_state.hpp"

namespace brinewright {
namespace {

TEST(Log_Opening, Fills_The_Lists_And_Restores_The_Settings_Of_Its_Instance) {
    Sensor_Bench Bench;
    Bench.S.Of<Log_State>().Log_Talker[2] = "VD";
    Bench.S.Of<Log_State>().VBW_Interval[2] = 4;
    Bench.S.Of<Log_State>().VDR_Interval[2] = 5; // the list has no such entry
    Bench.S.Of<Log_State>().Log_Noise_Level[2] = 0.7F;
    Bench.S.Of<Log_State>().Log_Noise_Enabled[2] = true;
    Bench.S.Of<Log_State>().Log_Speed[2] = -3.14F; // the ship can go astern
    frmLog& W = Bench.Open_Log(2);
    EXPECT_EQ(W.Tag, "6");
    EXPECT_EQ(W.cmbComPort.Text(), "UDP 60004");
    EXPECT_EQ(Entries(W.Sentences["VHW"].Interval_List),
              (Texts{" 1 sec", " 2 sec", " 3 sec", " 4 sec", " 5 sec"}));
    EXPECT_EQ(W.Sentences["VHW"].Interval_List.List_Index(), 0);
    EXPECT_EQ(W.Sentences["VBW"].Interval_List.Text(), " 5 sec");
    EXPECT_EQ(Bench.S.Of<Log_State>().VDR_Interval[2], 0);
    EXPECT_EQ(Entries(W.cmbNoise),
              (Texts{"0.0", "0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9",
                     " 1",  " 2",  " 3",  " 4",  " 5",  " 6",  " 7",  " 8",  " 9",  " 10"}));
    EXPECT_EQ(W.cmbNoise.Text(), "0.7");
    EXPECT_EQ(Bench.S.Of<Log_State>().Log_Noise_Level[2], 0.7F);
    EXPECT_TRUE(W.chkNoise.Value());
    EXPECT_EQ(Bench.S.Of<Log_State>().Log_Speed[2], -3.14F);
    EXPECT_EQ(*W.lblSpeed.Caption, "-3.1");
    EXPECT_EQ(W.scrSpeed.Value(), 0);
    EXPECT_EQ(Bench.Tick(W.Sentences["VBW"].Clock).substr(0, 7), "$VDVBW,");
    Expect_Texts(W,
                 {"frmSpeed=Speed", "lblSpeedUnit=knots", "chkNoise=Random noise On", "lblMaxNoise=Max noise",
                  "chkInvalid=Flag as invalid", "chkVHW=VHW", "chkVBW=VBW", "chkVDR=VDR", "chkVLW=VLW",
                  "cmdResetVLW=Reset VLW", "lblVLW=VLW Water spd fr Log 2\nVLW Ground spd fr GNSS 2",
                  "lblCurrentTitle=Current value", "lblShipControl=Log control by Ship"});
    EXPECT_THROW(Open_Window(Bench.Sim, "frmLog", 3), Run_Time_Error);
}

TEST(Log_Opening, Enabled_Sentences_Start_A_Stagger_Apart_Without_START) {
    Sensor_Bench Bench;
    Bench.S.Of<Log_State>().VHW_Enabled[1] = Bench.S.Of<Log_State>().VDR_Enabled[1] =
        Bench.S.Of<Log_State>().VLW_Enabled[1] = true;
    Bench.S.Of<Log_State>().VDR_Interval[1] = 1;
    frmLog& W = Bench.Open_Log();
    EXPECT_NEAR(static_cast<double>(Bench.Now_us()), 2 * 150e3, 50);
    Bench.Run_s(4.5);
    EXPECT_EQ(Bench.Count("$VWVHW,"), 4);
    EXPECT_EQ(Bench.Count("$VWVDR,"), 2);
    EXPECT_EQ(Bench.Count("$VWVLW,"), 4);
    EXPECT_EQ(Bench.Sent.size(), 10U);
    Bench.Sent.clear();
    Bench.Click(W.Sentences["VHW"].Box);
    EXPECT_FALSE(Bench.S.Of<Log_State>().VHW_Enabled[1]);
    Bench.Set(W.Sentences["VDR"].Interval_List, std::int64_t{0});
    Bench.Run_s(3.5);
    EXPECT_EQ(Bench.Count("$VWVHW,"), 0);
    EXPECT_EQ(Bench.Count("$VWVDR,"), 3);
}

TEST(Log_Opening, Ship_Mode_Hides_The_Hand_Controls_Alone) {
    Sensor_Bench Bench("Ship");
    frmLog& W = Bench.Open_Log();
    EXPECT_TRUE(W.lblShipControl.Visible);
    for (Visible_Control* Part :
         std::initializer_list<Visible_Control*>{&W.frmSpeed, &W.scrSpeed, &W.lblSpeed, &W.txtSpeed})
        EXPECT_FALSE(Part->Shown()) << Part->Name;
    EXPECT_THROW(Bench.Sim.Windows.User_Set(W.txtSpeed, std::string("5")), User_Refusal);
    Bench.Click(W.chkNoise);
    EXPECT_TRUE(Bench.S.Of<Log_State>().Log_Noise_Enabled[1]);
    Bench.Click(W.chkInvalid);
    EXPECT_EQ(W.VBW_Record.Water_Status, 'V');
}

TEST(Log_Speed, The_Typed_Speed_Outlives_The_Bar) {
    Sensor_Bench Bench;
    frmLog& W = Bench.Open_Log();
    EXPECT_FALSE(W.lblShipControl.Visible);
    const struct {
        const char* Typed;
        float Speed;
        const char* Shown;
        int Bar;
    } Rows[] = {{"12,34 kn", 12.34F, "12.3", 123},
                {"-5", 5, "5.0", 50},
                {"55", 55, "55.0", 400},
                {"40", 40, "40.0", 400},
                {"fast", 0, "0.0", 0},
                {"0.05", 0.05F, "0.1", 0},
                {"1e300", 3.40282347e38F, nullptr, 400}};
    for (const auto& Row : Rows) {
        Bench.Type(W.txtSpeed, Row.Typed);
        EXPECT_EQ(Bench.S.Of<Log_State>().Log_Speed[1], Row.Speed) << Row.Typed;
        EXPECT_EQ(W.scrSpeed.Value(), Row.Bar) << Row.Typed;
        EXPECT_EQ(W.txtSpeed.Text(), *W.lblSpeed.Caption);
        if (Row.Shown) {
            EXPECT_EQ(*W.lblSpeed.Caption, Row.Shown) << Row.Typed;
        }
    }
    Bench.Tick(W.Sentences["VHW"].Clock);
    Bench.Tick(W.Sentences["VLW"].Clock);
    EXPECT_TRUE(std::isfinite(W.VHW_Record.Speed_Kmh));
    EXPECT_TRUE(std::isfinite(W.VLW_Record.Total_Water));
    EXPECT_TRUE(Bench.Take_Boxes().empty());
    Bench.Set(W.scrSpeed, std::int64_t{77});
    EXPECT_EQ(Bench.S.Of<Log_State>().Log_Speed[1], 7.7F);
    EXPECT_EQ(W.txtSpeed.Text(), "7.7");
    EXPECT_EQ(Bench.S.Of<Log_State>().Log_Speed[2], 0);
}

TEST(Log_Sentences, Report_The_Ships_Heading_The_Speed_And_The_Current) {
    Sensor_Bench Bench;
    Bench.S.Of<Navdata_State>().Nav_HDG = 358.25;
    Bench.S.Of<Navdata_State>().Magnetic_Variation = 2.5F;
    Bench.S.Of<Log_State>().Log_Speed[2] = 500;
    Bench.S.Of<Navdata_State>().Current_Set = 1;
    Bench.S.Of<Navdata_State>().Current_Drift = 1.25F;
    frmLog& W = Bench.Open_Log(2);
    EXPECT_EQ(Bench.Tick(W.Sentences["VHW"].Clock), Framed("VWVHW,358.25,T,000.75,M,500.0,N,926.0,K"));
    EXPECT_EQ(Bench.Sent.at(0).Port, 21);
    EXPECT_EQ(*W.lblCurrentSpeed.Caption, "500.0");
    Bench.S.Of<Log_State>().Log_Speed[2] = 5;
    EXPECT_EQ(Bench.Tick(W.Sentences["VBW"].Clock), Framed("VWVBW,5.0,0.0,A,5.0,0.0,A,0.0,A,0.0,A"));
    EXPECT_EQ(Bench.Tick(W.Sentences["VDR"].Clock), Framed("VWVDR,001.0,T,003.5,M,1.3,N"));
    Bench.Click(W.chkInvalid);
    EXPECT_EQ(Bench.Tick(W.Sentences["VBW"].Clock), Framed("VWVBW,5.0,0.0,V,5.0,0.0,V,0.0,V,0.0,V"));
    EXPECT_EQ(Bench.Tick(W.Sentences["VDR"].Clock), Framed("VWVDR,001.0,T,003.5,M,1.3,N"));
    Bench.Click(W.chkInvalid);
    Bench.S.Of<Navdata_State>().Magnetic_Variation = -3;
    Bench.S.Of<Log_State>().Log_Speed[2] = -2.5F;
    EXPECT_EQ(Bench.Tick(W.Sentences["VBW"].Clock), Framed("VWVBW,-2.5,0.0,A,-2.5,0.0,A,0.0,A,0.0,A"));
    EXPECT_EQ(Bench.Tick(W.Sentences["VDR"].Clock), Framed("VWVDR,001.0,T,358.0,M,1.3,N"));
    Bench.S.Of<Navdata_State>().Nav_HDG = 2.9999999999; // just under the circle: 32 bits must not make it one
    Bench.Tick(W.Sentences["VHW"].Clock);
    EXPECT_EQ(W.VHW_Record.Heading_Magnetic, 0);
    Bench.Sim.State.Of<Fault_State>().Fault_No_Checksum = true;
    EXPECT_EQ(Bench.Tick(W.Sentences["VDR"].Clock), "$VWVDR,001.0,T,358.0,M,1.3,N");
    Bench.Sim.State.Of<Fault_State>().Fault_No_Checksum = false;
    Bench.S.Of<IEC450_State>().IEC450_Enabled = Bench.S.Of<IEC450_State>().Use_n_Tag = true;
    EXPECT_EQ(Bench.Tick(W.Sentences["VDR"].Clock),
              "\\" + Framed("n:1").substr(1) + "\\" + Framed("VWVDR,001.0,T,358.0,M,1.3,N"));
}

// From the first draws of seed 0 as the tests of the gyro: 0.159793 0.992145 0.039569 0.597495.
TEST(Log_Noise, Reaches_Water_Speed_And_Drift_But_Not_The_Ground_And_Never_Below_0) {
    Sensor_Bench Bench;
    frmLog& W = Bench.Open_Log();
    for (int I = 0; I < 2; ++I) Bench.Click(W.chkNoise);
    Bench.Set(W.cmbNoise, std::string(" 3")); // can be chosen while noise is off
    EXPECT_EQ(Bench.S.Of<Log_State>().Log_Noise_Level[1], 3);
    Bench.Click(W.chkNoise);
    Bench.S.Of<Log_State>().Log_Speed[1] = 7.5F;
    Bench.S.Of<Navdata_State>().Current_Drift = 1.25F;
    EXPECT_EQ(Bench.Tick(W.Sentences["VHW"].Clock), Framed("VWVHW,000.0,T,000.0,M,5.46,N,10.11,K"));
    EXPECT_EQ(Bench.Tick(W.Sentences["VBW"].Clock), Framed("VWVBW,10.45,0.0,A,7.5,0.0,A,0.0,A,0.0,A"));
    EXPECT_EQ(*W.lblCurrentSpeed.Caption, "10.45");
    EXPECT_EQ(Bench.Tick(W.Sentences["VDR"].Clock), Framed("VWVDR,000.0,T,000.0,M,4.7,N"))
        << "from the log's speed";
    EXPECT_EQ(*W.lblCurrentSpeed.Caption, "10.45");

    // A level that the list does not have counts for all but VDR, which goes by the list.
    Bench.S.Of<Log_State>().Log_Noise_Level[2] = 1.5F;
    Bench.S.Of<Log_State>().Log_Noise_Enabled[2] = true;
    Bench.S.Of<Log_State>().Log_Speed[2] = 10;
    frmLog& Second = Bench.Open_Log(2);
    EXPECT_EQ(Second.cmbNoise.List_Index(), -1);
    EXPECT_EQ(Second.cmbNoise.Text(), "");
    EXPECT_EQ(Bench.Tick(Second.Sentences["VBW"].Clock), Framed("VWVBW,10.29,0.0,A,10.0,0.0,A,0.0,A,0.0,A"));
    EXPECT_EQ(Bench.Tick(Second.Sentences["VDR"].Clock), Framed("VWVDR,000.0,T,000.0,M,10.0,N"));
    EXPECT_EQ(Bench.S.Of<Log_State>().Log_Noise_Level[2], 1.5F);

    Bench.Set(W.cmbNoise, std::string(" 1"));
    Bench.S.Of<Log_State>().Log_Speed[1] = 0.2F;
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
    Bench.S.Of<Log_State>().Log_Total_Water[2] = 100; // from before the box was ticked
    Bench.S.Of<GNSS_State>().GNSS_SOG.Elements = {99, 18};
    Bench.S.Of<Log_State>().Log_Speed.Elements = {99, 36};
    frmLog& W = Bench.Open_Log(2);
    EXPECT_FALSE(W.cmdResetVLW.Enabled);
    Bench.Set(W.Sentences["VLW"].Interval_List, std::int64_t{4});
    EXPECT_EQ(Bench.S.Of<Log_State>().Log_VLW_Seconds[2], 5);
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
    EXPECT_EQ(Bench.S.Of<Log_State>().Log_VLW_Seconds[2], 2);
    Bench.Sent.clear();
    Bench.Run_s(2.5);
    ASSERT_EQ(Bench.Sent.size(), 1U);
    EXPECT_EQ(Bench.Sent[0].Text, Framed("VWVLW,0.2200,N,0.02,N,0.1100,N,0.01,N,"));

    Bench.Click(W.Sentences["VLW"].Box);
    EXPECT_FALSE(W.cmdResetVLW.Enabled);
    EXPECT_THROW(Bench.Sim.Windows.User_Click(W.cmdResetVLW), User_Refusal);
    EXPECT_NEAR(Bench.S.Of<Log_State>().Log_Total_Water[2], 0.22, 1e-6);
    Bench.Run_s(10);
    EXPECT_EQ(Bench.Sent.size(), 1U);
    Bench.Click(W.Sentences["VLW"].Box);
    for (const float Counter :
         {Bench.S.Of<Log_State>().Log_Total_Water[2], Bench.S.Of<Log_State>().Log_Trip_Water[2],
          Bench.S.Of<Log_State>().Log_Total_Ground[2], Bench.S.Of<Log_State>().Log_Trip_Ground[2]})
        EXPECT_EQ(Counter, 0);
    EXPECT_EQ(Bench.S.Of<Log_State>().Log_VLW_Seconds[1], 0);
}

} // namespace
} // namespace brinewright
