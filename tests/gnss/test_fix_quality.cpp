// Quality, precision, letters, datum and statistics: what the controls put into the sentences.

#include "gnss_bench.hpp"

namespace brinewright {
namespace {

std::vector<std::string> Tick(GNSS_Bench& Bench, Timer& Clock) {
    Bench.Sent.clear();
    Bench.Sim.Windows.Event([&] { Clock.Tick(); });
    const std::string Text = Bench.Sent.size() == 1 ? Bench.Sent[0].Text : "";
    std::vector<std::string> Fields(1);
    for (const char C : Text.substr(0, Text.find('*')))
        if (C == ',')
            Fields.emplace_back();
        else
            Fields.back() += C;
    Fields.resize(20);
    return Fields;
}

void Choose(GNSS_Bench& Bench, Combo_Box& List, const Control_Value& Entry) {
    Bench.Sim.Windows.User_Set(List, Entry);
}

TEST(GNSS_Fix, Lists_Have_The_Told_Entries_And_Defaults) {
    GNSS_Bench Bench;
    const frmPosition& W = Bench.Open();
    const struct {
        const Combo_Box& List;
        std::size_t Count;
        const char *First, *Last, *Chosen;
    } Lists[] = {
        {W.cmbQuality, 9, "0 - Invalid", "8 - Simulator mode", "1 - GPS, SPS mode"},
        {W.cmbHdop, 64, "1.0", "13.6", "1.4"},
        {W.cmbPdop, 64, "1.0", "13.6", "2.6"},
        {W.cmbVdop, 64, "1.0", "13.6", "2.2"},
        {W.cmbAge, 64, " 0 sec", " 63 sec", " 5 sec"},
        {W.cmbModeIndicator, 6, "GNS Status", "RMC-Nav status", "GNS Status"},
        {W.cmbGLLRMVVTG_Mode[0], 4, "S - Safe", "V - Not valid", "S - Safe"},
        {W.cmbGLLRMVVTG_Mode[1], 2, "A - Data valid", "V - Data Invalid", "A - Data valid"},
        {W.cmbGLLRMVVTG_Mode[2], 6, "A - Autonomous", "N - Not valid", "A - Autonomous"},
        {W.cmbGLLRMVVTG_Mode[3], 7, "A - Autonomous", "N - Not valid", "A - Autonomous"},
        {W.cmbGLLRMVVTG_Mode[4], 9, "A - Autonomous", "S - Simulator", "A - Autonomous"},
        {W.cmbGLLRMVVTG_Mode[5], 4, "S - Safe", "V - Not valid", "S - Safe"},
        {W.cmbDatum[1], 3, "WGS84", "ED50", "WGS84"},
        {W.cmbEW, 2, "E", "W", "E"},
    };
    for (const auto& L : Lists) {
        ASSERT_EQ(L.List.Items().size(), L.Count) << L.List.Path();
        EXPECT_EQ(L.List.Items().front().Text, L.First) << L.List.Path();
        EXPECT_EQ(L.List.Items().back().Text, L.Last) << L.List.Path();
        EXPECT_EQ(L.List.Text(), L.Chosen) << L.List.Path();
    }
}

TEST(GNSS_Fix, Quality_And_The_Choice_Of_Dimensions_Make_The_Fix_Of_GSA) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    const auto Fix = [&] { return Tick(Bench, W.Sentences["GSA"].Clock)[2]; };
    Choose(Bench, W.cmbQuality, std::int64_t{0});
    EXPECT_EQ(Fix(), "1");
    EXPECT_EQ(Tick(Bench, W.Sentences["GGA"].Clock)[2], "0000.0000") << "an invalid fix is written in full";
    EXPECT_EQ(Bench.Sent[0].Text,
              Framed("GPGGA,000000,0000.0000,N,00000.0000,E,0,8,1.4,0.0,M,0.0,M,5.0,0100"));
    Bench.Click(*W.optMode3D2D.Buttons[1]);
    EXPECT_EQ(Fix(), "1");
    EXPECT_EQ(Tick(Bench, W.Sentences["RMC"].Clock)[2], "A") << "quality touches no status";
    Choose(Bench, W.cmbQuality, std::int64_t{1});
    EXPECT_EQ(Fix(), "2");
    Bench.Click(*W.optMode3D2D.Buttons[0]);
    EXPECT_EQ(Fix(), "3");
    Bench.Click(*W.optModeAutMan.Buttons[1]);
    EXPECT_EQ(Tick(Bench, W.Sentences["GSA"].Clock)[1], "M");
}

TEST(GNSS_Fix, Precision_And_Age_Are_Chosen_Or_Typed) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    const auto HDOP = [&] {
        return Tick(Bench, W.Sentences["GGA"].Clock)[8] + " " + Tick(Bench, W.Sentences["GNS"].Clock)[8] +
               " " + Tick(Bench, W.Sentences["GSA"].Clock)[16];
    };
    Choose(Bench, W.cmbHdop, std::string("2,5"));
    EXPECT_EQ(HDOP(), "2.5 2.5 2.5");
    Choose(Bench, W.cmbHdop, std::int64_t{63});
    EXPECT_EQ(HDOP(), "13.6 13.6 13.6");
    Bench.Sim.Windows.User_Type(W.cmbHdop, "none");
    EXPECT_EQ(HDOP(), "0.0 0.0 0.0");
    Choose(Bench, W.cmbPdop, std::string("7.7"));
    Choose(Bench, W.cmbVdop, std::int64_t{0});
    Choose(Bench, W.cmbAge, std::string("2.25 sec"));
    EXPECT_EQ(Tick(Bench, W.Sentences["GSA"].Clock)[15], "7.7");
    EXPECT_EQ(Tick(Bench, W.Sentences["GSA"].Clock)[17], "1.0");
    EXPECT_EQ(Tick(Bench, W.Sentences["GGA"].Clock)[13], "2.3");
    Choose(Bench, W.cmbAge, std::int64_t{63});
    EXPECT_EQ(Tick(Bench, W.Sentences["GNS"].Clock)[11], "63.0");
    Choose(Bench, W.cmbAge, std::string("1e999"));
    EXPECT_EQ(Tick(Bench, W.Sentences["GNS"].Clock)[11].substr(0, 4), "3402");
    EXPECT_EQ(W.GSA2_Record.HDOP, 1.4F) << "the second GSA keeps what it opened with";
}

