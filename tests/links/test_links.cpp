// The links: how they are opened, what comes in on them, and the list of those in use.

#include "links/port_list.hpp"
#include "platform/form.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {
namespace {

TEST(Serial_Ports, Are_Brought_To_The_State_Of_The_Table) {
    Virtual_Simulator V;
    Simulator_State& S = V.Sim.State;
    S.Of<Link_State>().Port_Table[1] = {true, true, 4800, 8, "none", 1};
    S.Of<Link_State>().Port_Table[2] = {true, true, 38400, 7, "even", 2};
    S.Of<Link_State>().Port_Table[3] = {true, true, 115200, 8, "odd", 1};
    S.Of<Link_State>().Port_Table[4] = {true, false, 4800, 8, "none", 1};
    S.Of<Link_State>().Port_Table[16] = {false, true, 4800, 8, "none", 1};
    for (int Slot = 1; Slot <= 11; ++Slot) S.Of<Link_State>().Sensor_Table[Slot].Port = 3;
    V.Init(4);
    EXPECT_EQ(V.World.Log,
              (Texts{"COM 1 open 4800,n,8,1", "COM 2 open 38400,e,7,2", "COM 3 open 115200,o,8,1"}));
    EXPECT_EQ(S.Of<Link_State>().Comport_Count, 4);
    EXPECT_TRUE(S.Of<Link_State>().Ports_Initialised);
    auto& Panels = Main_Window(V.Sim).sbStatusBar;
    EXPECT_EQ(*Panels[1].Caption, "COM 1");
    for (int Port = 1; Port <= 16; ++Port) EXPECT_EQ(*Panels[Port].Visible, Port <= 3) << Port;

    // Again: open ports are closed first. A port that is not used any more loses its panel and its sensors,
    // but for slots 9 to 11; those of other ports stay.
    S.Of<Link_State>().Port_Table[3].Enabled = false;
    S.Of<Link_State>().Port_Table[1].Present = false;
    S.Of<Link_State>().Sensor_Table[2].Port = 2;
    V.World.Log.clear();
    V.Init(4);
    EXPECT_EQ(V.World.Log, (Texts{"COM 1 close", "COM 2 close", "COM 2 open 38400,e,7,2", "COM 3 close"}));
    for (int Slot = 1; Slot <= 11; ++Slot)
        EXPECT_EQ(S.Of<Link_State>().Sensor_Table[Slot].Port, Slot == 2 ? 2 : Slot <= 8 ? 0 : 3);
    for (int Port = 1; Port <= 16; ++Port) EXPECT_EQ(*Panels[Port].Visible, Port == 2) << Port;

    S.Of<Link_State>().Port_Table[2].Enabled = false;
    V.Init(0);
    EXPECT_EQ(S.Of<Link_State>().Comport_Count, 0);
    EXPECT_EQ(*Panels[1].Caption, "No comports enabled");
    for (int Port = 1; Port <= 16; ++Port) EXPECT_EQ(*Panels[Port].Visible, Port == 1) << Port;
    EXPECT_TRUE(V.Told.empty());
}

TEST(Serial_Ports, One_That_Does_Not_Open_Is_Told_And_The_Others_Open) {
    Virtual_Simulator V;
    V.World.Failures["COM 2 open"] = "Device unavailable";
    V.Use({1, 2, 3});
    EXPECT_EQ(V.Take_Boxes(), Texts{"Device unavailable. Comport  2 not available! Please re-arrange your "
                                    "COM Setup! (Use Reset buttom "
                                    "on Com Setup)"});
    EXPECT_TRUE(V.World.Coms[3]->Opened);
    EXPECT_TRUE(*Main_Window(V.Sim).sbStatusBar[2].Visible); // the panel shows in spite of it
    V.World.Failures.clear();
    V.Init();
    EXPECT_TRUE(V.World.Coms[2]->Opened);
    EXPECT_TRUE(V.Told.empty());
}

// The extended monitor on port 3, with another port beside it.
struct Receiving : testing::Test, Virtual_Simulator {
    void SetUp() override {
        Use({3, 4});
        Link().Extended_Monitor_Port = 3;
        Open_Window(Sim, "frmExtendedMonitor");
        Link().Extended_Monitor_Lines = 100;
    }
    std::string Pane() { return Open_One<frmExtendedMonitor>(Sim)->txtInput.Text(); }
    Played_Platform::Serial& Com(int Number) { return *World.Coms[Number]; }
};

TEST_F(Receiving, Whole_Lines_Of_The_Watched_Port_Show) {
    Com(3).Arrive("one\r\ntw");
    EXPECT_EQ(Pane(), "one\r\n");
    Com(3).Arrive("o\n\nthree\nfo");
    EXPECT_EQ(Pane(), "one\r\ntwo\n\nthree\n");
    EXPECT_EQ(Link().Transmit.Extended_Rx_Line_Count, 4);
    Com(4).Arrive("unseen\n");
    EXPECT_EQ(Com(4).Received, "unseen\n"); // it stays in the port
    EXPECT_EQ(Link().Transmit.Extended_Rx_Line_Count, 4);

    // Frozen, lines are taken and lost. The buffer is one for all ports.
    Click(Open_One<frmExtendedMonitor>(Sim)->cmdFreeze);
    Com(3).Arrive("ur\nfi");
    Click(Open_One<frmExtendedMonitor>(Sim)->cmdFreeze);
    Open_One<frmExtendedMonitor>(Sim)->cmbComPort.Set_List_Index(1);
    Com(4).Arrive("x\n");
    EXPECT_EQ(Pane(), "fiunseen\nx\n");

    Close(*Open_One<frmExtendedMonitor>(Sim));
    Com(4).Arrive("later\n");
    EXPECT_EQ(Com(4).Received, "later\n");
}

TEST_F(Receiving, Line_Errors_Empty_The_Half_Received_Line_And_Show_Nothing) {
    for (const int Event : {1001, 1004, 1006, 1008, 1009}) {
        Com(3).Arrive("half");
        Com(4).On_Comm(static_cast<Comm_Event>(Event)); // another port's: dropped
        EXPECT_EQ(Sim.Links.Rx_Buffer, "half");
        Com(3).On_Comm(static_cast<Comm_Event>(Event));
        EXPECT_EQ(Sim.Links.Rx_Buffer, "");
    }
    Com(3).Arrive("half");
    Com(3).On_Comm(static_cast<Comm_Event>(3)); // any other event does nothing
    EXPECT_EQ(Sim.Links.Rx_Buffer, "half");
    EXPECT_EQ(Pane(), "");
    EXPECT_TRUE(Told.empty());
    for (int I = 0; I < 100; ++I) Com(3).Arrive(std::string(1000, 'x')); // a line that never ends
    EXPECT_LT(Sim.Links.Rx_Buffer.size(), 70000u);
}

TEST_F(Receiving, A_Failure_Is_Told_And_The_Port_Opened_Anew) {
    World.Log.clear();
    World.Failures["COM 3 input"] = "Input/output error";
    Com(3).Arrive("x\n");
    ASSERT_EQ(Told.size(), 1u);
    EXPECT_EQ(Told[0].Text, "Input/output error");
    EXPECT_EQ(Told[0].Title, "ERROR - A Communication error has occured on COM-port, port is reset");
    EXPECT_EQ(World.Log, (Texts{"COM 3 close", "COM 3 open 4800,n,8,1"}));
    Take_Boxes();

    World.Failures["COM 3 open"] = "Device unavailable"; // the reset fails in its turn
    Com(3).Arrive("x\n");
    EXPECT_EQ(Take_Boxes(), (Texts{"Input/output error", "Device unavailable"}));
    World.Log.clear();
    Com(3).Arrive("x\n"); // closed now: not opened by a failure
    EXPECT_EQ(Take_Boxes(), Texts{"Input/output error"});
    EXPECT_TRUE(World.Log.empty());
}

TEST(UDP_Links, Go_To_All_Or_To_One_Host) {
    Virtual_Simulator V;
    V.Link().UDP_Remote_Host = "10.0.0.1";
    V.Link().Port_Table[20].Enabled = true; // not present
    V.Use({18, 28});
    EXPECT_EQ(V.World.Log, (Texts{"UDP 255.255.255.255:60001 open", "UDP 255.255.255.255:60011 open"}));

    // Changes take effect when the links are opened again.
    V.Link().UDP_Mode = -1;
    V.Link().UDP_Port_Number[0] = 70;
    V.Send("$A", 18);
    EXPECT_EQ(V.World.Sent.back().first, "UDP 255.255.255.255:60001");
    V.World.Log.clear();
    V.Init();
    V.Send("$A", 18);
    EXPECT_EQ(V.World.Sent.back().first, "UDP 10.0.0.1:70");
    EXPECT_EQ(V.World.Log, (Texts{"UDP 255.255.255.255:60001 close", "UDP 10.0.0.1:70 open",
                                  "UDP 255.255.255.255:60011 close", "UDP 10.0.0.1:60011 open"}));

    V.World.Failures["UDP 10.0.0.1:70 open"] = "Invalid argument";
    V.Init();
    ASSERT_EQ(V.Told.size(), 1u);
    EXPECT_EQ(V.Told[0].Text, "UDP Error : Invalid argument Select another port number");
    EXPECT_EQ(V.Told[0].Icon, Box_Icon::Stop);
    V.Send("$A", 18); // ignored
    V.Send("$B", 28);
    EXPECT_EQ(V.World.Sent.back().first, "UDP 10.0.0.1:60011");
    EXPECT_EQ(V.World.Sent.size(), 3u);
}

TEST(UDP_Links, Arriving_Datagrams_Show_On_The_Extended_Monitor_Only) {
    Virtual_Simulator V;
    V.Use({18, 19});
    auto& Link = *V.World.Sockets[1];
    Link.Arrive("closed"); // no monitor: left unread
    V.Link().Extended_Monitor_Port = 18;
    Open_Window(V.Sim, "frmExtendedMonitor");
    V.Link().Extended_Monitor_Lines = 100;
    Link.Arrive("other port");
    EXPECT_EQ(Link.Received.size(), 2u);
    Open_One<frmExtendedMonitor>(V.Sim)->cmbComPort.Set_List_Index(1);
    V.Click(Open_One<frmExtendedMonitor>(V.Sim)->cmdFreeze);
    Link.Arrive("frozen");
    EXPECT_EQ(Link.Received.size(), 3u);
    EXPECT_EQ(Open_One<frmExtendedMonitor>(V.Sim)->txtInput.Text(), "");
    Link.Received.clear();
    V.Click(Open_One<frmExtendedMonitor>(V.Sim)->cmdFreeze);

    // Whole, whatever it holds, as one line each; the first NUL is a blank.
    Link.Arrive(std::string("UdPbC\0\\s:A\0\n\n", 13));
    Link.Arrive("x");
    EXPECT_EQ(Open_One<frmExtendedMonitor>(V.Sim)->txtInput.Text(), std::string("UdPbC \\s:A\0\n\nx", 14));
    EXPECT_EQ(V.Link().Transmit.Extended_Rx_Line_Count, 2);

    // What was left unread comes with the next one: the pane does not lag behind from then on.
    Link.Received = {"a", "b"};
    Link.Arrive("c");
    EXPECT_TRUE(Open_One<frmExtendedMonitor>(V.Sim)->txtInput.Text().ends_with("xabc"));
    EXPECT_TRUE(Link.Received.empty());
}

TEST(Port_List, Offers_The_Links_In_Use_With_Their_Numbers) {
    Virtual_Simulator V;
    for (const int Port : {1, 16, 17, 18, 28}) Virtual_Simulator::Set_Up_Link(V.Sim.State, Port);
    V.Link().Port_Table[2].Present = true;
    V.Link().Port_Table[3].Enabled = true;
    Form Window(V.Sim.Windows, "Window", 0, Form_Kind::Child);
    Combo_Box List(Window, "List");
    int Clicks = 0;
    List.Click = [&] { ++Clicks; };
    const auto Entries = [&](int Selected) {
        std::vector<std::pair<std::string, int>> Found;
        Fill_Port_List(V.Sim, List, static_cast<std::int16_t>(Selected));
        for (const auto& Item : List.Items()) Found.emplace_back(Item.Text, Item.Data);
        return Found;
    };
    std::vector<std::pair<std::string, int>> Expected{
        {"COM 1", 1}, {"COM 16", 16}, {"TCP/IP", 17}, {"UDP 60001", 18}, {"UDP 60011", 28}};
    EXPECT_EQ(Entries(28), Expected);
    EXPECT_EQ(List.Text(), "UDP 60011");
    EXPECT_EQ(Clicks, 1);
    for (const int None : {0, 2, 3, 29, -5}) {
        EXPECT_EQ(Entries(None), Expected);
        EXPECT_EQ(List.List_Index(), -1);
    }
    EXPECT_EQ(Clicks, 1);

    V.Link().Virtual_Port_Option = true;
    V.Link().Virtual_Port_Number = 7;
    Expected.emplace_back("vCom 7", 18);
    EXPECT_EQ(Entries(18), Expected);
    EXPECT_EQ(List.Text(), "UDP 60001"); // the first of its number

    for (const int Port : {-5, 0, 29, 32767}) EXPECT_FALSE(Link_In_Use(V.Sim, Port));
}

} // namespace
} // namespace brinewright
