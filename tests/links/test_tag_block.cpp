#include "dialogs/iec61162/frm_iec61162.hpp"
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
    // The block around Inside with its checksum.
    static std::string Block(const std::string& Inside) { return "\\" + Framed(Inside).substr(1) + "\\"; }
};

TEST_F(Tag_Block, Tags_In_Their_Order) {
    IEC450().s_Tag = "Brinewright";
    IEC450().d_Tag = "Listener 1";
    IEC450().d2_Tag = "Listener 2";
    IEC450().t_Tag = "Text";
    IEC450().Use_s_Tag = IEC450().Use_n_Tag = true;
    Link().Transmit.UdPbC_Sequence[18] = 11;
    EXPECT_EQ(Header(), "\\s:Brinewright,n:12*77\\");

    IEC450().Use_d_Tag = IEC450().Use_d2_Tag = IEC450().Use_g_Tag = IEC450().Use_c_Tag = IEC450().Use_t_Tag =
        true;
    EXPECT_EQ(Header(18, 2, 3),
              Block("s:Brinewright,d:Listener 1,d:Listener 2,n:13,g:2-3-0,c:1767261600,t:Text"));
    UTC().UTC_Offset_Hours = -90; // signed minutes
    EXPECT_EQ(Header(), Block("s:Brinewright,d:Listener 1,d:Listener 2,n:14,c:1767256200,t:Text"));

    IEC450().UdPbC_Header_Enabled = true;
    IEC450().Use_s_Tag = IEC450().Use_d_Tag = IEC450().Use_d2_Tag = IEC450().Use_n_Tag = IEC450().Use_c_Tag =
        false;
    EXPECT_EQ(Header(), std::string("UdPbC\0", 6) + Block("t:Text"));
    IEC450().t_Tag = "";
    EXPECT_EQ(Header(), std::string("UdPbC\0", 6) + Block("t:"));

    // Without any tag the opening backslash goes, and the checksum of nothing stands there.
    IEC450().Use_t_Tag = false;
    EXPECT_EQ(Header(), std::string("UdPbC\0*XX\\", 10));
    IEC450().UdPbC_Header_Enabled = false;
    EXPECT_EQ(Header(), "*XX\\");
}

TEST_F(Tag_Block, Counters_Run_By_Port_And_Start_Over) {
    IEC450().Use_n_Tag = IEC450().Use_g_Tag = true;
    for (int N = 1; N <= 999; ++N) ASSERT_EQ(Header(1), Block("n:" + std::to_string(N)));
    EXPECT_EQ(Header(1), Block("n:1"));
    EXPECT_EQ(Header(28), Block("n:1")); // every port has its own
    EXPECT_EQ(Link().Transmit.UdPbC_Group[1],
              0); // sentences that stand alone leave the groups alone

    for (int Group = 1; Group <= 99; ++Group)
        for (int Line = 1; Line <= 3; ++Line) Header(28, Line, 3);
    EXPECT_EQ(Link().Transmit.UdPbC_Sequence[28], 298);
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
    IEC450().IEC450_Enabled = IEC450().UdPbC_Header_Enabled = IEC450().Use_t_Tag = true;
    IEC450().t_Tag = "A";
    Use({18, 28});
    Open_Form(1);
    for (const int Port : {18, 28, 29, -5, 0}) {
        Link().Sensor_Table[1].Port = static_cast<std::int16_t>(Port);
        Sim.Windows.Event([&] { Send_Sentence(Sim, "$GPHDT*5A", *Open_One<frmPosition>(Sim, 1)); });
    }
    const std::string Framed = std::string("UdPbC\0", 6) + Block("t:A") + "$GPHDT*5A\r\n";
    EXPECT_EQ(Sent_On("UDP 255.255.255.255:60001"), Texts{Framed});
    EXPECT_EQ(Sent_On("UDP 255.255.255.255:60011"), Texts{Framed});
    Fault().Fault_Faulty_Checksum = true;
    Link().Sensor_Table[1].Port = 18;
    Sim.Windows.Event([&] { Send_Sentence(Sim, "$GPHDT*5A", *Open_One<frmPosition>(Sim, 1)); });
    EXPECT_EQ(World.Sent.back().second, std::string("UdPbC\0", 6) + Block("t:A") + "$GPHDT*5F\r\n");
    EXPECT_EQ(World.Sent.size(), 3u);
    EXPECT_TRUE(Told.empty());
}

} // namespace
} // namespace brinewright
