// The Traffic window, and the recordings that it writes.

#include "shell/monitors/traffic/frm_traffic.hpp"
#include "shell/transmit/record_format.hpp"
#include "shell/transmit/sending_as.hpp"
#include "tests/support/virtual_simulator.hpp"

#include <array>
#include <tuple>

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
    Texts Column(int Which) {
        Texts All;
        for (int Row = 0; Row < F().hfgTraffic.Rows(); ++Row)
            All.push_back(F().hfgTraffic.At(Row, Which).Text);
        return All;
    }
    Texts Sentences() { return Column(8); }
    void Enter(Control& Target) {
        Sim.Windows.Event([&] {
            Sim.Windows.User_Focus(Target);
            Sim.Windows.User_Key(F(), key::Enter);
        });
    }
    std::string Said() const { return Shell().Last_Said; }
};

TEST_F(Traffic, Lists_Each_Sentence_With_What_Is_To_Be_Known_Of_It) {
    Send(GGA, 17);
    Pass_us(1'007'000);
    Send(VTG, 18);
    Send("no sentence", 17);
    Sim.Told.Received.Tell(3, "$INHDT,1,T\r\n");
    EXPECT_EQ(Column(0), (Texts{"12:34:56.500", "12:34:57.507", "12:34:57.509", "12:34:57.509"}));
    EXPECT_EQ(Column(1), (Texts{"TCP/IP", "UDP 60001", "TCP/IP", "COM 3"}));
    EXPECT_EQ(Column(2), (Texts{"out", "out", "out", "in"}));
    EXPECT_EQ(Column(3), Texts(4, "---")); // no window has sent them
    EXPECT_EQ(Column(4), (Texts{"GGA", "VTG", "?", "HDT"}));
    EXPECT_EQ(Column(7), (Texts{"ok", "wrong", "none", "none"}));
    EXPECT_EQ(Sentences(), (Texts{GGA, VTG, "no sentence", "$INHDT,1,T"}));
    const Ink Inks[] = {Ink::Green, Ink::Red, Ink::Amber, Ink::Amber};
    for (int Row = 0; Row < 4; ++Row) {
        EXPECT_EQ(F().hfgTraffic.At(Row, 7).Colour, Inks[Row]);
        EXPECT_EQ(F().hfgTraffic.Row_Colour(Row), Row == 0 ? Ink::Normal : Inks[Row]);
    }
    EXPECT_EQ(*F().hfgTraffic.Last_Column_Size, 13); // of the longest
    EXPECT_EQ(*F().lblCount.Caption, "4 of 4 sentences");
    EXPECT_EQ(Entries(F().cmbType), (Texts{"All types", "?", "GGA", "VTG", "HDT"}));
    EXPECT_TRUE(*Main_Window(Sim).Item("mnuTraffic").Checked);
}

// Two windows, one of which sends in groups: neither its own kin nor the other one's count in a rate.
TEST_F(Traffic, Tells_Source_Rate_And_Time_Since_The_Last) {
    for (int Second = 0; Second < 30; ++Second) {
        const std::int64_t Start_us = Now_us();
        for (const auto& [Text, Who, Every] : {std::tuple{GGA, 1, 1}, {VTG, 2, 2}, {VTG, 2, 2}, {VTG, 1, 15}})
            if (Second % Every == 0) {
                const Sending_As Mark(Sim, static_cast<std::int16_t>(Who));
                Send(Text, 17);
            }
        Pass_us(Start_us + 1'000'000 - Now_us());
    }
    const Texts Sources = Column(3), Since = Column(5), Rates = Column(6);
    EXPECT_EQ((Texts{Sources[0], Sources[1], Sources[2]}), (Texts{"GNSS 1", "GNSS 2", "GNSS 2"}));
    EXPECT_EQ(Since[0] + Since[1] + Rates[0] + Rates[2], "------------"); // nothing before them, or nearly
    const auto Last = [&](const char* Text, const char* Source) {
        for (std::size_t Row = Sources.size();;)
            if (Sentences()[--Row] == Text && Sources[Row] == Source) return Since[Row] + " " + Rates[Row];
    };
    EXPECT_EQ(Last(GGA, "GNSS 1"), "1.000 1.00");
    EXPECT_EQ(Last(VTG, "GNSS 2").substr(0, 9), "0.002 1.0"); // two every two seconds
    EXPECT_EQ(Last(VTG, "GNSS 1"), "14.996 0.07");            // fifteen seconds less two waits of the pacing
    EXPECT_EQ(Entries(F().cmbSource), (Texts{"All sources", "GNSS 1", "GNSS 2"}));
    Set(F().cmbSource, std::string("GNSS 1"));
    EXPECT_EQ(Sentences().size(), 32u);
    Set(F().cmbVerdict, std::string("wrong"));
    EXPECT_EQ(Sentences(), (Texts{VTG, VTG}));
}

