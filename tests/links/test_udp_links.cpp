#include "shell/state/link_state.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {
namespace {

TEST(UDP_Links, Go_To_All_Or_To_One_Host) {
    Virtual_Simulator V;
    V.Sim.State.Of<Link_State>().UDP_Remote_Host = "10.0.0.1";
    V.Sim.State.Of<Link_State>().Port_Table[20].Enabled = true; // not present
    V.Use({18, 28});
    EXPECT_EQ(V.World.Log, (Texts{"UDP 255.255.255.255:60001 open", "UDP 255.255.255.255:60011 open"}));

    // Changes take effect when the links are opened again.
    V.Sim.State.Of<Link_State>().UDP_Mode = -1;
    V.Sim.State.Of<Link_State>().UDP_Port_Number[0] = 70;
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
    V.Sim.State.Of<Link_State>().Extended_Monitor_Port = 18;
    Open_Window(V.Sim, "frmExtendedMonitor");
    V.Sim.State.Of<Link_State>().Extended_Monitor_Lines = 100;
    Link.Arrive("other port");
    EXPECT_EQ(Link.Received.size(), 2u);
    Open_One<frmExtendedMonitor>(V.Sim)->cmbComPort.Set_List_Index(1);
    V.Click(Open_One<frmExtendedMonitor>(V.Sim)->cmdFreeze);
    Link.Arrive("frozen");
    EXPECT_EQ(Link.Received.size(), 0u); // read, and lost to the pane
    EXPECT_EQ(Open_One<frmExtendedMonitor>(V.Sim)->txtInput.Text(), "");
    V.Click(Open_One<frmExtendedMonitor>(V.Sim)->cmdFreeze);

    // Whole, whatever it holds, as one line each; the first NUL is a blank.
    Link.Arrive(std::string("UdPbC\0\\s:A\0\n\n", 13));
    Link.Arrive("x");
    EXPECT_EQ(Open_One<frmExtendedMonitor>(V.Sim)->txtInput.Text(), std::string("UdPbC \\s:A\0\n\nx", 14));
    EXPECT_EQ(V.Sim.State.Of<Link_State>().Transmit.Extended_Rx_Line_Count, 2);

    // What was left unread comes with the next one: the pane does not lag behind from then on.
    Link.Received = {"a", "b"};
    Link.Arrive("c");
    EXPECT_TRUE(Open_One<frmExtendedMonitor>(V.Sim)->txtInput.Text().ends_with("xabc"));
    EXPECT_TRUE(Link.Received.empty());
}

} // namespace
} // namespace brinewright
