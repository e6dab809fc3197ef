#include "links/port_list.hpp"
#include "platform/form.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {
namespace {

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