TEST(GNSS_Fix, Station_And_Heights_Reach_GNS_Only_When_Their_Box_Was_Left) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    const auto Stations = [&] {
        return Tick(Bench, W.Sentences["GGA"].Clock)[14] + " " + Tick(Bench, W.Sentences["GNS"].Clock)[12] +
               " " + W.txtStnID.Text();
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
    Bench.Sim.Windows.Boxes.Answer(1);
    EXPECT_EQ(Stations(), "1024 1024 1024");

    Bench.Type(W.txtAlt, "12,34 metres");
    Bench.Type(W.txtGeoidSep, "-41.05");
    EXPECT_EQ(W.txtAlt.Text(), "12.3 m");
    EXPECT_EQ(W.txtGeoidSep.Text(), "-41.1 m");
    EXPECT_EQ(Tick(Bench, W.Sentences["GGA"].Clock)[9] + Tick(Bench, W.Sentences["GGA"].Clock)[11],
              "12.3-41.1");
    EXPECT_EQ(Tick(Bench, W.Sentences["GNS"].Clock)[9] + Tick(Bench, W.Sentences["GNS"].Clock)[10],
              "12.3-41.1");
}

TEST(GNSS_Fix, Differential_Sets_Quality_And_Three_Lists) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    const auto Letters = [&] {
        return Tick(Bench, W.Sentences["GGA"].Clock)[6] + Tick(Bench, W.Sentences["GLL"].Clock)[6] +
               Tick(Bench, W.Sentences["GLL"].Clock)[7] + Tick(Bench, W.Sentences["VTG"].Clock)[9] +
               Tick(Bench, W.Sentences["RMC"].Clock)[12];
    };
    Bench.Click(W.chkDifferential);
    EXPECT_EQ(Letters(), "2VDDA");
    Bench.Click(W.chkDifferential);
    EXPECT_EQ(Letters(), "1AAAA");
}

