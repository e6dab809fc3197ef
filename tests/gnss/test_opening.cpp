// Opening and closing of a GNSS window: staggers, modes, widths, and settings that no list has.

#include "gnss/gnss_state.hpp"
#include "gnss_bench.hpp"
#include "ownship/navdata_state.hpp"
#include "shell/state/iec450_state.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/shell_state.hpp"

#include <array>
#include <cmath>
#include <limits>

namespace brinewright {
namespace {

struct Told_Sentence {
    const char* Type;
    Per_Instance<bool> GNSS_State::*Enabled;
    Per_Instance<std::int16_t> GNSS_State::*Interval;
    double Stagger_s;
    std::int16_t Two_Second_Entry;
    int Default_Entry;
};

using P = frmPosition;
const std::array<Told_Sentence, 10> Told{{
    {"GGA", &GNSS_State::GGA_Enabled, &GNSS_State::GGA_Interval, 0.15, 3, 2},
    {"VTG", &GNSS_State::VTG_Enabled, &GNSS_State::VTG_Interval, 0.1, 3, 2},
    {"GLL", &GNSS_State::GLL_Enabled, &GNSS_State::GLL_Interval, 0.15, 1, 0},
    {"RMC", &GNSS_State::RMC_Enabled, &GNSS_State::RMC_Interval, 0.1, 3, 2},
    {"ZDA", &GNSS_State::ZDA_Enabled, &GNSS_State::ZDA_Interval, 0.1, 1, 5},
    {"GNS", &GNSS_State::GNS_Enabled, &GNSS_State::GNS_Interval, 0.15, 3, 2},
    {"DTM", &GNSS_State::DTM_Enabled, &GNSS_State::DTM_Interval, 0.15, 1, 5},
    {"GSA", &GNSS_State::GSA_Enabled, &GNSS_State::GSA_Interval, 0.15, 1, 5},
    {"GSV", &GNSS_State::GSV_Enabled, &GNSS_State::GSV_Interval, 0.15, 1, 5},
    {"GST", &GNSS_State::GST_Enabled, &GNSS_State::GST_Interval, 0.15, 3, 7},
}};

void Enable(GNSS_Bench& Bench, int Instance, const std::string& Types, bool Two_Seconds) {
    for (const Told_Sentence& T : Told) {
        if (Types.find(T.Type) == std::string::npos) continue;
        (Bench.Sim.State->*T.Enabled)[Instance] = true;
        if (Two_Seconds) (Bench.Sim.State->*T.Interval)[Instance] = T.Two_Second_Entry;
    }
}

const std::string All_Types = "GGA VTG GLL RMC ZDA GNS DTM GSA GSV GST";

TEST(GNSS_Opening, Staggers_Each_Enabled_Sentence_But_The_First) {
    for (const std::string& Types :
         {All_Types, std::string("GLL DTM GST"), std::string("GST"), std::string()}) {
        GNSS_Bench Bench;
        Enable(Bench, 1, Types, true);
        frmPosition& W = Bench.Open();
        double Opened_s = 0;
        std::vector<std::pair<const Told_Sentence*, std::vector<std::int64_t>>> Ticks;
        for (const Told_Sentence& T : Told)
            if (Types.find(T.Type) != std::string::npos) {
                if (!Ticks.empty()) Opened_s += T.Stagger_s;
                Ticks.push_back({&T, {}});
            }
        EXPECT_NEAR(static_cast<double>(Bench.Now_us()) / 1e6, Opened_s, 50e-6) << Types;
        for (auto& Row : Ticks)
            W.Sentences[Row.first->Type].Clock.Tick = [&] { Row.second.push_back(Bench.Now_us()); };
        Bench.Run_To(9.5);
        double Start_s = 0;
        for (const auto& [T, Times_us] : Ticks) {
            if (T != Ticks.front().first) Start_s += T->Stagger_s;
            ASSERT_EQ(Times_us.size(), 4U)
                << T->Type; // none at 10 s yet, save the first sentence, see beneath
            for (std::size_t I = 0; I < Times_us.size(); ++I)
                EXPECT_NEAR(static_cast<double>(Times_us[I]) / 1e6,
                            Start_s + 2.0 * static_cast<double>(I + 1), 50e-6)
                    << T->Type;
        }
    }
}

TEST(GNSS_Opening, Staggers_By_The_32_Bit_Clock_In_The_Evening_And_Over_Midnight) {
    constexpr std::int64_t Evening_us = 86'000 * us_Per_Second;
    GNSS_Bench Bench(Evening_us);
    Enable(Bench, 1, All_Types, true);
    frmPosition& W = Bench.Open();
    std::vector<std::int64_t> Starts_us;
    for (const Told_Sentence& T : Told)
        W.Sentences[T.Type].Clock.Tick = [&] { Starts_us.push_back(Bench.Now_us() - 2 * us_Per_Second); };
    Bench.Run_To(3.5);
    ASSERT_EQ(Starts_us.size(), Told.size());
    for (std::size_t I = 1; I < Told.size(); ++I) {
        const float Moved_s =
            Time_Of_Day_s(Evening_us + Starts_us[I]) - Time_Of_Day_s(Evening_us + Starts_us[I - 1]);
        EXPECT_GT(Moved_s, static_cast<float>(Told[I].Stagger_s)) << Told[I].Type;
        EXPECT_LT(Moved_s, static_cast<float>(Told[I].Stagger_s) + 2.5F / 128) << Told[I].Type;
    }

    GNSS_Bench Midnight(us_Per_Day - us_Per_Second / 2);
    Enable(Midnight, 1, All_Types, true);
    Midnight.Open();
    EXPECT_LT(Midnight.Now_us(), 1'400'000);
    EXPECT_EQ(Midnight.Box_Count(), 0U);
}

TEST(GNSS_Opening, A_Sentence_Starts_Without_START_And_A_Box_Ticked_Later_Without_Wait) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    Bench.Run_To(5);
    EXPECT_TRUE(Bench.Sent.empty());
    Bench.Click(W.Sentences["GGA"].Box);
    Bench.Click(W.Sentences["VTG"].Box);
    EXPECT_EQ(Bench.Now_us(), 5'000'000);
    Bench.Run_To(6.5);
    ASSERT_EQ(Bench.Sent.size(), 2U);
    EXPECT_EQ(Bench.Sent[0].Time_us, 6'000'000);
    Bench.Click(W.Sentences["GGA"].Box);
    EXPECT_FALSE(Bench.Sim.State.Of<GNSS_State>().GGA_Enabled[1]);
    Bench.Run_To(8.5);
    EXPECT_EQ(Bench.Texts("GGA").size(), 1U);
    EXPECT_EQ(Bench.Texts("VTG").size(), 3U);
}

TEST(GNSS_Opening, Fills_The_Lists_And_Restores_The_Settings) {
    GNSS_Bench Bench;
    Bench.Sim.State.Of<GNSS_State>().GNSS_Decimals_Position[2] = 6;
    Bench.Sim.State.Of<GNSS_State>().GNSS_Decimals_Time[2] = 2;
    Bench.Sim.State.Of<GNSS_State>().GNSS_Talker[2] = "GL";
    Bench.Sim.State.Of<GNSS_State>().GGA_Interval[2] = 9;
    const frmPosition& W = Bench.Open(2);
    EXPECT_EQ(W.Tag, "2");
    EXPECT_EQ(W.txtTalker.Text(), "GL");
    EXPECT_EQ(W.cmbDecimals.Text(), " 6");
    EXPECT_EQ(W.cmbDecimalsTime.Text(), " 2");
    EXPECT_EQ(W.Sentences["GGA"].Interval_List.Text(), "60 sec");
    EXPECT_EQ(W.Sentences["VTG"].Interval_List.Text(), " 1 sec");
    EXPECT_EQ(W.Sentences["ZDA"].Interval_List.Items()[0].Text, " 1sec");
    EXPECT_EQ(W.Sentences["GST"].Interval_List.Items()[2].Text, " 1sec");
    EXPECT_EQ(W.Sentences["GLL"].Interval_List.Items().size(), 8U);
    EXPECT_EQ(W.cmbComPort.Text(), "UDP 60002");
    EXPECT_EQ(W.cmbNoise.Items().size(), 20U);
    EXPECT_EQ(W.cmbNoise.Items()[16].Text, " 16 m");
    EXPECT_EQ(W.cmbNoise.Items()[19].Text, "100 m");
    for (const Told_Sentence& T : Told)
        if (T.Interval != &GNSS_State::GGA_Interval) {
            EXPECT_EQ(W.Sentences[T.Type].Interval_List.List_Index(), T.Default_Entry) << T.Type;
        }
    EXPECT_TRUE(W.chkFixOffset.Visible);
    EXPECT_FALSE(Bench.Open(1).chkFixOffset.Visible);
    EXPECT_FALSE(W.cmdPause.Enabled);
    EXPECT_EQ(W.Height, 9330);
    for (const Control* C : W.Controls)
        if (C->Kind != Control_Kind::Timer) {
            EXPECT_FALSE(static_cast<const Visible_Control*>(C)->Tool_Tip->empty()) << C->Path();
        }
}

TEST(GNSS_Opening, Width_Reaches_To_The_Last_Enabled_Data_Frame) {
    GNSS_Bench Bench;
    frmPosition& W = Bench.Open();
    const int GGA = *W.frmGGA.Width, GSA = *W.frmGSA.Width, GSV = *W.frmGSV.Width, GST = *W.frmGST.Width;
    EXPECT_EQ(W.Width, static_cast<float>(GGA + 300));
    Bench.Click(W.Sentences["GSV"].Box);
    EXPECT_EQ(W.Width, static_cast<float>(GGA + GSA + GSV + 200));
    Bench.Click(W.Sentences["GST"].Box);
    EXPECT_EQ(W.Width, static_cast<float>(GGA + GSA + GSV + GST + 200));
    Bench.Click(W.Sentences["GST"].Box);
    Bench.Click(W.Sentences["GSV"].Box);
    Bench.Click(W.Sentences["GSA"].Box);
    EXPECT_EQ(W.Width, static_cast<float>(GGA + GSA + 200));
    Bench.Click(W.Sentences["GGA"].Box);
    EXPECT_EQ(W.Width, static_cast<float>(GGA + GSA + 200));
}

TEST(GNSS_Opening, Ship_Mode_Leaves_The_Sentences_Alone) {
    GNSS_Bench Bench;
    Bench.Sim.State.Of<Shell_State>().Mode = "Ship";
    Bench.Sim.State.Of<GNSS_State>().GGA_Enabled[2] = true;
    Bench.Sim.State.Of<GNSS_State>().GNSS_SOG[2] = 12.34F;
    Bench.Sim.State.Of<GNSS_State>().GNSS_COG[2] = 359.99F;
    frmPosition& W = Bench.Open(2);
    EXPECT_TRUE(W.lblShipControl.Visible);
    EXPECT_FALSE(W.frmSimulator.Visible);
    EXPECT_FALSE(W.frmSimulatorControl.Visible);
    EXPECT_TRUE(W.frameNMEAMessages.Visible);
    EXPECT_LT(W.Height, 9330);
    for (Control* Hidden :
         std::initializer_list<Control*>{&W.cmdStart, &W.txtLat, &W.scrSOG, &W.chkFixOffset})
        EXPECT_THROW(Bench.Click(*Hidden), User_Refusal) << Hidden->Path();
    EXPECT_EQ(Bench.Sim.State.Of<GNSS_State>().GNSS_SOG[2], 12.34F)
        << "showing the ship's speed must not write it";
    EXPECT_EQ(Bench.Sim.State.Of<GNSS_State>().GNSS_COG[2], 359.99F);
    Bench.Run_To(3.5);
    EXPECT_EQ(Bench.Sent.size(), 3U);
    EXPECT_EQ(W.timer_Simulator.Interval_ms(), 0);
    EXPECT_FALSE(Bench.Open(1).lblArrows.Visible);
}

TEST(GNSS_Opening, Stored_Garbage_Becomes_The_Default_And_Never_Fails) {
    for (const std::int16_t Garbage :
         {std::int16_t{-1}, std::int16_t{10}, std::int16_t{32767}, std::int16_t{-32768}}) {
        GNSS_Bench Bench;
        Simulator_State& State = Bench.Sim.State;
        for (const Told_Sentence& T : Told) (State->*T.Interval)[1] = Garbage;
        State.Of<GNSS_State>().GNSS_Decimals_Position[1] = State.Of<GNSS_State>().GNSS_Decimals_Time[1] =
            Garbage;
        State.Of<GNSS_State>().GNSS_Noise_Index[1] = static_cast<std::int16_t>(Garbage == 10 ? 20 : Garbage);
        const std::int16_t No_Such_Port = Garbage == 10 ? std::int16_t{100} : Garbage;
        State.Of<Link_State>().Sensor_Table[1].Port = No_Such_Port;
        State.Of<GNSS_State>().GNSS_Noise_Enabled[1] = true;
        State.Of<GNSS_State>().GNSS_Talker[1] = "much too long";
        State.Of<GNSS_State>().GNSS_Start_Lat[1] = std::numeric_limits<double>::quiet_NaN();
        State.Of<GNSS_State>().GNSS_Start_Lon[1] = std::numeric_limits<double>::infinity();
        State.Of<GNSS_State>().GNSS_Lat[1] = 1e300;
        State.Of<GNSS_State>().GNSS_SOG[1] = std::numeric_limits<float>::quiet_NaN();
        State.Of<GNSS_State>().GNSS_COG[1] = -std::numeric_limits<float>::infinity();
        State.Of<Navdata_State>().Magnetic_Variation = std::numeric_limits<float>::infinity();
        State.Of<IEC450_State>().IEC450_Enabled = State.Of<IEC450_State>().Use_n_Tag = true;
        Enable(Bench, 1, All_Types, false);
        frmPosition& W = Bench.Open();
        EXPECT_EQ(Bench.Last_Box(), "");
        for (const Told_Sentence& T : Told) {
            EXPECT_EQ(W.Sentences[T.Type].Interval_List.List_Index(), T.Default_Entry) << T.Type;
            EXPECT_EQ((State->*T.Interval)[1], T.Default_Entry) << T.Type;
        }
        EXPECT_EQ(State.Of<GNSS_State>().GNSS_Decimals_Position[1], 4);
        EXPECT_EQ(State.Of<GNSS_State>().GNSS_Decimals_Time[1], 0);
        EXPECT_EQ(State.Of<GNSS_State>().GNSS_Noise_Max[1], 0);
        EXPECT_EQ(W.cmbComPort.List_Index(), -1);
        EXPECT_EQ(State.Of<Link_State>().Sensor_Table[1].Port, No_Such_Port)
            << "a port that is not in use stays until another is picked";
        Bench.Click(W.cmdStart);
        for (const int Key : {key::Left, key::Right, key::Up, key::Down}) {
            Bench.Click(W.cmdArrows);
            Bench.Sim.Windows.User_Key(W, Key);
            Bench.Sim.Windows.Set_Focus(nullptr);
        }
        Bench.Run_To(30);
        EXPECT_EQ(Bench.Last_Box(), "");
    }
}

TEST(GNSS_Opening, An_Index_Without_A_Window_Is_Told_And_Leaves_Nothing) {
    GNSS_Bench Bench;
    for (const int Instance : {0, 3, -7})
        EXPECT_THROW(Open_Window(Bench.Sim, "frmPosition", Instance), Run_Time_Error);
    EXPECT_FALSE(Open_One<frmPosition>(Bench.Sim, 1));
    EXPECT_FALSE(Open_One<frmPosition>(Bench.Sim, 2));
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
    const Open_Form_Entry& Place = Bench.Sim.State.Of<Shell_State>().Open_Form_List[1];
    EXPECT_EQ(Bench.Sim.State.Of<Shell_State>().Open_Form_Count, 1);
    EXPECT_EQ(Place.Name, "frmPosition");
    EXPECT_EQ(Place.Index, 1);
    EXPECT_EQ(Place.Left, 100);
    EXPECT_EQ(Place.Height, 8000);
    const frmPosition& Again = Bench.Open();
    EXPECT_EQ(Bench.Sim.State.Of<GNSS_State>().GNSS_SOG[1], 12.5F);
    EXPECT_EQ(Again.txtSOG.Text(), "12.5");
    EXPECT_EQ(Again.scrSOG.Value(), 125);
    Bench.Run_To(7);
    EXPECT_EQ(Bench.Sent.size(), 2U) << "GGA goes on by itself";
}

TEST(GNSS_Opening, Closing_With_A_Full_List_Of_Places_Is_Told_And_Closes_All_The_Same) {
    GNSS_Bench Bench;
    Bench.Sim.State.Of<GNSS_State>().GGA_Enabled[1] = true;
    Bench.Open();
    Bench.Sim.State.Of<Shell_State>().Open_Form_Count = 20;
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
