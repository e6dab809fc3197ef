#include "dialogs/iec61162/frm_iec61162.hpp"
#include "sentences/utc_state.hpp"
#include "shell/state/fault_state.hpp"
#include "shell/state/iec450_state.hpp"
#include "shell/state/link_state.hpp"
#include "shell/transmit/tag_block.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {
namespace {

// At 10:00:00 of 2026-01-01, which is 1767261600 s after 1970 as this clock counts.
struct Tag_Block : testing::Test, Virtual_Simulator {
    std::string Header(int Port = 18, int Line = 1, int Lines = 1) {
        std::string Sentence = "$M";
        Make_UdPbC_Header(Sim, Sentence, static_cast<std::int16_t>(Port), static_cast<std::int16_t>(Line),
                          static_cast<std::int16_t>(Lines));
        EXPECT_TRUE(Sentence.ends_with("$M"));
        return Sentence.substr(0, Sentence.size() - 2);
    }
    // The block around Inside with its checksum, summed here on its own.
    static std::string Block(const std::string& Inside) {
        unsigned Sum = 0;
        for (const char C : Inside) Sum ^= static_cast<unsigned char>(C);
        const char* Digits = "0123456789ABCDEF";
        return "\\" + Inside + "*" + Digits[Sum / 16] + Digits[Sum % 16] + "\\";
    }
    Simulator_State& S = Sim.State;
};

TEST_F(Tag_Block, Tags_In_Their_Order) {
    S.Of<IEC450_State>().s_Tag = "Brinewright";
    S.Of<IEC450_State>().d_Tag = "Listener 1";
    S.Of<IEC450_State>().d2_Tag = "Listener 2";
    S.Of<IEC450_State>().t_Tag = "Text";
    S.Of<IEC450_State>().Use_s_Tag = S.Of<IEC450_State>().Use_n_Tag = true;
    S.Of<Link_State>().Transmit.UdPbC_Sequence[18] = 11;
    EXPECT_EQ(Header(), "\\s:Brinewright,n:12*77\\");

    S.Of<IEC450_State>().Use_d_Tag = S.Of<IEC450_State>().Use_d2_Tag = S.Of<IEC450_State>().Use_g_Tag =
        S.Of<IEC450_State>().Use_c_Tag = S.Of<IEC450_State>().Use_t_Tag = true;
    EXPECT_EQ(Header(18, 2, 3),
              Block("s:Brinewright,d:Listener 1,d:Listener 2,n:13,g:2-3-0,c:1767261600,t:Text"));
    S.Of<UTC_State>().UTC_Offset_Hours = -90; // signed minutes
    EXPECT_EQ(Header(), Block("s:Brinewright,d:Listener 1,d:Listener 2,n:14,c:1767256200,t:Text"));

    S.Of<IEC450_State>().UdPbC_Header_Enabled = true;
    S.Of<IEC450_State>().Use_s_Tag = S.Of<IEC450_State>().Use_d_Tag = S.Of<IEC450_State>().Use_d2_Tag =
        S.Of<IEC450_State>().Use_n_Tag = S.Of<IEC450_State>().Use_c_Tag = false;
    EXPECT_EQ(Header(), std::string("UdPbC\0", 6) + Block("t:Text"));
    S.Of<IEC450_State>().t_Tag = "";
    EXPECT_EQ(Header(), std::string("UdPbC\0", 6) + Block("t:"));

    // Without any tag the opening backslash goes, and the checksum of nothing stands there.
    S.Of<IEC450_State>().Use_t_Tag = false;
    EXPECT_EQ(Header(), std::string("UdPbC\0*XX\\", 10));
    S.Of<IEC450_State>().UdPbC_Header_Enabled = false;
    EXPECT_EQ(Header(), "*XX\\");
}

TEST_F(Tag_Block, Counters_Run_By_Port_And_Start_Over) {
    S.Of<IEC450_State>().Use_n_Tag = S.Of<IEC450_State>().Use_g_Tag = true;
    for (int N = 1; N <= 999; ++N) ASSERT_EQ(Header(1), Block("n:" + std::to_string(N)));
    EXPECT_EQ(Header(1), Block("n:1"));
    EXPECT_EQ(Header(28), Block("n:1")); // every port has its own
    EXPECT_EQ(S.Of<Link_State>().Transmit.UdPbC_Group[1],
              0); // sentences that stand alone leave the groups alone

    for (int Group = 1; Group <= 99; ++Group)
        for (int Line = 1; Line <= 3; ++Line) Header(28, Line, 3);
    EXPECT_EQ(S.Of<Link_State>().Transmit.UdPbC_Sequence[28], 298);
    EXPECT_EQ(Header(28, 1, 3), Block("n:299,g:1-3-1"));
    EXPECT_EQ(Header(28, 2, 3), Block("n:300,g:2-3-1"));
    EXPECT_EQ(Header(28, 3, 3), Block("n:301,g:3-3-1"));
    EXPECT_EQ(Header(1, 1, 2), Block("n:2,g:1-2-1"));

    // There is no port 29: told in a box, and the text stays.
    std::string Sentence = "$M";
    Sim.Windows.Event([&] { Make_UdPbC_Header(Sim, Sentence, 29, 1, 1); });
    EXPECT_EQ(Take_Boxes(), Texts{"Subscript out of range"});
    EXPECT_EQ(Sentence, "$M");
}

TEST_F(Tag_Block, Stands_In_Front_Of_Every_Sentence_And_Faults_Act_On_The_Whole) {
    S.Of<IEC450_State>().IEC450_Enabled = S.Of<IEC450_State>().UdPbC_Header_Enabled =
        S.Of<IEC450_State>().Use_t_Tag = true;
    S.Of<IEC450_State>().t_Tag = "A";
    Use({18, 28});
    Open_Form(1);
    for (const int Port : {18, 28, 29, -5, 0}) {
        S.Of<Link_State>().Sensor_Table[1].Port = static_cast<std::int16_t>(Port);
        Sim.Windows.Event([&] { Send_Sentence(Sim, "$GPHDT*5A", *Open_One<frmPosition>(Sim, 1)); });
    }
    const std::string Framed = std::string("UdPbC\0", 6) + Block("t:A") + "$GPHDT*5A\r\n";
    EXPECT_EQ(Sent_On("UDP 255.255.255.255:60001"), Texts{Framed});
    EXPECT_EQ(Sent_On("UDP 255.255.255.255:60011"), Texts{Framed});
    Sim.State.Of<Fault_State>().Fault_Faulty_Checksum = true;
    S.Of<Link_State>().Sensor_Table[1].Port = 18;
    Sim.Windows.Event([&] { Send_Sentence(Sim, "$GPHDT*5A", *Open_One<frmPosition>(Sim, 1)); });
    EXPECT_EQ(World.Sent.back().second, std::string("UdPbC\0", 6) + Block("t:A") + "$GPHDT*5F\r\n");
    EXPECT_EQ(World.Sent.size(), 3u);
    EXPECT_TRUE(Told.empty());
}

TEST_F(Tag_Block, The_Dialog) {
    S.Of<IEC450_State>().IEC450_Enabled = true;
    S.Of<IEC450_State>().Use_g_Tag = true;
    S.Of<IEC450_State>().d2_Tag = "Mine";
    Click(Main_Window(Sim).Item("mnuOptionIEC450"));
    ASSERT_TRUE(Open_One<frmIEC61162>(Sim));
    frmIEC61162& F = *Open_One<frmIEC61162>(Sim);
    EXPECT_EQ(F.Caption, "IEC 61162-450 Multiple talkers and listeners");
    EXPECT_EQ(*F.chkIEC61162_450.Caption, "IEC 61162-450 On");
    EXPECT_EQ(*F.chkUdpbc.Caption, "UdPbC header On");
    const char* Captions[] = {"s: Source Identification",
                              "d: Destination Identification 1",
                              "d: Destination Identification 2",
                              "n: Line-count parameter",
                              "g: Grouping control",
                              "c: Time, sec since 1 Jan 1970",
                              "t:Text string"};
    ASSERT_EQ(F.chkIEC61162.size(), 7u);
    for (int I = 0; I < 7; ++I) {
        const auto* Box = dynamic_cast<Check_Box*>(F.Find("chkIEC61162(" + std::to_string(I) + ")"));
        ASSERT_TRUE(Box);
        EXPECT_EQ(*Box->Caption, Captions[I]);
        EXPECT_EQ(Box->Value(), I == 4);
    }
    EXPECT_TRUE(F.chkIEC61162_450.Value());
    EXPECT_FALSE(F.chkUdpbc.Value());
    EXPECT_EQ(F.txtSourceId.Text(), "Brinewright");
    EXPECT_EQ(F.txtDestinationId[0].Text(), "Listener 1");
    EXPECT_EQ(F.txtDestinationId[1].Text(), "Mine");
    EXPECT_EQ(F.txtTextString.Text(), "Type your text string here");
    Sim.Windows.User_Focus(F.txtTextString);
    EXPECT_EQ(*F.txtTextString.Select_All_Count, 1u);

    // Cancel changes nothing.
    Click(F.chkIEC61162_450);
    Click(*F.chkIEC61162[0]);
    Click(F.cmdCancel);
    EXPECT_FALSE(Open_One<frmIEC61162>(Sim));
    EXPECT_TRUE(S.Of<IEC450_State>().IEC450_Enabled);
    EXPECT_FALSE(S.Of<IEC450_State>().Use_s_Tag);
    EXPECT_EQ(S.Of<IEC450_State>().s_Tag, "");

    for (const bool On : {true, false}) {
        S.Of<IEC450_State>().IEC450_Enabled = !On;
        Click(Main_Window(Sim).Item("mnuOptionIEC450"));
        EXPECT_EQ(*Main_Window(Sim).Item("mnuOptionIEC450").Checked, false); // choosing the item is no toggle
        frmIEC61162& D = *Open_One<frmIEC61162>(Sim);
        Click(D.chkIEC61162_450);
        Click(D.chkUdpbc);
        for (const auto& Box : D.chkIEC61162) Click(*Box);
        Sim.Windows.User_Set(D.txtSourceId, std::string(On ? "Source" : "Other"));
        Click(D.cmdOK);
        EXPECT_EQ(Take_Boxes(),
                  Texts{On ? "IEC 61162-450 option enabled." : "IEC 61162-450 option disabled."});
        EXPECT_FALSE(Open_One<frmIEC61162>(Sim));
        EXPECT_EQ(S.Of<IEC450_State>().IEC450_Enabled, On);
        EXPECT_EQ(*Main_Window(Sim).Item("mnuOptionIEC450").Checked, On);
        for (const bool Used : {S.Of<IEC450_State>().UdPbC_Header_Enabled, S.Of<IEC450_State>().Use_s_Tag,
                                S.Of<IEC450_State>().Use_d_Tag, S.Of<IEC450_State>().Use_d2_Tag,
                                S.Of<IEC450_State>().Use_n_Tag, !S.Of<IEC450_State>().Use_g_Tag,
                                S.Of<IEC450_State>().Use_c_Tag, S.Of<IEC450_State>().Use_t_Tag})
            EXPECT_EQ(Used, On);
        EXPECT_EQ(S.Of<IEC450_State>().s_Tag, On ? "Source" : "Other");
        EXPECT_EQ(S.Of<IEC450_State>().d_Tag + S.Of<IEC450_State>().d2_Tag + S.Of<IEC450_State>().t_Tag,
                  "Listener 1MineType your text string here");
        Main_Window(Sim).Item("mnuOptionIEC450").Checked = false;
    }
}

} // namespace
} // namespace brinewright