TEST(GNSS_Fix, One_Mode_List_Shows_And_Each_Writes_Its_Letter) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    const char Told[] = {'C', 'V', 'S', 'P', 'F', 'U'};
    const int Entries[] = {1, 1, 4, 4, 3, 2};
    for (int I = 0; I < 6; ++I) {
        Choose(Bench, W.cmbModeIndicator, std::int64_t{I});
        for (const auto& List : W.cmbGLLRMVVTG_Mode) EXPECT_EQ(*List->Visible, List->Index == I);
        Choose(Bench, W.cmbGLLRMVVTG_Mode[I], std::int64_t{Entries[I]});
    }
    const auto GLL = Tick(Bench, W.Sentences["GLL"].Clock), RMC = Tick(Bench, W.Sentences["RMC"].Clock);
    const std::string Letters = Tick(Bench, W.Sentences["GNS"].Clock)[13] + GLL[6] + GLL[7] +
                                Tick(Bench, W.Sentences["VTG"].Clock)[9] + RMC[12] + RMC[13];
    EXPECT_EQ(Letters, std::string(Told, 6));
    EXPECT_EQ(RMC[2], "A") << "no control writes this one";
    Choose(Bench, W.cmbModeIndicator, std::int64_t{4});
    EXPECT_EQ(W.cmbGLLRMVVTG_Mode[4].Text(), "F - Float RTK") << "as it was left";
}

TEST(GNSS_Fix, Datum_And_Offsets) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    const auto DTM = [&] {
        Tick(Bench, W.Sentences["DTM"].Clock);
        return Bench.Sent.at(0).Text;
    };
    Choose(Bench, W.cmbDatum[0], std::string("PE90"));
    EXPECT_EQ(DTM(), Framed("GPDTM,P90, ,0,N,0,E,0,W84"));
    Choose(Bench, W.cmbDatum[1], std::string("ED50"));
    Choose(Bench, W.cmbNS, std::string("S"));
    Bench.Type(W.txtOffset[0], "-1.5");
    Bench.Type(W.txtOffset[1], "0,12345'");
    Bench.Type(W.txtOffset[2], "-3.25");
    EXPECT_EQ(DTM(), Framed("GPDTM,P90, ,1.5,S,0.12345,E,-3.25,E50"));
    EXPECT_EQ(W.txtOffset[0].Text() + " " + W.txtOffset[1].Text() + " " + W.txtOffset[2].Text(),
              "1.5000' 0.1235' -3.3 m");
    Choose(Bench, W.cmbEW, std::string("W"));
    EXPECT_EQ(DTM(), Framed("GPDTM,P90, ,1.5,S,0.12345,W,-3.25,E50"));
}

TEST(GNSS_Fix, Statistics_By_Mouse_And_By_Hand) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    const auto Press = [&](int I, Mouse_Button Which) { Bench.Sim.Windows.User_Click(W.lblGST[I], Which); };
    EXPECT_EQ(W.txtGST[3].Text(), "000 deg");
    for (int I = 0; I < 7; ++I) {
        Press(I, Mouse_Button::Right);
        EXPECT_EQ(W.txtGST[I].Text(), I == 3 ? "000 deg" : "0.0 m") << "nothing below 0";
        for (int Step = 0; Step <= I; ++Step) Press(I, Mouse_Button::Left);
    }
    Tick(Bench, W.Sentences["GST"].Clock);
    EXPECT_EQ(Bench.Sent.at(0).Text, Framed("GPGST,000000,0.10,0.20,0.30,004,0.50,0.60,0.70"));
    EXPECT_EQ(W.txtGST[6].Text(), "0.70 m");

    Bench.Type(W.txtGST[0], "0,05");
    EXPECT_EQ(W.txtGST[0].Text(), "0.05 m");
    Press(0, Mouse_Button::Right);
    EXPECT_EQ(W.txtGST[0].Text(), "-0.05 m") << "only exactly 0 stops the way down";
    EXPECT_EQ(Tick(Bench, W.Sentences["GST"].Clock)[2], "-0.05");
    Bench.Sim.Windows.User_Focus(W.txtGST[0]);
    EXPECT_EQ(*W.txtGST[0].Select_All_Count, 2U);
    Bench.Sim.Windows.Set_Focus(nullptr);
    EXPECT_EQ(W.txtGST[0].Text(), "0.00 m");
    Bench.Type(W.txtGST[3], "4000");
    Press(3, Mouse_Button::Left);
    EXPECT_EQ(W.txtGST[3].Text(), "359 deg");
    Press(3, Mouse_Button::Right);
    EXPECT_EQ(Tick(Bench, W.Sentences["GST"].Clock)[5], "358");
}

} // namespace
} // namespace brinewright
