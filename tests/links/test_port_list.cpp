#include "links/port_list.hpp"
#include "links/port_setup/frm_virtual_port.hpp"
#include "links/virtual_port.hpp"
#include "platform/form.hpp"
#include "shell/state/link_state.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {
namespace {

struct Played_Virtual_Port : Virtual_Port {
    void DataToPort(std::string_view Text) override { Taken += Text; }
    std::string Taken;
};

TEST(Virtual_Port, Is_Idle_Until_Its_Option_Its_Number_And_Its_Activity_Are_There) {
    Virtual_Simulator V;
    SendVirtualData(V.Sim, "nobody");
    auto Made = std::make_unique<Played_Virtual_Port>();
    const Played_Virtual_Port& Port = *Made;
    V.Sim.Links.vCom = std::move(Made);
    V.Sim.State.Of<Link_State>().Port_Table[1].Present = true;
    V.Sim.Windows.Event([&] { Open_Window(V.Sim, frmVirtualPort::Class_Name); });
    auto& Chosen = *Open_One<frmVirtualPort>(V.Sim);
    EXPECT_EQ(Chosen.Caption, "Virtual Port Setup");
    EXPECT_EQ(Chosen.cmbVirtualPort.Items().size(), 15u);
    Chosen.cmbVirtualPort.Choose_Data(2);
    V.Click(Chosen.cmdOK);
    EXPECT_EQ(V.Sim.State.Of<Link_State>().Virtual_Port_Number, 2);
    Activate_Virtual_Port(V.Sim);
    SendVirtualData(V.Sim, "not created");
    V.Sim.State.Of<Link_State>().Virtual_Port_Option = true;
    SendVirtualData(V.Sim, "a");
    EXPECT_EQ(Port.ComPort, 2);
    Deactivate_Virtual_Port(V.Sim);
    SendVirtualData(V.Sim, "b");
    EXPECT_EQ(Port.Taken, "a");
}

TEST(Port_List, Offers_The_Links_In_Use_With_Their_Numbers) {
    Virtual_Simulator V;
    for (const int Port : {1, 16, 17, 18, 28}) Virtual_Simulator::Set_Up_Link(V.Sim.State, Port);
    V.Sim.State.Of<Link_State>().Port_Table[2].Present = true;
    V.Sim.State.Of<Link_State>().Port_Table[3].Enabled = true;
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

    V.Sim.State.Of<Link_State>().Virtual_Port_Option = true;
    V.Sim.State.Of<Link_State>().Virtual_Port_Number = 7;
    Expected.emplace_back("vCom 7", 18);
    EXPECT_EQ(Entries(18), Expected);
    EXPECT_EQ(List.Text(), "UDP 60001"); // the first of its number

    for (const int Port : {-5, 0, 29, 32767}) EXPECT_FALSE(Link_In_Use(V.Sim, Port));
}

} // namespace
} // namespace brinewright
