// The Traffic window, and the recordings that it writes.

#include "shell/monitors/traffic/frm_traffic.hpp"
#include "shell/transmit/record_format.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {
namespace {

constexpr const char* GGA = "$GPGGA,1,2*55"; // the checksum is that of its text
constexpr const char* VTG = "$GPVTG,33*00";  // and this one is not

// The window on a program that sends on TCP and on a UDP link.
struct Traffic : testing::Test, Virtual_Simulator {
    Traffic() : Virtual_Simulator(45296.5) { // 12:34:56.5
        Use({17, 18});
        Choose_Menu("mnuTraffic");
        Told.clear();
    }
    frmTraffic& F() { return *Open_One<frmTraffic>(Sim); }
    std::string Cell(int Row, int Column) { return F().hfgTraffic.At(Row, Column).Text; }
    Texts Sentences() {
        Texts All;
        for (int Row = 0; Row < F().hfgTraffic.Rows(); ++Row) All.push_back(Cell(Row, 5));
        return All;
    }
};

TEST_F(Traffic, Lists_Each_Sentence_With_What_Is_To_Be_Known_Of_It) {
    Send(GGA, 17);
    Pass_us(1'007'000);
    Send(VTG, 18);
    Send("no sentence", 17);
    ASSERT_EQ(F().hfgTraffic.Rows(), 3);
    EXPECT_EQ(Cell(0, 0), "12:34:56.500");
    EXPECT_EQ(Cell(1, 0), "12:34:57.507");
    EXPECT_EQ(Cell(0, 1), "TCP/IP");
    EXPECT_EQ(Cell(1, 1), "UDP 60001");
    EXPECT_EQ(Cell(0, 2), "GGA");
    EXPECT_EQ(Cell(2, 2), "?");
    EXPECT_EQ(Cell(0, 3), "15"); // with its line end
    EXPECT_EQ(Cell(0, 4), "ok");
    EXPECT_EQ(Cell(1, 4), "wrong");
    EXPECT_EQ(Cell(2, 4), "none");
    EXPECT_EQ(F().hfgTraffic.At(0, 4).Colour, Ink::Green);
    EXPECT_EQ(F().hfgTraffic.At(1, 4).Colour, Ink::Red);
    EXPECT_EQ(Sentences(), (Texts{GGA, VTG, "no sentence"}));
    EXPECT_EQ(*F().lblCount.Caption, "3 of 3 sentences");
    EXPECT_EQ(Entries(F().cmbType), (Texts{"All types", "?", "GGA", "VTG"}));
    EXPECT_TRUE(*Main_Window(Sim).Item("mnuTraffic").Checked);
}

TEST_F(Traffic, Filters_By_Port_Type_And_Text) {
    EXPECT_EQ(Entries(F().cmbPort), (Texts{"All ports", "TCP/IP", "UDP 60001"})); // those in use
    for (const int Port : {17, 18}) {
        Send(GGA, Port);
        Send(VTG, Port);
    }
    Set(F().cmbPort, std::string("TCP/IP"));
    EXPECT_EQ(Sentences(), (Texts{GGA, VTG}));
    Set(F().cmbType, std::string("VTG"));
    EXPECT_EQ(Sentences(), Texts{VTG});
    Send(VTG, 18); // filtered as it comes
    Send(VTG, 17);
    EXPECT_EQ(Sentences(), (Texts{VTG, VTG}));
    EXPECT_EQ(*F().lblCount.Caption, "2 of 6 sentences");
    Set(F().cmbPort, std::int64_t{0});
    Set(F().cmbType, std::int64_t{0});
    Sim.Windows.Event([&] { Sim.Windows.User_Type(F().txtFilter, "gga,1"); }); // while it is typed
    EXPECT_EQ(Sentences(), (Texts{GGA, GGA}));
    Set(F().txtFilter, std::string());
    EXPECT_EQ(Sentences().size(), 6u);

    // A link that comes into use, and one whose number has changed.
    Virtual_Simulator::Set_Up_Link(Sim.State, 19);
    Link().UDP_Port_Number[0] = 61000;
    Init();
    Send(GGA, 19);
    Sim.Told.Links_Chosen.Tell();
    EXPECT_EQ(Entries(F().cmbPort), (Texts{"All ports", "TCP/IP", "UDP 61000", "UDP 60002"}));
}

TEST_F(Traffic, Pauses_Clears_And_Ends_With_Its_Window) {
    Send(GGA, 17);
    Click(F().cmdPause);
    EXPECT_EQ(*F().cmdPause.Caption, "Continue");
    Send(VTG, 17);
    EXPECT_EQ(Sentences(), Texts{GGA});
    EXPECT_EQ(*F().lblCount.Caption, "1 of 1 sentences, 1 passed by while paused");
    Click(F().cmdPause);
    EXPECT_EQ(*F().cmdPause.Caption, "Pause");
    Send(VTG, 17);
    EXPECT_EQ(Sentences(), (Texts{GGA, VTG}));
    Set(F().hfgTraffic, std::int64_t{1});
    EXPECT_GT(F().hfgFields.Rows(), 0);
    Click(F().cmdClear);
    EXPECT_EQ(F().hfgTraffic.Rows() + F().hfgFields.Rows(), 0);
    EXPECT_EQ(*F().lblCount.Caption, "0 of 0 sentences");
    Send(GGA, 17);
    EXPECT_EQ(Sentences(), Texts{GGA});

    Close(F());
    EXPECT_FALSE(*Main_Window(Sim).Item("mnuTraffic").Checked);
    Send(GGA, 17);
    EXPECT_EQ(Left.back().second, std::string(GGA) + "\r\n"); // the other listener still hears
    Choose_Menu("mnuTraffic");
    EXPECT_EQ(F().hfgTraffic.Rows(), 0);
    Choose_Menu("mnuTraffic"); // no second ear
    Send(GGA, 17);
    EXPECT_EQ(F().hfgTraffic.Rows(), 1);
}

TEST_F(Traffic, Shows_The_Fields_Of_The_Chosen_Sentence) {
    Send("$GPVTG,090.0,T,091.0,M,5.2,N,009.6,K,A*1A", 17);
    Send(GGA, 17);
    Set(F().hfgTraffic, std::int64_t{0});
    const Grid& Fields = F().hfgFields;
    ASSERT_EQ(Fields.Rows(), 12); // talker, type, nine fields, checksum
    EXPECT_EQ(Fields.At(6, 0).Text, "Speed over ground");
    EXPECT_EQ(Fields.At(6, 1).Text, "5.2");
    EXPECT_EQ(Fields.At(6, 2).Text, "kn");
    Set(F().hfgTraffic, std::int64_t{1});
    EXPECT_EQ(Fields.Rows(), 5);

    // The choice stays on its sentence when a filter moves the rows.
    Set(F().cmbType, std::string("GGA"));
    EXPECT_EQ(F().hfgTraffic.Selected_Row(), 0);
    Set(F().cmbType, std::string("VTG"));
    EXPECT_EQ(F().hfgTraffic.Selected_Row(), -1);
    Set(F().cmbType, std::int64_t{0});
    EXPECT_EQ(F().hfgTraffic.Selected_Row(), 1);
}

TEST_F(Traffic, Finds_The_Next_Round_The_End) {
    EXPECT_FALSE(*F().cmdFind.Enabled); // nothing to look for
    for (const char* Text : {GGA, VTG, GGA, VTG}) Send(Text, 17);
    Set(F().txtSearch, std::string("vtg"));
    std::vector<int> Rows;
    for (int I = 0; I < 3; ++I) {
        Click(F().cmdFind);
        Rows.push_back(F().hfgTraffic.Selected_Row());
    }
    EXPECT_EQ(Rows, (std::vector<int>{1, 3, 1}));
    EXPECT_GT(F().hfgFields.Rows(), 0);
    EXPECT_TRUE(Told.empty());
    Set(F().cmbType, std::string("GGA"));
    Click(F().cmdFind);
    EXPECT_EQ(Take_Boxes(), Texts{"None of the sentences shown contains vtg"});
    Click(F().cmdClear);
    Click(F().cmdFind);
    EXPECT_EQ(Take_Boxes().size(), 1u);
}

TEST_F(Traffic, Exports_What_Is_Shown_As_A_Recording) {
    Send(GGA, 17);
    Send(VTG, 18);
    Send("a\\b", 17);
    Set(F().cmbPort, std::string("TCP/IP"));
    Click(F().cmdExport);
    ASSERT_EQ(Sim.Windows.File_Dialogs.size(), 1u);
    EXPECT_EQ(Sim.Windows.File_Dialogs[0].Title, "Export Traffic");
    EXPECT_EQ(Sim.Windows.File_Dialogs[0].Filter, "Recordings (*.rec)|*.rec");
    EXPECT_TRUE(Sim.Windows.File_Dialogs[0].Save);
    Answer_File("/data/a.rec");
    EXPECT_EQ(Take_Boxes(), Texts{"2 sentences exported to /data/a.rec"});
    const std::string Bytes = Disk.Content.at("/data/a.rec");
    const auto Feed = Bytes.find('\n');
    const auto First = Parse_Record(Bytes.substr(0, Feed));
    const auto Second = Parse_Record(Bytes.substr(Feed + 1, Bytes.size() - Feed - 2));
    ASSERT_TRUE(First && Second);
    EXPECT_EQ(First->Local_us, Day_us + 45'296'500'000);
    EXPECT_EQ(First->Port, 17);
    EXPECT_EQ(First->Text, std::string(GGA) + "\r\n");
    EXPECT_EQ(Second->Text, "a\\b\r\n");

    Disk.Refuse_Writing = true;
    Click(F().cmdExport);
    Answer_File("/data/b.rec");
    EXPECT_EQ(Take_Boxes(), Texts{"/data/b.rec could not be written: Disk full"});
    Disk.Refuse_Writing = false;
    Click(F().cmdExport);
    Answer_File(""); // none was chosen
    Click(F().cmdExport);
    Close(F()); // before the question is answered
    Answer_File("/data/c.rec");
    EXPECT_EQ(Take_Boxes(), Texts{"The Traffic window has been closed. Nothing was exported."});
    EXPECT_FALSE(Disk.Content.contains("/data/b.rec") || Disk.Content.contains("/data/c.rec"));
}

TEST(Traffic_Log_, Keeps_The_Last_10000_And_Forgets_The_Oldest) {
    Traffic_Log Log;
    Set_Filter(Log, {18, 0, ""});
    const auto Text_Of = [](std::uint64_t Number) { return "$GPGGA," + std::to_string(Number); };
    for (std::uint64_t Number = 0; Number < 25'000; ++Number)
        Keep_Sentence(Log, static_cast<std::int64_t>(Number), Number % 2 ? 18 : 17, Text_Of(Number));
    EXPECT_EQ(Log.Next - Log.Oldest, 10'000u);
    EXPECT_EQ(Log.Ring.size(), 10'000u);
    ASSERT_EQ(Log.Shown.size(), 5'000u);
    EXPECT_EQ(Record_Of(Log, Log.Shown.front()).Text, Text_Of(15'001));
    EXPECT_EQ(Record_Of(Log, Log.Shown.back()).Text, Text_Of(24'999));
    Set_Filter(Log, {});
    EXPECT_EQ(Log.Shown.size(), 10'000u);
    EXPECT_EQ(Record_Of(Log, Log.Shown.front()).Text, Text_Of(15'000));
    Clear_Log(Log);
    Keep_Sentence(Log, 0, 17, "$GPVTG");
    ASSERT_EQ(Log.Shown.size(), 1u);
    EXPECT_EQ(Record_Of(Log, Log.Shown[0]).Text, "$GPVTG");

    // Neither a long text nor made-up types make it grow.
    Keep_Sentence(Log, 0, 17, "$GPTXT," + std::string(1'000'000, 'x'));
    EXPECT_EQ(Record_Of(Log, Log.Next - 1).Text.size(), 4096u);
    EXPECT_EQ(Record_Of(Log, Log.Next - 1).Length_bytes, 1'000'007u);
    for (int I = 100; I < 400; ++I) Keep_Sentence(Log, 0, 17, "$GP" + std::to_string(I) + ",1");
    EXPECT_EQ(Log.Types.size(), 100u);
}

TEST_F(Traffic, The_Choice_Moves_With_Its_Sentence_Until_That_Is_Gone) {
    for (int I = 0; I < 10'000; ++I) Send(I == 1 ? VTG : GGA, 17);
    Set(F().hfgTraffic, std::int64_t{1});
    const int Fields = F().hfgFields.Rows();
    Send(GGA, 17);
    EXPECT_EQ(F().hfgTraffic.Rows(), 10'000);
    EXPECT_EQ(F().hfgTraffic.Selected_Row(), 0);
    Send(GGA, 17);
    EXPECT_EQ(F().hfgTraffic.Selected_Row(), -1);
    EXPECT_EQ(F().hfgFields.Rows(), Fields); // still to be read
}

constexpr std::int64_t Start_us = 1'767'225'600'000'000; // 2026-01-01 00:00:00

std::string Line(std::int64_t Local_us, int Port, const std::string& Text) {
    std::string Out;
    Record_Writer Writer;
    Writer.Append(Out, Local_us, Port, Text);
    return Out;
}

TEST(Record_Format, Lines_As_Described) {
    EXPECT_EQ(Line(Start_us + 150'000, 17, "$GPGGA,1*5A\r\n"),
              "2026-01-01T00:00:00.150000 17 $GPGGA,1*5A\\r\\n\n");
    EXPECT_EQ(Line(Start_us + 86'399'000'007, 1, std::string("UdPbC\0\\ \xB0\x7F\t", 11)),
              "2026-01-01T23:59:59.000007 1 UdPbC\\x00\\\\ \\xB0\\x7F\\x09\n");
    EXPECT_EQ(Line(-1, 18, ""), "1969-12-31T23:59:59.999999 18 \n");
}

TEST(Record_Format, Whatever_Is_Written_Reads_Back) {
    std::string Every_Byte;
    for (int Code = 0; Code < 256; ++Code) Every_Byte += static_cast<char>(Code);
    std::string Out;
    Record_Writer Writer; // one writer over seconds and days
    struct Entry {
        std::int64_t Local_us;
        int Port;
        std::string Text;
    };
    const std::vector<Entry> Entries{{Start_us, 28, Every_Byte},     {Start_us + 999'999, 1, "\\x41\\"},
                                     {Start_us + 1'000'000, 16, ""}, {Start_us - 1, 0, " two  blanks "},
                                     {-1'500'000, 17, "\\\\n"},      {0, 18, Every_Byte + Every_Byte}};
    for (const Entry& E : Entries) Writer.Append(Out, E.Local_us, E.Port, E.Text);
    std::size_t Place = 0;
    for (const Entry& E : Entries) {
        const std::size_t End = Out.find('\n', Place);
        const auto Read = Parse_Record(std::string_view(Out).substr(Place, End - Place));
        Place = End + 1;
        ASSERT_TRUE(Read);
        EXPECT_EQ(Read->Local_us, E.Local_us);
        EXPECT_EQ(Read->Port, E.Port);
        EXPECT_EQ(Read->Text, E.Text);
    }
    EXPECT_EQ(Place, Out.size());
}

TEST(Record_Format, Other_Lines_Are_Refused) {
    const std::string Good = "2026-01-01T00:00:00.150000 17 A\\x41";
    ASSERT_EQ(Parse_Record(Good)->Text, "AA");
    // Cut anywhere up to the text, and within the escape, it is no record.
    for (std::size_t Length = 0; Length < Good.size(); ++Length) {
        const bool Whole = Length == 30 || Length == 31; // the text empty or "A"
        EXPECT_EQ(Parse_Record(Good.substr(0, Length)).has_value(), Whole) << Length;
    }
    for (const char* Bad : {"2026-02-29T00:00:00.000000 1 A", "2026-01-01T24:00:00.000000 1 A",
                            "2026-01-01T00:60:00.000000 1 A", "2026-01-01T00:00:60.000000 1 A",
                            "2026-13-01T00:00:00.000000 1 A", "2026-01-01 00:00:00.000000 1 A",
                            "2026-01-01T00:00:00.00000x 1 A", "2026-01-01T00:00:00.000000 x A",
                            "2026-01-01T00:00:00.000000  1 A", "2026-01-01T00:00:00.000000 1 \\q",
                            "2026-01-01T00:00:00.000000 1 \\xG0", "2026-01-01T00:00:00.000000 99999999999 A"})
        EXPECT_FALSE(Parse_Record(Bad)) << Bad;
}

} // namespace
} // namespace brinewright