TEST_F(Traffic, Filters_By_Port_Type_And_Text) {
    EXPECT_EQ(Entries(F().cmbPort), (Texts{"All links", "TCP/IP", "UDP 60001"})); // those in use
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
    EXPECT_EQ(Entries(F().cmbPort), (Texts{"All links", "TCP/IP", "UDP 61000", "UDP 60002"}));
}

TEST_F(Traffic, Pauses_Clears_And_Has_Recorded_While_It_Was_Closed) {
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
    Click(Main_Window(Sim).Item("mnuTraffic"));               // what left before it was opened
    EXPECT_EQ(Sentences(), (Texts{GGA, GGA}));
    Click(F().cmdPause);
    Close(F());
    Send(VTG, 17); // a closed window holds nothing
    Click(Main_Window(Sim).Item("mnuTraffic"));
    Click(Main_Window(Sim).Item("mnuTraffic")); // no second ear
    Send(VTG, 17);
    EXPECT_EQ(Sentences(), (Texts{GGA, GGA, VTG, VTG}));
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
    EXPECT_EQ(*Fields.Head_Count, 2u); // from its beginning, each

    // A field and its characters, from either side: "$GPGGA,1,2*55".
    for (const auto& [Row, First, Length] : {std::array{0, 1, 2}, {1, 3, 3}, {2, 7, 1}, {4, 11, 2}}) {
        Set(F().hfgFields, std::int64_t{Row});
        EXPECT_EQ(*F().txtSentence.Mark_First, First);
        EXPECT_EQ(*F().txtSentence.Mark_Length, Length);
        Set(F().hfgFields, std::int64_t{3});
        Set(F().txtSentence, std::int64_t{First + Length - 1});
        EXPECT_EQ(Fields.Selected_Row(), Row);
    }
    EXPECT_EQ(F().txtSentence.Text(), GGA);
    EXPECT_THROW(F().txtSentence.Check(std::int64_t{14}), Value_Refusal);
    EXPECT_THROW(F().txtSentence.Check(std::string("x")), User_Refusal);

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
    const std::uint32_t Choices = F().hfgTraffic.Choice_Count;
    for (int I = 0; I < 3; ++I) {
        I == 1 ? Enter(F().txtSearch) : Click(F().cmdFind);
        Rows.push_back(F().hfgTraffic.Selected_Row());
    }
    EXPECT_EQ(Rows, (std::vector<int>{1, 3, 1}));
    EXPECT_EQ(F().hfgTraffic.Choice_Count, Choices + 3); // each is to be seen
    EXPECT_GT(F().hfgFields.Rows(), 0);
    EXPECT_TRUE(Told.empty());
    Set(F().cmbType, std::string("GGA"));
    Click(F().cmdFind);
    EXPECT_EQ(Said(), "None of the sentences shown contains vtg");
    Click(F().cmdClear);
    Click(F().cmdFind);
    EXPECT_TRUE(Told.empty());
}

TEST_F(Traffic, Exports_What_Is_Shown_As_A_Recording) {
    Send(GGA, 17);
    Send(VTG, 18);
    Send("a\\b", 17);
    Sim.Told.Received.Tell(17, "no recording of what left");
    Set(F().cmbPort, std::string("TCP/IP"));
    Click(F().cmdExport);
    ASSERT_EQ(Sim.Windows.File_Dialogs.size(), 1u);
    EXPECT_EQ(Sim.Windows.File_Dialogs[0].Title, "Export Traffic");
    EXPECT_EQ(Sim.Windows.File_Dialogs[0].Filter, "Recordings (*.rec)|*.rec");
    EXPECT_TRUE(Sim.Windows.File_Dialogs[0].Save);
    Answer_File("/data/a.rec");
    EXPECT_EQ(Said(), "2 sentences exported to /data/a.rec, without 1 received");
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
    EXPECT_EQ(Said(), "/data/b.rec could not be written: Disk full");
    Disk.Refuse_Writing = false;
    Click(F().cmdExport);
    Answer_File(""); // none was chosen
    Click(F().cmdExport);
    Close(F()); // before the question is answered
    Answer_File("/data/c.rec");
    EXPECT_EQ(Said(), "The Traffic window has been closed. Nothing was exported.");
    EXPECT_TRUE(Told.empty());
    EXPECT_FALSE(Disk.Content.contains("/data/b.rec") || Disk.Content.contains("/data/c.rec"));
}

