// What leaves a GNSS window, and when: contents, START and PAUSE, intervals, talker, opening and closing.

#include "tests/support/sentence_bench.hpp"

#include <array>
#include <cmath>
#include <limits>

namespace brinewright {
namespace {

Sentence_Bench& Place(Sentence_Bench& Bench, int I = 1) {
    Bench.GNSS().GNSS_Lat[I] = 62 + 35.5 / 60;
    Bench.GNSS().GNSS_Lon[I] = -(6 + 10.0 / 60);
    Bench.GNSS().GNSS_SOG[I] = -12.3F;
    Bench.GNSS().GNSS_COG[I] = 359;
    Bench.Nav().Magnetic_Variation = 2.5F;
    return Bench;
}

TEST(GNSS_Sentences, Follow_State_Decimals_And_Their_Own_Instance) {
    Sentence_Bench Bench;
    frmPosition& W = Place(Bench, 2).Open<frmPosition>(2);
    Bench.Choose(W.cmbDecimals, 0);
    Bench.Choose(W.cmbDecimalsTime, 1);
    Bench.UTC().Use_UTC = true;
    Bench.UTC().GNSS2_UTC_Offset_Hours = 90; // minutes
    Bench.GNSS().GNS_Talker[2] = "GN";
    Bench.GNSS().GNS_Mode_Indicator[2] = "AAN";
    // The variation of RMC is that of the opening, the one of VTG follows.
    Bench.Nav().Magnetic_Variation = -359.5F;
    EXPECT_EQ(Bench.Tick(W, "GGA").substr(0, 35), "$GPGGA,013000.0,6235.500,N,00610.00");
    EXPECT_EQ(Bench.Tick(W, "GNS"),
              Framed("GNGNS,013000.0,6235.500,N,00610.000,W,AAN,8,1.4,0.0,0.0,5.0,0,S"));
    EXPECT_NE(Bench.Tick(W, "RMC").find(",002.5,E,"), std::string::npos);
    EXPECT_EQ(Bench.Tick(W, "VTG"), Framed("GPVTG,359.0,T,359.5,M,12.3,N,022.78,K,A"));
    EXPECT_EQ(Bench.Sent[0].Port, 19);
    Bench.GNSS().GNSS_COG[2] = 359.99998F; // a sum just under the circle must not round up to it
    Bench.Nav().Magnetic_Variation = 2e-5F;
    Bench.Tick(W, "VTG");
    EXPECT_LT(W.VTG_Record.COG_Magnetic, 360);
}

TEST(GNSS_Sentences, West_Variation_And_The_Checksum_Option) {
    Sentence_Bench Bench;
    Bench.Nav().Magnetic_Variation = -3.25F;
    frmPosition& W = Bench.Open<frmPosition>();
    EXPECT_EQ(Bench.Tick(W, "RMC"),
              Framed("GPRMC,000000,A,0000.0000,N,00000.0000,E,0.0,000.0,010126,003.3,W,A,S"));
    Bench.Fault().Fault_No_Checksum = true;
    EXPECT_EQ(Bench.Tick(W, "DTM"), "$GPDTM,W84, ,0,N,0,E,0,W84");
    EXPECT_EQ(Bench.Tick(W, "GSA").find('*'), std::string::npos);
}

TEST(GNSS_Sentences, Tag_Block_Stands_In_Front_But_Never_Of_The_Second_GSA) {
    Sentence_Bench Bench;
    frmPosition& W = Bench.Open<frmPosition>();
    Bench.IEC450().IEC450_Enabled = Bench.IEC450().Use_n_Tag = true;
    const std::string DTM = Framed("GPDTM,W84, ,0,N,0,E,0,W84");
    EXPECT_EQ(Bench.Tick(W, "DTM"), "\\" + Framed("n:1").substr(1) + "\\" + DTM);
    EXPECT_EQ(Bench.Tick(W, "DTM"), "\\" + Framed("n:2").substr(1) + "\\" + DTM);
    W.GSA2_Record.PRN[1] = 65;
    W.GSA_Record.Mode = 'M';
    W.GSA_Record.Fix = 2;
    W.GSA_Record.VDOP = 9;
    Bench.Tick(W, "GSA");
    ASSERT_EQ(Bench.Sent.size(), 2U);
    EXPECT_EQ(Bench.Sent[1].Text, Framed("GLGSA,M,2,65,,,,,,,,,,,,2.6,1.4,9.0"));
}

TEST(GNSS_Sentences, A_New_Interval_Restarts_The_Phase_Of_A_Ticked_Sentence_Only) {
    Sentence_Bench Bench;
    frmPosition& W = Bench.Open<frmPosition>();
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

TEST(GNSS_Fix, Station_And_Heights_Reach_GNS_Only_When_Their_Box_Was_Left) {
    Sentence_Bench Bench;
    frmPosition& W = Bench.Open<frmPosition>();
    const auto Stations = [&] {
        return Fields_Of(Bench.Tick(W, "GGA"))[14] + " " + Fields_Of(Bench.Tick(W, "GNS"))[12] + " " +
               W.txtStnID.Text();
    };
    EXPECT_EQ(Stations(), "0100 0 100");
    Bench.Sim.Windows.User_Focus(W.txtStnID);
    Bench.Sim.Windows.Set_Focus(nullptr);
    EXPECT_EQ(Stations(), "0100 100 100");
    const std::pair<const char*, const char*> Typed[] = {
        {"-7", "0007 7 7"},   {" 12,5 ", "0012 12 12"}, {"+1023", "1023 1023 1023"},
        {"12 m", "0000 0 0"}, {"", "0000 0 0"},         {"40000", "0000 0 0"},
        {"inf", "0000 0 0"},  {"1e2", "0100 100 100"},  {"+-3", "0000 0 0"},
    };
    for (const auto& [Text, Expected] : Typed) {
        Bench.Type(W.txtStnID, Text);
        EXPECT_EQ(Stations(), Expected) << Text;
    }
    EXPECT_EQ(Bench.Last_Box(), "");
    Bench.Type(W.txtStnID, "1024");
    EXPECT_EQ(Bench.Last_Box(), "Station ID not within accepted interval, has to be 0000-1023.");
    EXPECT_EQ(Stations(), "1024 1024 1024");

    Bench.Type(W.txtAlt, "12,34 metres");
    Bench.Type(W.txtGeoidSep, "-41.05");
    EXPECT_EQ(W.txtAlt.Text(), "12.3 m");
    EXPECT_EQ(W.txtGeoidSep.Text(), "-41.1 m");
    EXPECT_EQ(Fields_Of(Bench.Tick(W, "GGA"))[9] + Fields_Of(Bench.Tick(W, "GGA"))[11], "12.3-41.1");
    EXPECT_EQ(Fields_Of(Bench.Tick(W, "GNS"))[9] + Fields_Of(Bench.Tick(W, "GNS"))[10], "12.3-41.1");
}

// Every sentence, each two seconds.
void Enable_All(Sentence_Bench& Bench) {
    for (const Sentence_Row& Row : GNSS_Windows.Sentences) {
        Row.Setting(Bench.Sim.State, 1).Enabled = true;
        Row.Setting(Bench.Sim.State, 1).Interval = Row.Choices->Entries.size() > 8 ? 3 : 1;
    }
}

TEST(GNSS_Opening, Staggers_By_The_32_Bit_Clock_In_The_Evening_And_Over_Midnight) {
    constexpr std::int64_t Evening_us = 86'000 * us_Per_Second;
    Sentence_Bench Bench(86'000);
    Enable_All(Bench);
    const auto Told = GNSS_Windows.Sentences;
    frmPosition& W = Bench.Open<frmPosition>();
    std::vector<std::int64_t> Starts_us;
    for (const Sentence_Row& T : Told)
        W.Sentences[T.Type].Clock.Tick = [&] { Starts_us.push_back(Bench.Now_us() - 2 * us_Per_Second); };
    Bench.Run_To(3.5);
    ASSERT_EQ(Starts_us.size(), Told.size());
    for (std::size_t I = 1; I < Told.size(); ++I) {
        const float Moved_s =
            Time_Of_Day_s(Evening_us + Starts_us[I]) - Time_Of_Day_s(Evening_us + Starts_us[I - 1]);
        EXPECT_GT(Moved_s, Told[I].Stagger_s) << Told[I].Type;
        EXPECT_LT(Moved_s, Told[I].Stagger_s + 2.5F / 128) << Told[I].Type;
    }

    Sentence_Bench Midnight(86'399.5);
    Enable_All(Midnight);
    Midnight.Open<frmPosition>();
    EXPECT_LT(Midnight.Now_us(), 1'400'000);
    EXPECT_TRUE(Midnight.Told.empty());
}

TEST(GNSS_Opening, Closing_Stops_The_Sentences_And_Keeps_Place_And_Settings) {
    Sentence_Bench Bench;
    frmPosition& W = Bench.Open<frmPosition>();
    Bench.Click(W.Sentences["GGA"].Box);
    Bench.Type(W.txtSOG, "12.5");
    Bench.Close(*Open_One<frmPosition>(Bench.Sim, 1));
    EXPECT_FALSE(Open_One<frmPosition>(Bench.Sim, 1));
    Bench.Run_To(5);
    EXPECT_TRUE(Bench.Sent.empty());
    const frmPosition& Again = Bench.Open<frmPosition>();
    EXPECT_EQ(Bench.GNSS().GNSS_SOG[1], 12.5F);
    EXPECT_EQ(Again.txtSOG.Text(), "12.5");
    EXPECT_EQ(Again.scrSOG.Value(), 125);
    Bench.Run_To(7);
    EXPECT_EQ(Bench.Sent.size(), 2U) << "GGA goes on by itself";
}

TEST(GNSS_Opening, Closing_With_A_Full_List_Of_Places_Is_Told_And_Closes_All_The_Same) {
    Sentence_Bench Bench;
    Bench.GNSS().GGA_Enabled[1] = true;
    Bench.Open<frmPosition>();
    Bench.Shell().Open_Form_Count = 20;
    Bench.Close(*Open_One<frmPosition>(Bench.Sim, 1));
    EXPECT_EQ(Bench.Last_Box(), "Subscript out of range");
    EXPECT_FALSE(Open_One<frmPosition>(Bench.Sim, 1));
    EXPECT_EQ(Bench.Sim.Windows.Find_Form("frmPosition[1]"), nullptr);
    Bench.Run_s(3);
    EXPECT_TRUE(Bench.Sent.empty());
}

TEST(GNSS_Opening, The_Port_List_Follows_The_Links_And_Its_Choice_Routes_The_Sentences) {
    Sentence_Bench Bench;
    frmPosition& W = Bench.Open<frmPosition>();
    for (const int Port : {3, 16, 17})
        Bench.Link().Port_Table[Port].Present = Bench.Link().Port_Table[Port].Enabled = true;
    Bench.Link().Port_Table[4].Present = true;
    Bench.Sim.Told.Links_Chosen.Tell();
    EXPECT_EQ(W.cmbComPort.Items().size(), 13U);
    EXPECT_EQ(W.cmbComPort.Text(), "UDP 60001");
    Bench.Choose(W.cmbComPort, 4);
    EXPECT_EQ(Bench.Link().Sensor_Table[1].Port, 19);
    Bench.Click(W.Sentences["GGA"].Box);
    Bench.Run_To(1.5);
    ASSERT_EQ(Bench.Sent.size(), 1U);
    EXPECT_EQ(Bench.Sent[0].Port, 19);
    Bench.Link().Port_Table[19].Enabled = false;
    Bench.Sim.Told.Links_Chosen.Tell();
    EXPECT_EQ(W.cmbComPort.List_Index(), -1);
    EXPECT_EQ(Bench.Link().Sensor_Table[1].Port, 19);
}

} // namespace
} // namespace brinewright
