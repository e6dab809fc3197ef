#include "shell/state/link_state.hpp"
#include "tests/links/port_setup_fixture.hpp"

namespace brinewright {
namespace {

TEST_F(Port_Setup, Detection_Tells_Present_Busy_And_Absent_Ports_Apart) {
    Is_There(2);
    Answer(5, "Device or resource busy");
    Is_There(16);
    frmSetup& F = Detect();
    EXPECT_EQ(Take_Boxes(), Texts{Detecting});
    EXPECT_EQ(Shown(), (std::vector<int>{2, 5, 16}));
    EXPECT_EQ(*F.lblAvailable[5].Caption, "Port is busy");
    EXPECT_FALSE(*F.chkEnable[5].Enabled);
    EXPECT_TRUE(*F.chkEnable[16].Enabled);
    EXPECT_FALSE(World.Coms[2]->Opened); // closed again
    // What stands in a hidden frame is hidden with it, so that nobody can operate it.
    EXPECT_FALSE(F.chkEnable[1].Shown());
    EXPECT_FALSE(F.cmbBaudRate[1].Shown());
    EXPECT_EQ(F.cmbBaudRate[2].Text() + F.cmbDataBits[2].Text() + F.cmbParity[2].Text() +
                  F.cmbStopBits[2].Text(),
              "48008none1");

    Click(F.chkEnable[16]);
    Click(F.chkEnable[5]); // refused
    Click(F.cmdOK);
    const auto& Table = Link().Port_Table;
    EXPECT_EQ(Link().Present_Port_Count, 2);
    EXPECT_EQ(Link().Comport_Count, 2);
    EXPECT_TRUE(Table[2].Present && !Table[2].Enabled);
    EXPECT_TRUE(!Table[5].Present && !Table[5].Enabled);
    EXPECT_TRUE(Table[16].Present && Table[16].Enabled);
    EXPECT_TRUE(World.Coms[16]->Opened);
    EXPECT_FALSE(Open_One<frmSetup>(Sim));
}

TEST_F(Port_Setup, Detection_Lets_The_Event_Loop_Run_And_Shows_How_Far_It_Is) {
    frmSetup& F = Open();
    ASSERT_TRUE(Open_One<frmProgress>(Sim));
    EXPECT_EQ(*Open_One<frmProgress>(Sim)->lblPercent.Caption, "0 %");
    EXPECT_EQ(World.Log, Texts{}); // none tried yet
    const auto Tick = [&] { return Sim.Timers.Fire_One(); };
    std::vector<std::string> Percents;
    for (int Port = 1; Port <= 15; ++Port) {
        World.Machine_Clock.Advance_To(Now_us() + 100'000);
        ASSERT_TRUE(Tick());
        Percents.push_back(*Open_One<frmProgress>(Sim)->lblPercent.Caption);
        EXPECT_EQ(World.Log.size(), static_cast<std::size_t>(Port)); // one port for each turn
    }
    EXPECT_EQ(Percents[0], "6 %");
    EXPECT_EQ(Percents[7], "50 %");
    EXPECT_EQ(Percents[14], "94 %");
    EXPECT_EQ(*Open_One<frmProgress>(Sim)->lblTime.Caption, "1 sec");
    // Half a result must not be confirmed.
    EXPECT_FALSE(*F.cmdOK.Enabled || *F.cmdReset.Enabled);
    World.Machine_Clock.Advance_To(Now_us() + 100'000);
    ASSERT_TRUE(Tick());
    EXPECT_FALSE(Open_One<frmProgress>(Sim));
    EXPECT_TRUE(*F.cmdOK.Enabled && *F.cmdReset.Enabled);
    EXPECT_EQ(Take_Boxes(), (Texts{Detecting, None_Found}));
    EXPECT_EQ(Shown(), std::vector<int>{});
    Run_s(1);
    EXPECT_EQ(World.Log.size(), 16u);
}

TEST_F(Port_Setup, Closing_Windows_While_Ports_Are_Tried_Harms_Nothing) {
    Open();
    Run_s(0.02);
    Close(*Open_One<frmProgress>(Sim)); // the detection goes on without it
    Run_s(0.02);
    ASSERT_TRUE(Open_One<frmSetup>(Sim));
    Click(Open_One<frmSetup>(Sim)->cmdCancel);
    const std::size_t Tried = World.Log.size();
    Run_s(1);
    EXPECT_EQ(World.Log.size(), Tried);
    EXPECT_LT(Tried, 16u);
    EXPECT_FALSE(Link().Ports_Initialised);
    Open();
    Close(*Open_One<frmSetup>(Sim));
    EXPECT_FALSE(Open_One<frmProgress>(Sim));
    Detect();
    EXPECT_EQ(Take_Boxes(), (Texts{Detecting, Detecting, Detecting, None_Found}));
}

TEST_F(Port_Setup, Ports_Refused_For_Lack_Of_Rights_Are_Told_With_A_Remedy) {
    Answer(3, "Permission denied");
    Detect();
    const Texts One = Take_Boxes();
    ASSERT_EQ(One.size(), 2u);
    EXPECT_EQ(One[1].rfind(std::string(None_Found) + ". 1 port was refused for lack of rights.", 0), 0u)
        << One[1];
    EXPECT_NE(One[1].find("dialout"), std::string::npos);
    EXPECT_EQ(Shown(), std::vector<int>{});

    Answer(4, "Permission denied");
    Is_There(1);
    Click(Open_One<frmSetup>(Sim)->cmdReset);
    Run_s(1);
    const Texts Two = Take_Boxes();
    ASSERT_EQ(Two.size(), 2u);
    EXPECT_EQ(Two[1].rfind("2 ports were refused for lack of rights.", 0), 0u) << Two[1];
    EXPECT_EQ(Shown(), std::vector<int>{1});
}

TEST_F(Port_Setup, A_Port_That_Sends_Is_There_And_Its_Output_Goes_On) {
    Is_There(2);
    Use({2});
    frmSetup& Before = Open();
    EXPECT_EQ(Shown(), std::vector<int>{2});
    EXPECT_TRUE(Before.chkEnable[2].Value());
    World.Log.clear();
    Click(Before.cmdReset);
    EXPECT_FALSE(Link().Port_Table[2].Present || Link().Port_Table[2].Enabled);
    EXPECT_FALSE(Link().Ports_Initialised);
    Run_s(1);
    EXPECT_EQ(Shown(), std::vector<int>{2});
    for (const std::string& Line : World.Log) EXPECT_NE(Line.rfind("COM 2 ", 0), 0u) << Line;
    Send("$GPGGA", 2);
    EXPECT_EQ(Sent_On("COM 2"), Texts{"$GPGGA\r\n"});
}

TEST_F(Port_Setup, Frames_Fill_Two_Columns_Of_Eight_In_The_Order_Of_The_Ports) {
    for (int Port = 1; Port <= 16; ++Port) Is_There(Port);
    frmSetup& F = Detect();
    EXPECT_EQ(Shown().size(), 16u);
    const auto Place = [&F](int Port) { return std::pair(F.Places[Port].Column, F.Places[Port].Row); };
    EXPECT_EQ(Place(1), std::pair(0, 0));
    EXPECT_EQ(Place(8), std::pair(0, 7));
    EXPECT_EQ(Place(9), std::pair(1, 0));
    EXPECT_EQ(Place(16), std::pair(1, 7));
    // The ninth frame that is shown, whatever its number.
    Answer(1, "No such file or directory");
    Click(F.cmdReset);
    Run_s(1);
    EXPECT_EQ(std::pair(Open_One<frmSetup>(Sim)->Places[9].Column, Open_One<frmSetup>(Sim)->Places[9].Row),
              std::pair(0, 7));
    EXPECT_EQ(std::pair(Open_One<frmSetup>(Sim)->Places[10].Column, Open_One<frmSetup>(Sim)->Places[10].Row),
              std::pair(1, 0));
}

} // namespace
} // namespace brinewright