TEST(Traffic_List_, Follows_A_Log_That_Keeps_The_Last_10000_And_So_Many_Bytes) {
    Sentence_Log Log;
    Traffic_List List;
    Set_Filter(List, Log, {.Sender = {}, .Port = 18, .Type = 0, .Verdict = {}, .Text = ""});
    const auto Made = [](std::uint64_t Number) { return "$GPGGA," + std::to_string(Number); };
    const auto Keep = [&](const std::string& Text, std::int16_t Port) {
        Keep_Sentence(Log, {.Wide_us = static_cast<std::int64_t>(Log.Next) * 1000, .Port = Port}, Text);
    };
    int Gone = 0;
    for (std::uint64_t Number = 1; Number <= 25'000; ++Number) {
        Keep(Made(Number), Number % 2 ? 18 : 17);
        if (Number < 7000 || Number > 17'500) Follow_Log(List, Log); // more than the log holds passes unseen
        Gone += std::exchange(List.Gone, 0);
    }
    EXPECT_EQ(Log.Next - Log.Oldest, 10'000u);
    ASSERT_EQ(List.Shown.size(), 5'000u);
    EXPECT_EQ(Text_Of(Log, List.Shown.front()), Made(15'001));
    EXPECT_EQ(Text_Of(Log, List.Shown.back()), Made(24'999));
    EXPECT_EQ(Gone + 5'000, 3'500 + 8'749); // the odd ones up to 6,999 and of 7,502 to 25,000
    Set_Filter(List, Log, {});
    EXPECT_EQ(List.Shown.size(), 10'000u);

    // Neither long texts nor made-up types make it grow.
    const std::string Long = "$GPTXT," + std::string(1'000'000, 'x');
    for (int I = 0; I < 400; ++I) Keep(Long, 17);
    Follow_Log(List, Log);
    EXPECT_LE((Log.Next - Log.Oldest) * 4096, Sentence_Log::Text_Room_bytes);
    for (std::uint64_t Number = Log.Oldest; Number < Log.Next; ++Number)
        EXPECT_TRUE(Text_Of(Log, Number) == Long.substr(0, 4096) &&
                    Entry_Of(Log, Number).Length_bytes == Long.size());
    for (int I = 100; I < 400; ++I) Keep("$GP" + std::to_string(I) + ",1", 17);
    Follow_Log(List, Log);
    EXPECT_EQ(List.Types.size(), 100u);
    Clear_Log(Log);
    Follow_Log(List, Log);
    EXPECT_TRUE(List.Shown.empty());
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

TEST_F(Traffic, Sends_A_Row_Again_And_Sentences_Of_Ones_Own) {
    Send(GGA, 18);
    Set(F().hfgTraffic, std::int64_t{0});
    Click(F().cmdResend);
    EXPECT_EQ(Left.back(), (std::pair<int, std::string>(18, std::string(GGA) + "\r\n")));
    EXPECT_EQ(Column(3).back(), "Traffic");
    Click(F().cmdEdit);
    EXPECT_EQ(F().txtSend.Text(), GGA);
    EXPECT_EQ(F().cmbSendPort.Text(), "UDP 60001");

    // What is typed and what leaves; 5C is the exclusive or of "A,1".
    const std::array<std::pair<const char*, const char*>, 5> Good{{{"$A,1", "$A,1*5C"},
                                                                   {"$A,1*", "$A,1*5C"},
                                                                   {"!A,1*00", "!A,1*00"},
                                                                   {"\\s:A*00\\$A,1", "\\s:A*00\\$A,1*5C"},
                                                                   {GGA, GGA}}};
    for (const auto& [Typed, Sent] : Good) {
        Set(F().txtSend, std::string(Typed));
        Enter(F().txtSend);
        EXPECT_EQ(Left.back().second, std::string(Sent) + "\r\n");
        EXPECT_EQ(*F().lblSend.Caption, "Sent on UDP 60001");
    }
    const std::size_t Before = Left.size();
    for (const char* Bad : {"", "GPGGA,1", "$", "$*00", "$A\xE9", "$A\r\n$B", "\\s:A*00\\"}) {
        Set(F().txtSend, std::string(Bad));
        Click(F().cmdSend);
        EXPECT_EQ(*F().lblSend.Fore_Colour, Ink::Red) << Bad;
    }
    Set(F().txtSend, std::string("$A,1"));
    for (const char* Bad : {"", "x", "0", "-1", "3601", "1.5.2", "1e3"}) {
        Set(F().txtEvery, std::string(Bad));
        Click(F().cmdRepeat);
        EXPECT_EQ(*F().lblSend.Caption, "The time between two sentences is a number from 0.01 to 3600 s");
    }
    EXPECT_EQ(Left.size(), Before);

    Set(F().txtEvery, std::string("0,5"));
    Click(F().cmdRepeat);
    Set(F().txtSend, std::string("typed meanwhile"));
    Run_s(2.2);
    EXPECT_EQ(Left.size(), Before + 5);
    EXPECT_EQ(*F().lblSend.Caption, "Sent 5 times on UDP 60001");
    Shell().Pause_Active = true;
    Run_s(1);
    EXPECT_EQ(*F().lblSend.Caption, "Not sent: transmission is paused");
    Shell().Pause_Active = false;
    Run_s(1);
    EXPECT_EQ(Left.size(), Before + 7); // it goes on by itself
    Sim.State.Of<Link_State>().Port_Table[18].Enabled = false;
    Run_s(1);
    EXPECT_EQ(Left.size(), Before + 7);
    EXPECT_EQ(*F().cmdRepeat.Caption, "Repeat");
    EXPECT_EQ(*F().lblSend.Caption, "Not sent: UDP 60001 is not in use, see Setup > Com setup");
}

} // namespace
} // namespace brinewright
