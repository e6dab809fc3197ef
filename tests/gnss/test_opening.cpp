// Opening and closing of a GNSS window.

#include "gnss_bench.hpp"

#include <array>
#include <cmath>
#include <limits>

namespace brinewright {
namespace {

// Every sentence, each two seconds.
void Enable_All(GNSS_Bench& Bench) {
    for (const Sentence_Row& Row : GNSS_Windows.Sentences) {
        Row.Setting(Bench.Sim.State, 1).Enabled = true;
        Row.Setting(Bench.Sim.State, 1).Interval = Row.Choices->Entries.size() > 8 ? 3 : 1;
    }
}

TEST(GNSS_Opening, Staggers_By_The_32_Bit_Clock_In_The_Evening_And_Over_Midnight) {
    constexpr std::int64_t Evening_us = 86'000 * us_Per_Second;
    GNSS_Bench Bench(Evening_us);
    Enable_All(Bench);
    const auto Told = GNSS_Windows.Sentences;
    frmPosition& W = Bench.Open();
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

    GNSS_Bench Midnight(us_Per_Day - us_Per_Second / 2);
    Enable_All(Midnight);
    Midnight.Open();
    EXPECT_LT(Midnight.Now_us(), 1'400'000);
    EXPECT_EQ(Midnight.Box_Count(), 0U);
}

TEST(GNSS_Opening, Closing_Stops_The_Sentences_And_Keeps_Place_And_Settings) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    Bench.Click(W.Sentences["GGA"].Box);
    Bench.Type(W.txtSOG, "12.5");
    W.Set_Place(100, 200, 7000, 8000);
    Bench.Close();
    EXPECT_FALSE(Open_One<frmPosition>(Bench.Sim, 1));
    EXPECT_FALSE(*Main_Window(Bench.Sim).Item("mnuOpenForm", 1).Checked);
    Bench.Run_To(5);
    EXPECT_TRUE(Bench.Sent.empty());
    const Open_Form_Entry& Place = Bench.Shell().Open_Form_List[1];
    EXPECT_EQ(Bench.Shell().Open_Form_Count, 1);
    EXPECT_EQ(Place.Name, "frmPosition");
    EXPECT_EQ(Place.Index, 1);
    EXPECT_EQ(Place.Left, 100);
    EXPECT_EQ(Place.Height, 8000);
    const frmPosition& Again = Bench.Open();
    EXPECT_EQ(Bench.GNSS().GNSS_SOG[1], 12.5F);
    EXPECT_EQ(Again.txtSOG.Text(), "12.5");
    EXPECT_EQ(Again.scrSOG.Value(), 125);
    Bench.Run_To(7);
    EXPECT_EQ(Bench.Sent.size(), 2U) << "GGA goes on by itself";
}

TEST(GNSS_Opening, Closing_With_A_Full_List_Of_Places_Is_Told_And_Closes_All_The_Same) {
    GNSS_Bench Bench;
    Bench.GNSS().GGA_Enabled[1] = true;
    Bench.Open();
    Bench.Shell().Open_Form_Count = 20;
    Bench.Close();
    EXPECT_EQ(Bench.Last_Box(), "Subscript out of range");
    Bench.Sim.Windows.Boxes.Answer(1);
    EXPECT_FALSE(Open_One<frmPosition>(Bench.Sim, 1));
    EXPECT_EQ(Bench.Sim.Windows.Find_Form("frmPosition[1]"), nullptr);
    Bench.Run_For(3);
    EXPECT_TRUE(Bench.Sent.empty());
}

TEST(GNSS_Opening, The_Port_List_Follows_The_Links_And_Its_Choice_Routes_The_Sentences) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    Simulator_State& State = Bench.Sim.State;
    for (const int Port : {3, 16, 17})
        State.Of<Link_State>().Port_Table[Port].Present = State.Of<Link_State>().Port_Table[Port].Enabled =
            true;
    State.Of<Link_State>().Port_Table[4].Present = true;
    Bench.Sim.Told.Links_Chosen.Tell();
    std::vector<std::string> Names;
    for (const auto& Item : W.cmbComPort.Items())
        Names.push_back(Item.Text + "=" + std::to_string(Item.Data));
    EXPECT_EQ(Names, (std::vector<std::string>{"COM 3=3", "COM 16=16", "TCP/IP=17", "UDP 60001=18",
                                               "UDP 60002=19"}));
    EXPECT_EQ(W.cmbComPort.Text(), "UDP 60001");
    W.cmbComPort.Set_List_Index(4);
    EXPECT_EQ(State.Of<Link_State>().Sensor_Table[1].Port, 19);
    Bench.Click(W.Sentences["GGA"].Box);
    Bench.Run_To(1.5);
    ASSERT_EQ(Bench.Sent.size(), 1U);
    EXPECT_EQ(Bench.Sent[0].Port, 19);
    State.Of<Link_State>().Port_Table[19].Enabled = false;
    Bench.Sim.Told.Links_Chosen.Tell();
    EXPECT_EQ(W.cmbComPort.List_Index(), -1);
    EXPECT_EQ(State.Of<Link_State>().Sensor_Table[1].Port, 19);
}

} // namespace
} // namespace brinewright
