#include "links/link_record.hpp"
#include "links/link_watch.hpp"
#include "links/links_at_start.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/shell_state.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {
namespace {

// What is said of a link whose opening or sending fails, and what of it when it works.
TEST(Link_Records, Tell_What_Becomes_Of_Each_Kind_Of_Link) {
    const struct {
        int Port;
        const char *Failure, *Why, *Closed, *Name;
        bool Comes_Back;
    } Cases[] = {
        {3, "COM 3 open", "No such file or directory", "COM3 is closed: the device is not there", "COM3",
         true},
        {3, "COM 3 output", "Device unavailable", "COM3 is closed: the device has gone", "COM3", true},
        {17, "listen", "Address already in use", "TCP 8040 is closed: address in use", "TCP 8040", false},
        {18, "UDP 255.255.255.255:60001 open", "Network is unreachable",
         "UDP 255.255.255.255:60001 is closed: network is unreachable", "UDP 255.255.255.255:60001", true},
        {18, "UDP 255.255.255.255:60001 send", "Network is unreachable",
         "UDP 255.255.255.255:60001 is closed: network is unreachable", "UDP 255.255.255.255:60001", true},
    };
    for (const auto& C : Cases) {
        Virtual_Simulator V;
        Texts Said;
        V.Sim.Told.Said.Add(&V, [&](const std::string& Text) { Said.push_back(Text); });
        V.World.Failures[C.Failure] = C.Why;
        V.Use({C.Port});
        V.Send("$A", C.Port);
        const Link_Record& R = Record_Of(V.Sim, C.Port);
        EXPECT_EQ(R.Name, C.Name);
        EXPECT_TRUE(R.Wanted && !R.Open) << C.Failure;
        EXPECT_EQ(Why_Nothing_Leaves(V.Sim, C.Port), C.Closed);
        EXPECT_FALSE(Output_Leaves(V.Sim, C.Port));
        EXPECT_EQ(R.Sent, 0u);
        EXPECT_EQ(R.Refused, 1u);

        V.Take_Boxes();
        Said.clear();
        V.World.Failures.clear();
        V.Run_s(3.5);
        EXPECT_EQ(R.Open, C.Comes_Back) << C.Failure;
        EXPECT_EQ(Said, C.Comes_Back ? Texts{std::string(C.Name) + " is open again"} : Texts{});
        V.Sim.Windows.Event([&] { Open_Link_Again(V.Sim, C.Port); });
        EXPECT_EQ(Said.back(), std::string(C.Name) + " is open");
        V.Send("$B", C.Port);
        EXPECT_EQ(R.Sent, 1u);
        EXPECT_EQ(R.Last_Sent_us, V.World.Machine_Clock.Local_us());
        EXPECT_TRUE(V.Take_Boxes().empty());
    }
}

TEST(Link_Records, Count_What_A_Link_Took_And_How_Fast) {
    Virtual_Simulator V;
    V.Use({3, 17});
    V.World.Coms[3]->Is_Slow = true;
    V.World.Connect();
    V.World.Connect().Reads = false;
    for (int I = 0; I < 60; ++I) {
        V.Send("$A", 3);
        V.Send("$A", 17);
        V.Run_s(0.1);
    }
    const Link_Record &Com = Record_Of(V.Sim, 3), &TCP = Record_Of(V.Sim, 17);
    EXPECT_EQ(Com.Sent, 0u);
    EXPECT_EQ(Com.Skipped, 60u);
    EXPECT_EQ(TCP.Sent, 60u); // one of its clients took it
    EXPECT_EQ(TCP.Skipped, 60u);
    EXPECT_EQ(TCP.Clients, 2);
    EXPECT_NEAR(TCP.Sentences_Per_s, 10, 1);
    V.Run_s(4.5);
    EXPECT_EQ(TCP.Sentences_Per_s, 0);
    EXPECT_EQ(*Main_Window(V.Sim).sbLink[17].Caption, "TCP 8040  2 clients  0.0/s");

    // Nothing leaves, whatever the link does.
    V.Sim.State.Of<Shell_State>().Pause_Active = true;
    EXPECT_EQ(Why_Nothing_Leaves(V.Sim, 17), "output is paused");
    V.Sim.State.Of<Shell_State>().Pause_Active = false;
    V.Hold_Boxes = true;
    V.Sim.Windows.Boxes.Show("stands");
    EXPECT_EQ(Why_Nothing_Leaves(V.Sim, 17), "output is held while a message stands");
    EXPECT_EQ(Why_Nothing_Leaves(V.Sim, 0), "no link is chosen");
}

TEST(Link_Records, An_Unticked_UDP_Link_Is_Closed_And_Its_Slot_Says_So) {
    Virtual_Simulator V;
    V.Use({18, 19});
    V.Sim.State.Of<Link_State>().Sensor_Table[3].Port = 18;
    V.Sim.State.Of<Link_State>().Port_Table[18].Enabled = false;
    V.Init();
    EXPECT_FALSE(V.World.Sockets[0]->Opened);
    V.Send("$A", 18);
    EXPECT_TRUE(V.World.Sent.empty());
    EXPECT_EQ(V.Sim.State.Of<Link_State>().Sensor_Table[3].Port, 18);
    EXPECT_EQ(Why_Nothing_Leaves(V.Sim, 18), "UDP 255.255.255.255:60001 is not in use");
}

// A click on the panel of a closed link opens it; one on the panel of an open one leads to the setup.
TEST(Link_Records, Panels_Of_The_Main_Window_Follow_And_Act) {
    Virtual_Simulator V;
    V.World.Failures["listen"] = "Address already in use";
    V.Use({17});
    Label& Panel = Main_Window(V.Sim).sbLink[17];
    EXPECT_TRUE(*Panel.Visible && !*Main_Window(V.Sim).sbLink[18].Visible);
    EXPECT_EQ(*Panel.Caption, "TCP 8040 is closed: address in use");
    EXPECT_EQ(*Panel.Fore_Colour, Ink::Red);
    V.Click(Panel);
    EXPECT_EQ(V.Sim.State.Of<Shell_State>().Last_Said, "TCP 8040 is closed: address in use");
    V.World.Failures.clear();
    V.Click(Panel);
    EXPECT_EQ(*Panel.Fore_Colour, Ink::Normal);
    V.Click(Panel);
    EXPECT_TRUE(Open_Form(V.Sim, "frmSetup"));
}

// By the count of serial ports and the user's wish.
TEST(Links_At_Start, Open_The_Network_Whatever_The_Count_Says) {
    const struct {
        int Port; // the link that the setup uses
        std::int16_t Count;
        bool Wanted, Opened;
    } Cases[] = {{17, 0, true, true}, {17, 0, false, false}, {17, 1, false, true},
                 {18, 0, true, true}, {3, 0, true, false},   {3, 1, false, true}};
    for (const auto& C : Cases) {
        Virtual_Simulator V;
        Simulator_State Setup;
        Load_Default_Data(Setup, All_Windows());
        Virtual_Simulator::Set_Up_Link(Setup, C.Port);
        Setup.Of<Link_State>().Comport_Count = C.Count;
        Set_Opens_Network_Links(V.Sim, C.Wanted);
        V.Start(Setup);
        EXPECT_EQ(Record_Of(V.Sim, C.Port).Open, C.Opened) << C.Port << C.Count << C.Wanted;
        EXPECT_EQ(V.Sim.State.Of<Link_State>().Comport_Count, C.Count);
        Label& Closed = Main_Window(V.Sim).sbLinksClosed;
        EXPECT_EQ(*Closed.Visible, !C.Opened);
        if (C.Opened) continue;
        V.Click(Closed);
        EXPECT_TRUE(Record_Of(V.Sim, C.Port).Open);
        EXPECT_FALSE(*Closed.Visible);
    }
}

TEST(Output_Strip, Says_What_Holds_And_A_Click_Continues_In_Every_Mode) {
    Virtual_Simulator V;
    const frmMain& Main = Main_Window(V.Sim);
    V.Start();
    for (const char* Mode : {"Ship", "Sensor"}) {
        V.Sim.Windows.Event([&] { V.Sim.State.Of<Shell_State>().Pause_Active = true; });
        V.Click(Main.Item("mnuMode", Mode[1] == 'h' ? 1 : 2));
        EXPECT_TRUE(*Main.lblOutputPaused.Visible) << Mode; // no change of mode ends it
        V.Sim.Windows.Event([&] { V.Sim.Windows.User_Click(Main_Window(V.Sim).lblOutputPaused); });
        EXPECT_FALSE(V.Sim.State.Of<Shell_State>().Pause_Active || *Main.lblOutputPaused.Visible) << Mode;
    }
    EXPECT_FALSE(*Main.lblOutputHeld.Visible);
    V.Hold_Boxes = true;
    V.Sim.Windows.Event([&] { V.Sim.Windows.Boxes.Show("stands"); });
    EXPECT_TRUE(*Main.lblOutputHeld.Visible);
    V.Sim.Windows.Event([&] { V.Sim.Windows.Boxes.Answer(V.Told.back().Id); });
    EXPECT_FALSE(*Main.lblOutputHeld.Visible);
}

} // namespace
} // namespace brinewright
