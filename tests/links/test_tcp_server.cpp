#include "links/tcp_status/frm_tcpip.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {
namespace {

// Started at 10:00:00 with the server on port 8040.
struct TCP : testing::Test, Virtual_Simulator {
    void SetUp() override { Use({17}); }
    frmTCPIP& F() { return *Open_One<frmTCPIP>(Sim); }
    Texts History() { return Entries(F().cmbConnections); }
    int State(std::size_t Element) { return Sim.Links.WinsockArray.at(Element)->State; }
    // The peer of element Number goes away.
    void Leave(std::size_t Number) { World.Clients[Number]->On_Close(); }
};

TEST_F(TCP, The_Window_At_First) {
    EXPECT_EQ(World.Log, Texts{"listen 8040"});
    EXPECT_EQ(*F().lblStatus.Caption, "Listening for connection");
    EXPECT_EQ(*F().lblIP.Caption, "127.0.0.1");
    EXPECT_EQ(*F().lblPort.Caption, "8040");
    EXPECT_NE(Sim.Windows.Active_Form, &F()); // shown without focus
    F().Left = 1234;
    F().Top = -40000; // outside of what the state can hold
    Close(F());
    EXPECT_EQ(Link().frmTCPIP_Left, 1234);
    EXPECT_LE(Link().frmTCPIP_Top, -32767);
    Link().frmTCPIP_Top = 77;
    Init();
    EXPECT_EQ(F().Left, 1234);
    EXPECT_EQ(F().Top, 77);
    EXPECT_EQ(*frmTCPIP(Sim.Windows).lblStatus.Caption, "Status :");
}

TEST_F(TCP, Clients_Come_And_Go) {
    World.Connect("10.0.0.7");
    EXPECT_EQ(Link().TCP_Client_Max_Index, 1);
    EXPECT_EQ(Link().TCP_Client_Count, 1);
    EXPECT_EQ(State(0), 7);
    EXPECT_EQ(State(1), 2);
    EXPECT_EQ(*F().lblStatus.Caption, "Connected to 1 clients");
    EXPECT_TRUE(*F().lblTX.Visible);
    EXPECT_EQ(*F().lblStatus.Fore_Colour, Ink::Black);
    EXPECT_TRUE(*F().cmbConnections.Visible);
    EXPECT_EQ(History(), Texts{" 1-Connected to IP : 10.0.0.7 - 01.01.2026 10:00:00"});

    Run_s(65);
    World.Connect("10.0.0.8");
    EXPECT_EQ(*F().lblStatus.Caption, "Connected to 2 clients");
    EXPECT_EQ(F().cmbConnections.Text(), " 2-Connected to IP : 10.0.0.8 - 01.01.2026 10:01:05");
    Send("$A", 17);
    EXPECT_EQ(Sent_On("TCP 0"), Texts{"$A\r\n"});
    EXPECT_EQ(Sent_On("TCP 1"), Texts{"$A\r\n"});

    Run_s(1);
    Leave(0);
    EXPECT_EQ(Link().TCP_Client_Count, 1);
    EXPECT_EQ(Link().TCP_Client_Max_Index, 2);
    EXPECT_EQ(*F().lblStatus.Caption, "Connected to 1 clients");
    EXPECT_EQ(F().cmbConnections.Text(),
              " 1-Connected to IP : 10.0.0.7 - 01.01.2026 10:00:00 - 01.01.2026 10:01:06 disconnected");
    Send("$B", 17);
    EXPECT_EQ(Sent_On("TCP 0").size(), 1u);
    EXPECT_EQ(Sent_On("TCP 1").size(), 2u);

    // Its element is not used again.
    World.Connect("10.0.0.9");
    EXPECT_EQ(State(2), 7);
    EXPECT_EQ(F().cmbConnections.List_Index(), 2);
    Leave(1);
    Leave(2);
    EXPECT_EQ(Link().TCP_Client_Count, 0);
    EXPECT_EQ(*F().lblStatus.Caption, "Connected to 0 clients");
    EXPECT_EQ(History().size(), 3u);
    Send("$C", 17); // nobody there, and no failure
    EXPECT_EQ(Sent_On("TCP 2"), Texts{});
    EXPECT_TRUE(Told.empty());
    EXPECT_EQ(Left.back().second, "$C\r\n");
}

TEST_F(TCP, A_Client_That_Does_Not_Read_Disturbs_Nobody) {
    World.Connect();
    World.Connect();
    World.Clients[0]->Reads = false;
    for (int I = 0; I < 5; ++I) Send("$A", 17);
    EXPECT_EQ(Sent_On("TCP 1").size(), 5u);
    EXPECT_EQ(Link().TCP_Client_Count, 2);
    EXPECT_TRUE(Told.empty());
}

TEST_F(TCP, Timers_Of_Clients_That_Have_Gone_Stop) {
    for (int I = 0; I < 300; ++I) {
        World.Connect();
        if (I % 3) Leave(static_cast<std::size_t>(I));
    }
    EXPECT_EQ(Link().TCP_Client_Max_Index, 300);
    EXPECT_EQ(Link().TCP_Client_Count, 100);
    Send("$A", 17);
    EXPECT_EQ(World.Sent.size(), 100u);
    Run_s(2.1);
    int Running = 0;
    for (const auto& Check : Sim.Links.State_Checks) {
        EXPECT_TRUE(Check->Interval_ms() == 0 || Check->Interval_ms() == 2000);
        Running += Check->Interval_ms() != 0;
    }
    EXPECT_EQ(Running, 100);
    EXPECT_GT(std::count_if(World.Log.begin(), World.Log.end(), [](auto& L) { return L.ends_with("gone"); }),
              190);
}

TEST_F(TCP, Listening_Again_Keeps_The_Clients) {
    World.Connect("10.0.0.7");
    Link().TCP_Port = 4001;
    Set_Time_Of_Day(40000);
    World.Log.clear();
    Init();
    EXPECT_EQ(World.Log, (Texts{"listen close", "listen 4001"}));
    EXPECT_EQ(*F().lblPort.Caption, "4001");
    EXPECT_EQ(Link().TCP_Client_Count,
              1); // closing the element that listens is no client going away
    EXPECT_EQ(Link().TCP_Client_Max_Index, 1);
    EXPECT_EQ(*F().lblStatus.Caption, "Connected to 1 clients");
    EXPECT_EQ(History().back(), " 1-Connected to IP : 10.0.0.7 - 01.01.2026 11:06:40");
    EXPECT_EQ(F().cmbConnections.List_Index(), 0);
    World.Connect();
    Send("$A", 17);
    EXPECT_EQ(Sent_On("TCP 0").size() + Sent_On("TCP 1").size(), 2u);

    // Without the link in use all of it ends.
    Link().Port_Table[17].Enabled = false;
    Init();
    EXPECT_FALSE(World.Listener->Listening);
    EXPECT_EQ(Link().TCP_Client_Count, 0);
    Send("$B", 17);
    EXPECT_EQ(World.Sent.size(), 2u);
}

TEST_F(TCP, A_Closed_Window_Changes_Nothing_And_Shows_All_When_It_Is_Back) {
    World.Connect("10.0.0.7");
    Close(F());
    World.Connect("10.0.0.8");
    Leave(0);
    Send("$A", 17);
    Send("$A", 17);
    EXPECT_EQ(Sent_On("TCP 1").size(), 2u);
    Open_Window(Sim, "frmTCPIP");
    EXPECT_EQ(*F().lblStatus.Caption, "Connected to 1 clients");
    EXPECT_EQ(History(),
              (Texts{" 1-Connected to IP : 10.0.0.7 - 01.01.2026 10:00:00 - 01.01.2026 10:00:00 disconnected",
                     " 2-Connected to IP : 10.0.0.8 - 01.01.2026 10:00:00"}));
}

TEST(TCP_Failure, A_Port_That_Is_Taken_Is_Told_And_The_Rest_Goes_On) {
    Virtual_Simulator V;
    V.World.Failures["listen"] = "Address already in use";
    V.Use({17, 18});
    ASSERT_EQ(V.Told.size(), 1u);
    EXPECT_EQ(V.Told[0].Text, "TCP/IP Error : Address already in use Select another port number");
    EXPECT_EQ(V.Told[0].Icon, Box_Icon::Stop);
    EXPECT_EQ(*Open_One<frmTCPIP>(V.Sim)->lblStatus.Caption, "Status :");
    V.Send("$A", 17);
    V.Send("$A", 18);
    EXPECT_EQ(V.World.Sent.size(), 1u);

    V.World.Failures.clear();
    V.Init();
    EXPECT_EQ(*Open_One<frmTCPIP>(V.Sim)->lblStatus.Caption, "Listening for connection");
    V.World.Connect();
    V.Send("$A", 17);
    EXPECT_EQ(V.Sent_On("TCP 0").size(), 1u);
    V.World.Failures["listen"] = "Permission denied";
    V.Link().TCP_Port = 80;
    V.Init();
    V.Send("$A", 17); // the client stays
    EXPECT_EQ(V.Sent_On("TCP 0").size(), 2u);
    EXPECT_EQ(V.Link().TCP_Client_Count, 1);
}

} // namespace
} // namespace brinewright
