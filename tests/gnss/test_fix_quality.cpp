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

} // namespace
} // namespace brinewright
