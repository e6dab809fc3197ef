// Opening of a gyro window: lists, settings, modes, staggers, and what START and PAUSE reach.

#include "sensor_bench.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "shell/state/shell_state.hpp"

namespace brinewright {
namespace {

using G = frmGyro;

struct Told_Sentence {
    const char* Type;
    Per_Instance<bool> Gyro_State::*Enabled;
    Per_Instance<std::int16_t> Gyro_State::*Interval;
};
using M = Gyro_State;
const Told_Sentence Told[] = {
    {"HDT", &M::HDT_Enabled, &M::HDT_Interval}, {"THS", &M::THS_Enabled, &M::THS_Interval},
    {"ROT", &M::ROT_Enabled, &M::ROT_Interval}, {"HDM", &M::HDM_Enabled, &M::HDM_Interval},
    {"ATT", &M::ATT_Enabled, &M::ATT_Interval}, {"PRDID", &M::PRDID_Enabled, &M::PRDID_Interval},
};

TEST(Gyro_Opening, Fills_The_Lists_And_Restores_The_Settings_Of_Its_Instance) {
    Sensor_Bench Bench;
    Bench.S.Of<Gyro_State>().Gyro_Talker[2] = "GY";
    Bench.S.Of<Gyro_State>().Gyro_Decimals[2] = 3;
    Bench.S.Of<Gyro_State>().HDT_Interval[2] = 14;
    Bench.S.Of<Gyro_State>().Gyro_Noise_Enabled[2] = Bench.S.Of<Gyro_State>().Gyro_Noise_Accumulated[2] =
        true;
    Bench.S.Of<Gyro_State>().Gyro_Noise_Level[2].Elements = {1, 6, 14, 0};
    const frmGyro& W = Bench.Open_Gyro(2);
    EXPECT_EQ(W.Tag, "4");
    EXPECT_EQ(W.txtTalker.Text(), "GY");
    EXPECT_EQ(W.cmbComPort.Text(), "UDP 60002");
    EXPECT_EQ(Entries(W.cmbDecimals), (Texts{" 0", " 1", " 2", " 3"}));
    EXPECT_EQ(W.cmbDecimals.List_Index(), 3);
    EXPECT_EQ(Entries(W.Sentences["HDT"].Interval_List),
              (Texts{"0.1 sec", "0.2 sec", "0.4 sec", "0.6 sec", "0.8 sec", "1.0 sec", "2.0 sec", "3.0 sec",
                     "4.0 sec", "5.0 sec", "6.0 sec", "7.0 sec", "8.0 sec", "9.0 sec", "10.0 sec"}));
    EXPECT_EQ(W.Sentences["HDT"].Interval_List.Text(), "10.0 sec");
    EXPECT_EQ(W.Sentences["PRDID"].Interval_List.Text(), "1.0 sec");
    EXPECT_EQ(Entries(W.cmbModeIndicator),
              (Texts{"A=Autonomous", "E=Estimated", "M=Manual", "S=Simulator", "V=Not valid"}));
    Texts Noise = Entries(W.Sentences["HDT"].Interval_List); // the same numbers, save the shortest time
    for (std::string& Text : Noise)
        Text = (Text == "0.1 sec" ? "0.0" : Text.substr(0, Text.size() - 4)) + " \xB0";
    for (const auto& List : W.cmbNoise) EXPECT_EQ(Entries(*List), Noise);
    EXPECT_TRUE(W.chkNoise.Value());
    EXPECT_EQ(W.optAccumulatedNoise.Selected(), 1);
    EXPECT_EQ(W.Noise_Max.Elements, (std::array<float, 4>{0.2F, 2, 10, 0}));
    EXPECT_FALSE(W.cmdPause.Enabled);
    Expect_Texts(W, {"frmHDG=Heading", "frmROT=Rate Of Turn", "lblROTUnit=deg/min", "frmRoll=Roll ",
                     "frmPitch=Pitch", "chkNoise=Random noise On", "optAccumulatedNoise(0)=Not Accumulated",
                     "optAccumulatedNoise(1)=Accumulated (Only Hdg)", "lblMaxNoise=Max noise",
                     "cmdStart=START", "cmdPause=PAUSE", "lblModeIndicator=THS Mode Indicator",
                     "lblDecimals=No of decimals", "lblATT=Furuno propr.", "lblPRDID=RD Instr propr.",
                     "frmCurrent=Current values", "lblShipControl=Hdg and ROT control by Ship"});
    for (const Told_Sentence& T : Told) EXPECT_EQ(*W.Sentences[T.Type].Box.Caption, T.Type);
}

TEST(Gyro_Opening, Choices_That_No_List_Has_Become_The_Defaults) {
    for (const int Odd : {-1, 15, 32767, -32768}) {
        Sensor_Bench Bench;
        const auto Stored = static_cast<std::int16_t>(Odd);
        for (const Told_Sentence& T : Told) (Bench.S->*T.Interval)[1] = Stored;
        Bench.S.Of<Gyro_State>().Gyro_Decimals[1] = Stored;
        Bench.S.Of<Gyro_State>().Gyro_Noise_Level[1].Elements.fill(Stored);
        const frmGyro& W = Bench.Open_Gyro();
        for (const Told_Sentence& T : Told) {
            EXPECT_EQ(W.Sentences[T.Type].Interval_List.Text(), "1.0 sec") << T.Type;
            EXPECT_EQ((Bench.S->*T.Interval)[1], 5) << T.Type;
        }
        EXPECT_EQ(Bench.S.Of<Gyro_State>().Gyro_Decimals[1], 1);
        for (const std::int16_t Level : Bench.S.Of<Gyro_State>().Gyro_Noise_Level[1]) EXPECT_EQ(Level, 0);
        EXPECT_TRUE(Bench.Take_Boxes().empty());
    }
}

TEST(Gyro_Opening, Shows_Heading_And_Turn_Without_Writing_Them) {
    Sensor_Bench Bench;
    Bench.S.Of<Gyro_State>().Gyro_HDG[1] = 359.97F;
    Bench.S.Of<Gyro_State>().Gyro_ROT[1] = -45.67F;
    frmGyro& W = Bench.Open_Gyro();
    EXPECT_EQ(W.scrHDG.Value(), 0);
    EXPECT_EQ(W.scrROT.Value(), -300);
    EXPECT_EQ(W.txtROT.Text(), "-45.7");
    Bench.Type(W.txtROT, "-45.7"); // entered and left as it was
    EXPECT_EQ(Bench.S.Of<Gyro_State>().Gyro_HDG[1], 359.97F);
    EXPECT_EQ(Bench.S.Of<Gyro_State>().Gyro_ROT[1], -45.67F);
    EXPECT_TRUE(Bench.Take_Boxes().empty());
}

TEST(Gyro_Opening, Enabled_Sentences_Start_A_Stagger_Apart_And_HDM_Sends_Nothing) {
    Sensor_Bench Bench;
    for (const Told_Sentence& T : Told) (Bench.S->*T.Enabled)[1] = true;
    frmGyro& W = Bench.Open_Gyro();
    EXPECT_NEAR(static_cast<double>(Bench.Now_us()), 5 * 150e3, 50);
    Bench.Run_s(3.1);
    int Place = 0;
    for (const Told_Sentence& T : Told) {
        const std::string Head = std::string(T.Type) == "ATT"     ? "$PFEC,HEatt,"
                                 : std::string(T.Type) == "PRDID" ? "$PRDID,"
                                                                  : std::string("$HE") + T.Type + ",";
        EXPECT_EQ(Bench.Count(Head), std::string(T.Type) == "HDM" ? 0 : 3) << T.Type;
        EXPECT_EQ(W.Sentences[T.Type].Clock.Interval_ms(), 1000) << T.Type;
        for (const auto& One : Bench.Sent)
            if (One.Text.starts_with(Head)) {
                EXPECT_NEAR(static_cast<double>(One.Time_us % 1'000'000), Place * 150e3, 2500) << T.Type;
                EXPECT_EQ(One.Port, 18);
            }
        ++Place;
    }
    Bench.Click(W.Sentences["HDM"].Box);
    EXPECT_FALSE(Bench.S.Of<Gyro_State>().HDM_Enabled[1]);
    EXPECT_EQ(W.Sentences["HDM"].Clock.Interval_ms(), 0);
}

TEST(Gyro_Opening, START_And_PAUSE_Reach_All_Six_And_The_Simulator) {
    Sensor_Bench Bench;
    frmGyro& W = Bench.Open_Gyro();
    for (const Told_Sentence& T : Told)
        if (std::string(T.Type) != "THS") Bench.Click(W.Sentences[T.Type].Box);
    EXPECT_EQ(W.timer_Simulator.Interval_ms(), 0);
    Bench.Click(W.cmdStart);
    EXPECT_EQ(W.timer_Simulator.Interval_ms(), 400);
    EXPECT_EQ(*W.cmdStart.Caption, "START");
    Bench.Click(W.cmdPause);
    EXPECT_EQ(*W.cmdStart.Caption, "Continue");
    EXPECT_EQ(W.timer_Simulator.Interval_ms(), 0);
    for (const Told_Sentence& T : Told) EXPECT_EQ(W.Sentences[T.Type].Clock.Interval_ms(), 0) << T.Type;
    Bench.Run_s(5);
    EXPECT_TRUE(Bench.Sent.empty());
    EXPECT_TRUE(Bench.S.Of<Gyro_State>().HDT_Enabled[1]);
    Bench.Click(W.cmdStart);
    for (const Told_Sentence& T : Told)
        EXPECT_EQ(W.Sentences[T.Type].Clock.Interval_ms(), std::string(T.Type) == "THS" ? 0 : 1000) << T.Type;
    EXPECT_TRUE(W.cmdPause.Enabled);
    Bench.Click(W.Sentences["THS"].Box);
    Bench.Click(W.cmdPause);
    Bench.Click(W.cmdStart);
    EXPECT_EQ(W.Sentences["THS"].Clock.Interval_ms(), 1000);
}

TEST(Gyro_Opening, Ship_Mode_Leaves_The_Sentences_Alone) {
    Sensor_Bench Bench("Ship");
    Bench.S.Of<Gyro_State>().Gyro_Noise_Enabled[1] = true;
    Bench.S.Of<Gyro_State>().Gyro_HDG[1] = 77;
    Bench.S.Of<Gyro_State>().HDT_Enabled[1] = true;
    frmGyro& W = Bench.Open_Gyro();
    EXPECT_TRUE(W.lblShipControl.Visible);
    std::string Shown;
    for (const Control* C : W.Controls)
        if (C->Kind != Control_Kind::Timer && static_cast<const Visible_Control*>(C)->Shown())
            Shown += C->Path() + " ";
    EXPECT_EQ(Shown,
              "frameNMEAMessages txtTalker cmbComPort lblShipControl lblModeIndicator cmbModeIndicator "
              "lblDecimals cmbDecimals chkHDT cmbHDTInterval chkTHS cmbTHSInterval chkROT "
              "cmbROTInterval chkHDM cmbHDMInterval chkATT lblATT cmbATTInterval chkPRDID lblPRDID "
              "cmbPRDIDInterval frmCurrent lblHdgTitle lblCurrentHdg lblRotTitle lblCurrentRot "
              "lblRollTitle lblCurrentRoll lblPitchTitle lblCurrentPitch ");
    EXPECT_THROW(Bench.Sim.Windows.User_Click(W.cmdStart), User_Refusal);
    EXPECT_THROW(Bench.Sim.Windows.User_Set(W.scrHDG, std::int64_t{5}), User_Refusal);
    // Nothing makes a noisy heading in this mode, so that HDT stays at the one of a fresh window.
    Bench.Run_s(1.1);
    ASSERT_EQ(Bench.Sent.size(), 1U);
    EXPECT_EQ(Bench.Sent[0].Text, Framed("HEHDT,000.0,T"));
    Bench.Sent.clear();
    W.chkNoise.Set_Value(false);
    Bench.Run_s(1);
    EXPECT_EQ(Bench.Sent.at(0).Text, Framed("HEHDT,077.0,T"));
    EXPECT_FALSE(Sensor_Bench().Open_Gyro().lblShipControl.Visible);
}

TEST(Gyro_Opening, Knows_No_Third_Gyro) {
    Sensor_Bench Bench;
    for (const int Instance : {0, 3})
        EXPECT_THROW(Open_Window(Bench.Sim, "frmGyro", Instance), Run_Time_Error);
}

} // namespace
} // namespace brinewright
