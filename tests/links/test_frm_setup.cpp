#include "extra/extra_state.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/shell_state.hpp"
#include "tests/links/port_setup_fixture.hpp"

namespace brinewright {
namespace {

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

TEST_F(Port_Setup, A_First_Start_Opens_It_And_Info_Tells_Of_The_Ports_Above_16) {
    Start();
    ASSERT_TRUE(Open_One<frmSetup>(Sim));
    EXPECT_EQ(Take_Boxes(),
              (Texts{"No setupfile exist. Default data loaded and no comports initialized ! ", Detecting}));
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

} // namespace
} // namespace brinewright
