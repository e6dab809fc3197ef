// What leaves a GNSS window, and when: contents, START and PAUSE, intervals, talker.

#include "gnss_bench.hpp"

namespace brinewright {
namespace {

// One tick of a sentence, as it goes out.
std::string Tick(GNSS_Bench& Bench, Timer& Clock) {
    Bench.Sent.clear();
    Bench.Sim.Windows.Event([&] { Clock.Tick(); });
    return Bench.Sent.size() == 1 ? Bench.Sent[0].Text : std::to_string(Bench.Sent.size()) + " sentences";
}

GNSS_Bench& Place(GNSS_Bench& Bench, int I = 1) {
    Simulator_State& S = Bench.Sim.State;
    S.Of<GNSS_State>().GNSS_Lat[I] = 62 + 35.5 / 60;
    S.Of<GNSS_State>().GNSS_Lon[I] = -(6 + 10.0 / 60);
    S.Of<GNSS_State>().GNSS_SOG[I] = -12.3F;
    S.Of<GNSS_State>().GNSS_COG[I] = 359;
    S.Of<Navdata_State>().Magnetic_Variation = 2.5F;
    return Bench;
}

TEST(GNSS_Sentences, Follow_State_Decimals_And_Their_Own_Instance) {
    GNSS_Bench Bench;
    frmPosition& W = Place(Bench, 2).Open(2);
    W.cmbDecimals.Set_List_Index(0);
    W.cmbDecimalsTime.Set_List_Index(1);
    Bench.Sim.State.Of<UTC_State>().Use_UTC = true;
    Bench.Sim.State.Of<UTC_State>().GNSS2_UTC_Offset_Hours = 90; // minutes
    Bench.GNSS().GNS_Talker[2] = "GN";
    Bench.GNSS().GNS_Mode_Indicator[2] = "AAN";
    // The variation of RMC is that of the opening, the one of VTG follows.
    Bench.Nav().Magnetic_Variation = -359.5F;
    EXPECT_EQ(Tick(Bench, W.Sentences["GGA"].Clock).substr(0, 35), "$GPGGA,013000.0,6235.500,N,00610.00");
    EXPECT_EQ(Tick(Bench, W.Sentences["GNS"].Clock),
              Framed("GNGNS,013000.0,6235.500,N,00610.000,W,AAN,8,1.4,0.0,0.0,5.0,0,S"));
    EXPECT_NE(Tick(Bench, W.Sentences["RMC"].Clock).find(",002.5,E,"), std::string::npos);
    EXPECT_EQ(Tick(Bench, W.Sentences["VTG"].Clock), Framed("GPVTG,359.0,T,359.5,M,12.3,N,022.78,K,A"));
    EXPECT_EQ(Bench.Sent[0].Port, 19);
    Bench.GNSS().GNSS_COG[2] = 359.99998F; // a sum just under the circle must not round up to it
    Bench.Nav().Magnetic_Variation = 2e-5F;
    Tick(Bench, W.Sentences["VTG"].Clock);
    EXPECT_LT(W.VTG_Record.COG_Magnetic, 360);
}

TEST(GNSS_Sentences, West_Variation_And_The_Checksum_Option) {
    GNSS_Bench Bench;
    Bench.Nav().Magnetic_Variation = -3.25F;
    frmPosition& W = Bench.Open();
    EXPECT_EQ(Tick(Bench, W.Sentences["RMC"].Clock),
              Framed("GPRMC,000000,A,0000.0000,N,00000.0000,E,0.0,000.0,010170,003.3,W,A,S"));
    Bench.Sim.State.Of<Fault_State>().Fault_No_Checksum = true;
    EXPECT_EQ(Tick(Bench, W.Sentences["DTM"].Clock), "$GPDTM,W84, ,0,N,0,E,0,W84");
    EXPECT_EQ(Tick(Bench, W.Sentences["GSA"].Clock).find('*'), std::string::npos);
}

TEST(GNSS_Sentences, Tag_Block_Stands_In_Front_But_Never_Of_The_Second_GSA) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    Bench.IEC450().IEC450_Enabled = Bench.IEC450().Use_n_Tag = true;
    const std::string DTM = Framed("GPDTM,W84, ,0,N,0,E,0,W84");
    EXPECT_EQ(Tick(Bench, W.Sentences["DTM"].Clock), "\\" + Framed("n:1").substr(1) + "\\" + DTM);
    EXPECT_EQ(Tick(Bench, W.Sentences["DTM"].Clock), "\\" + Framed("n:2").substr(1) + "\\" + DTM);
    W.GSA2_Record.PRN[1] = 65;
    W.GSA_Record.Mode = 'M';
    W.GSA_Record.Fix = 2;
    W.GSA_Record.VDOP = 9;
    Tick(Bench, W.Sentences["GSA"].Clock);
    ASSERT_EQ(Bench.Sent.size(), 2U);
    EXPECT_EQ(Bench.Sent[1].Text, Framed("GLGSA,M,2,65,,,,,,,,,,,,2.6,1.4,9.0"));
}

TEST(GNSS_Sentences, A_New_Interval_Restarts_The_Phase_Of_A_Ticked_Sentence_Only) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    Bench.Sim.Windows.User_Set(W.Sentences["GGA"].Interval_List, std::int64_t{0});
    EXPECT_EQ(Bench.GNSS().GGA_Interval[1], 0);
    EXPECT_EQ(W.Sentences["GGA"].Clock.Interval_ms(), 0);
    Bench.Click(W.Sentences["GGA"].Box);
    EXPECT_EQ(W.Sentences["GGA"].Clock.Interval_ms(), 100);
    Bench.Run_To(0.95);
    EXPECT_EQ(Bench.Sent.size(), 9U);
    Bench.Sent.clear();
    Bench.Sim.Windows.User_Set(W.Sentences["GGA"].Interval_List, std::string("2 sec"));
    Bench.Run_To(5.1);
    ASSERT_EQ(Bench.Sent.size(), 2U);
    EXPECT_EQ(Bench.Sent[0].Time_us, 2'950'000);
    EXPECT_EQ(Bench.Sent[1].Time_us, 4'950'000);
}

} // namespace
} // namespace brinewright
