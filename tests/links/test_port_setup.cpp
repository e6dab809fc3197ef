// The window of the ports: what it finds, shows and takes over.

#include "extra/extra_state.hpp"
#include "links/port_setup/frm_setup.hpp"
#include "links/port_setup/port_detection.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {
namespace {

constexpr const char* Detecting = "The Brinewright will automatic detect available comports. It might take e "
                                  "few seconds. Please be pasient!";
constexpr const char* None_Found = "No comports available on your PC";

// Ports 1 to 16 are not there unless a test says otherwise.
struct Port_Setup : testing::Test, Virtual_Simulator {
    Port_Setup() {
        for (int Port = 1; Port <= 16; ++Port) Answer(Port, "No such file or directory");
        Link().TCP_Port = 8040;
    }
    void Answer(int Port, const char* Failure) {
        World.Failures["COM " + std::to_string(Port) + " open"] = Failure;
    }
    void Is_There(int Port) { World.Failures.erase("COM " + std::to_string(Port) + " open"); }
    frmSetup& Open() {
        Choose_Menu("mnuSetupPort");
        return *Open_One<frmSetup>(Sim);
    }
    frmSetup& Detect() {
        Open();
        Run_s(1);
        return *Open_One<frmSetup>(Sim);
    }
    std::vector<int> Shown() const {
        std::vector<int> Ports;
        for (int Port = 1; Port <= 16; ++Port)
            if (*Open_One<frmSetup>(Sim)->frameCOMport[Port].Visible) Ports.push_back(Port);
        return Ports;
    }
};

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
    Texts Percents;
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

TEST_F(Port_Setup, Shows_What_Is_Set_And_OK_Takes_It_Over) {
    Link().Port_Table[1] = {true, true, 19200, 7, "even", 2};
    Link().Port_Table[2] = {true, false, 38400, 5, "mark", 2}; // values that the lists do not have
    Virtual_Simulator::Set_Up_Link(Sim.State, 18);
    Link().UDP_Port_Number[1] = 0;
    Link().UDP_Remote_Host = "10.1.2.3";
    Link().Ports_Initialised = true;
    Link().TCP_Port = 0;
    frmSetup& F = Open();
    EXPECT_TRUE(Told.empty());
    EXPECT_EQ(F.cmbBaudRate[1].Text() + F.cmbDataBits[1].Text() + F.cmbParity[1].Text() +
                  F.cmbStopBits[1].Text(),
              "192007even2");
    EXPECT_EQ(F.cmbBaudRate[2].Text(), "");
    EXPECT_EQ(F.txtPort.Text(), "8040");
    EXPECT_EQ(*F.lblIP.Caption, " IP 127.0.0.1");
    EXPECT_EQ(*F.frameCOMport[18].Caption, "UDP Port 1");
    EXPECT_EQ(F.txtUDP_port[1].Text(), "60001");
    EXPECT_EQ(F.txtUDP_port[2].Text(), "");
    EXPECT_EQ(*F.lblAvailable[18].Caption, "UDP Port : ");
    EXPECT_EQ(*F.lblAvailable[19].Caption, "UDP available");
    EXPECT_TRUE(F.chkEnable[18].Value() && !F.chkEnable[17].Value());
    EXPECT_FALSE(*F.txtUDP_RemoteHost.Enabled); // Broadcast
    EXPECT_EQ(F.txtUDP_RemoteHost.Text(), "10.1.2.3");

    Type(F.cmbParity[1], "odd");
    Type(F.txtPort, "9001");
    Type(F.txtUDP_port[2], "60011");
    EXPECT_EQ(*F.lblAvailable[19].Caption, "UDP Port : ");
    Click(F.chkEnable[17]);
    Click(*F.optUDPMode.Buttons[1]);
    EXPECT_TRUE(*F.txtUDP_RemoteHost.Enabled);
    Type(F.txtUDP_RemoteHost, "192.168.0.1");
    Click(F.cmdOK);
    const Simulator_State& S = Sim.State;
    EXPECT_EQ(S.Of<Link_State>().Port_Table[1].Parity, "odd");
    EXPECT_EQ(S.Of<Link_State>().Port_Table[2].BaudRate, 4800); // an empty list gives the usual rate
    EXPECT_EQ(S.Of<Link_State>().Port_Table[2].Parity, "mark");
    EXPECT_EQ(S.Of<Link_State>().Port_Table[2].DataBits, 5);
    EXPECT_EQ(S.Of<Link_State>().TCP_Port, 9001);
    EXPECT_TRUE(S.Of<Link_State>().Port_Table[17].Present && S.Of<Link_State>().Port_Table[17].Enabled);
    EXPECT_EQ(S.Of<Link_State>().UDP_Port_Number[0], 60001);
    EXPECT_EQ(S.Of<Link_State>().UDP_Port_Number[1], 60011);
    EXPECT_EQ(S.Of<Link_State>().UDP_Mode, 1);
    EXPECT_EQ(S.Of<Link_State>().UDP_Remote_Host, "192.168.0.1");
    EXPECT_EQ(std::count(World.Log.begin(), World.Log.end(), "UDP 192.168.0.1:60001 open"), 1);
}

TEST_F(Port_Setup, Cancel_Changes_Nothing) {
    Use({18});
    Link().UDP_Remote_Host = "10.1.2.3";
    const std::string Before = Write_Setup(Sim.State, All_Windows());
    frmSetup& F = Open();
    Type(F.txtPort, "9001");
    Type(F.txtUDP_port[1], "1");
    Click(F.chkEnable[17]);
    Click(*F.optUDPMode.Buttons[1]);
    Type(F.txtUDP_RemoteHost, "10.0.0.9");
    Click(F.cmdCancel);
    EXPECT_EQ(Write_Setup(Sim.State, All_Windows()), Before);
    EXPECT_EQ(Link().UDP_Mode, 0);
    EXPECT_FALSE(Open_One<frmSetup>(Sim));
}

TEST_F(Port_Setup, OK_Gives_The_Open_Sensor_Windows_Their_New_Ports) {
    Use({18});
    Link().Sensor_Table[2].Port = 18;
    Open_Form(2);
    frmPosition& W = *Open_One<frmPosition>(Sim, 2);
    ASSERT_EQ(W.cmbComPort.Items().size(), 1u);
    frmSetup& F = Open();
    Click(F.chkEnable[17]);
    Type(F.txtUDP_port[1], "60077");
    Click(F.cmdOK);
    ASSERT_EQ(W.cmbComPort.Items().size(), 2u);
    EXPECT_EQ(W.cmbComPort.Items()[0].Text, "TCP/IP");
    EXPECT_EQ(W.cmbComPort.Text(), "UDP 60077"); // still its own
    EXPECT_EQ(Shell().Open_Form_Index, 2);
}

TEST_F(Port_Setup, It_Stands_Once_And_Info_Tells_Of_The_Ports_Above_16) {
    Open();
    Choose_Menu("mnuSetupPort"); // no second one
    EXPECT_EQ(std::count_if(Sim.Windows.Forms.begin(), Sim.Windows.Forms.end(),
                            [](const auto& F) { return F->Name == "frmSetup"; }),
              1);
    Click(Open_One<frmSetup>(Sim)->cmdComInfo);
    ASSERT_TRUE(Open_One<frmComportInfo>(Sim));
    EXPECT_EQ(Open_One<frmComportInfo>(Sim)->Caption, "    Comport Information");
    Click(Open_One<frmComportInfo>(Sim)->cmdOK);
    EXPECT_FALSE(Open_One<frmComportInfo>(Sim));
}

TEST_F(Port_Setup, Stays_Open_Until_Its_Values_Are_Good_With_One_Message_At_A_Time) {
    Sim.State.Of<Link_State>().Ports_Initialised = true;
    frmSetup& F = Open();
    const auto Half_Type = [&](Text_Box& Box, const char* Text) {
        Sim.Windows.Event([&] { Sim.Windows.User_Type(Box, Text); });
    };
    Half_Type(F.txtPort, "80");
    Click(F.cmdOK);
    EXPECT_EQ(Take_Boxes().size(), 1u);
    ASSERT_TRUE(Open_One<frmSetup>(Sim));
    EXPECT_EQ(F.txtPort.Text(), "8040");
    EXPECT_EQ(Sim.Windows.Focus, &F.txtPort);

    Click(F.chkEnable[18]); // without a number
    EXPECT_EQ(Take_Boxes().size(), 1u);
    EXPECT_FALSE(F.chkEnable[18].Value());
    Type(F.txtUDP_port[1], "60001");
    Click(F.chkEnable[18]);
    EXPECT_TRUE(F.chkEnable[18].Value());
    Half_Type(F.txtUDP_port[1], "");
    Click(F.cmdOK);
    EXPECT_EQ(Take_Boxes().size(), 1u);
    Click(*F.optUDPMode.Buttons[1]); // to no address
    Click(F.cmdOK);
    EXPECT_EQ(Take_Boxes().size(), 1u);
    ASSERT_TRUE(Open_One<frmSetup>(Sim));
    Type(F.txtUDP_RemoteHost, "10.0.0.1");
    Click(F.cmdOK);
    EXPECT_TRUE(Take_Boxes().empty());
    EXPECT_FALSE(Open_One<frmSetup>(Sim));
    EXPECT_TRUE(Record_Of(Sim, 18).Open);
}

} // namespace
} // namespace brinewright
