#include "links/tcp_status/frm_tcpip.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {
namespace {

// The draws that the simulator will make, one after another.
std::size_t Drawn_Place(Random_Source& Same_Draws, std::size_t Length) {
    return static_cast<std::size_t>(Same_Draws.Draw() * static_cast<double>(Length));
}

TEST(Send_NMEA, Pause_Comes_Before_Everything_And_A_Standing_Box_Drops_As_Well) {
    Virtual_Simulator V;
    V.Use({1, 18});
    V.Open_Form(1);
    Open_Window(V.Sim, "frmMonitor");
    V.Send("$A*5A", 1);
    const auto Expect_Nothing_Happens = [&] {
        const float Last = V.Link().Transmit.Last_Send_Time;
        const auto Passed = V.Now_us();
        const std::string Pane = Open_One<frmMonitor>(V.Sim)->txtCom[1].Text();
        EXPECT_EQ(V.Send("$GPGGA*5A", 1), "$GPGGA*5A");
        EXPECT_EQ(V.Send("$GPGGA*5A", 18), "$GPGGA*5A");
        EXPECT_EQ(V.World.Sent.size(), 1u);
        EXPECT_EQ(V.Link().Transmit.Split_Remainder, "tail");
        EXPECT_EQ(V.Link().Transmit.Last_Send_Time, Last);
        EXPECT_EQ(V.Now_us(), Passed);
        EXPECT_EQ(V.Link().Transmit.Monitor_Line_Count[0], 1);
        EXPECT_EQ(Open_One<frmMonitor>(V.Sim)->txtCom[1].Text(), Pane);
    };
    V.Link().Transmit.Split_Remainder = "tail";
    V.Choose_Menu("mnuOptionsFaultyChecksum");
    V.Choose_Menu("mnuOptionSplittedMsg");
    V.Shell().Pause_Active = true;
    Expect_Nothing_Happens();
    EXPECT_EQ(V.Sim.Counts.Dropped_By_Box, 0u);

    V.Shell().Pause_Active = false;
    V.Hold_Boxes = true;
    V.Sim.Windows.Boxes.Show("stands");
    Expect_Nothing_Happens();
    EXPECT_EQ(V.Sim.Counts.Dropped_By_Box, 2u);
    V.Sim.Windows.Boxes.Answer(V.Told.back().Id);
    V.Send("$GPGGA*5A", 1);
    EXPECT_EQ(V.World.Sent.size(), 2u);
    EXPECT_TRUE(V.World.Sent[1].second.starts_with("tail"));
}

TEST(Send_NMEA, Checksum_And_Line_End_By_Their_Options) {
    struct Case {
        bool Faulty, Disabled, Merged;
        const char* Text;
        const char* Expected;
    };
    for (const Case& C : {Case{false, false, false, "$GPGGA*5A", "$GPGGA*5A\r\n"},
                          Case{false, true, false, "$GPGGA,5A", "$GPGGA,5A\r\n"},
                          Case{true, false, false, "$GPGGA*5A", "$GPGGA*5F\r\n"},
                          Case{true, false, false, "$GPGGA*5F", "$GPGGA*5E\r\n"},
                          Case{true, true, false, "$GPGGA*5A", "$GPGGA*5A\r\n"},
                          Case{true, false, true, "$GPGGA*5A", "$GPGGA*5F"}, Case{false, false, true, "", ""},
                          Case{true, false, false, "", "\r\n"}}) {
        Virtual_Simulator V;
        V.Use({18});
        V.Sim.State.Of<Fault_State>().Fault_Faulty_Checksum = C.Faulty;
        V.Sim.State.Of<Fault_State>().Fault_No_Checksum = C.Disabled;
        V.Sim.State.Of<Fault_State>().Fault_Merged = C.Merged;
        EXPECT_EQ(V.Send(C.Text, 18), C.Expected);
        EXPECT_EQ(V.Sent_On("UDP 255.255.255.255:60001"), Texts{C.Expected});
        EXPECT_EQ(V.Left.at(0), std::pair(18, std::string(C.Expected)));
    }
}

TEST(Send_NMEA, Cut_Then_Split_With_One_Remainder_For_All_Ports) {
    Virtual_Simulator V;
    V.Use({1, 17, 18});
    V.World.Connect();
    V.World.Random.Seed(7);
    Random_Source Same_Draws;
    Same_Draws.Seed(7);
    const std::string Sentence = "$GPHDT,123.4,T*3A";

    V.Choose_Menu("mnuOptionCuttedMsg");
    for (int I = 0; I < 40; ++I)
        EXPECT_EQ(V.Send(Sentence, 18),
                  Sentence.substr(0, Drawn_Place(Same_Draws, Sentence.size())) + "\r\n");
    EXPECT_EQ(V.Send("X", 18), "\r\n"); // any draw cuts it to nothing
    Same_Draws.Draw();

    // The checksum is spoilt first, then the cut, then the split of what the cut left; port 0 takes part.
    V.Choose_Menu("mnuOptionSplittedMsg");
    V.Choose_Menu("mnuOptionsFaultyChecksum");
    std::string Remainder;
    for (const int Port : {1, 18, 0, 17, 1, 0, 0, 18, 29, 17}) {
        std::string Text = Sentence.substr(0, Drawn_Place(Same_Draws, Sentence.size()));
        const std::size_t Place = Drawn_Place(Same_Draws, Text.size());
        EXPECT_EQ(V.Send(Sentence, Port), Remainder + Text.substr(0, Place) + "\r\n");
        Remainder = Text.substr(Place);
        EXPECT_EQ(V.Link().Transmit.Split_Remainder, Remainder);
    }

    // Without the cut nothing is lost: merged pieces are the sentences run together, checksums spoilt.
    V.Choose_Menu("mnuOptionCuttedMsg");
    V.Choose_Menu("mnuOptionsCrLfDisabled");
    std::string Whole = Remainder;
    std::string Pieces;
    for (int I = 0; I < 20; ++I) {
        Whole += "$GPHDT,123.4,T*3F";
        Pieces += V.Send(Sentence, I % 2 ? 1 : 18);
    }
    EXPECT_EQ(Pieces + V.Link().Transmit.Split_Remainder, Whole);
}

TEST(Send_NMEA, Pacing_Is_A_Fresh_Wait_From_The_Moment_Of_Noticing) {
    struct Step {
        std::int64_t Pause_us;
        bool Waits;
    };
    struct Case {
        double Time_Of_Day;
        std::vector<Step> Steps; // the pause before each sentence
    };
    // From 18:12:16 on the 32-bit time of day moves in steps of 1/128 s: 3 ms later may still be the same
    // moment. At midnight it falls to zero, and a last time of zero counts as never.
    const Case Cases[] = {{1, {{0, false}, {0, true}, {1000, true}, {1999, true}, {2100, false}, {0, true}}},
                          {82800, {{0, false}, {3000, true}, {0, true}, {8000, false}, {3000, true}}},
                          {86399.9985, {{0, false}, {2500, true}, {0, true}, {3000, false}}},
                          {86400, {{0, false}, {0, false}, {1000, false}, {0, true}}}};
    for (const Case& C : Cases) {
        Virtual_Simulator V(C.Time_Of_Day);
        int Port = 0;
        for (const Step& S : C.Steps) {
            V.Pass_us(S.Pause_us);
            const std::int64_t Before_us = V.Now_us();
            V.Send("$A*5A", Port); // no port, a garbage port: both are paced
            Port = Port == 0 ? 29 : 0;
            const std::int64_t Waited_us = V.Now_us() - Before_us;
            if (S.Waits)
                EXPECT_TRUE(Waited_us > 2000 && Waited_us < 2100) << Waited_us << " at " << C.Time_Of_Day;
            else
                EXPECT_EQ(Waited_us, 0) << C.Time_Of_Day << " after " << S.Pause_us;
            EXPECT_EQ(V.Link().Transmit.Last_Send_Time, Time_Of_Day_s(V.World.Machine_Clock.Local_us()));
        }
    }
}

TEST(Send_NMEA, Every_Port_Number_Finds_Its_Link_Or_None) {
    Virtual_Simulator V;
    V.Use({1, 16, 17, 18, 28});
    V.World.Connect();
    Open_Window(V.Sim, "frmMonitor");
    Open_Window(V.Sim, "frmExtendedMonitor");
    for (const int Port : {0, 29, 32767, -5, -32768}) {
        V.Link().Extended_Monitor_Port = static_cast<std::int16_t>(Port);
        V.Send("$A*5A", Port);
    }
    EXPECT_TRUE(V.World.Sent.empty());
    EXPECT_TRUE(V.Left.empty());
    EXPECT_TRUE(V.Told.empty());
    for (const auto& Pane : Open_One<frmMonitor>(V.Sim)->txtCom) EXPECT_EQ(Pane->Text(), "");
    for (const int Port : {1, 16, 17, 18, 28}) V.Send("$P" + std::to_string(Port), Port);
    const std::vector<std::pair<std::string, std::string>> Expected{
        {"COM 1", "$P1\r\n"},
        {"COM 16", "$P16\r\n"},
        {"TCP 0", "$P17\r\n"},
        {"UDP 255.255.255.255:60001", "$P18\r\n"},
        {"UDP 255.255.255.255:60011", "$P28\r\n"}};
    EXPECT_EQ(V.World.Sent, Expected);
    EXPECT_EQ(V.Left.size(), 5u);
    for (const int Port : {1, 16, 17, 18, 28}) EXPECT_EQ(V.Sim.Counts.Sent[Port], 1u);
}

TEST(Send_NMEA, A_Failing_Serial_Write_Is_Told_Once_Per_Port) {
    Virtual_Simulator V;
    V.Use({3, 4});
    Open_Window(V.Sim, "frmMonitor");
    V.World.Failures["COM 3 output"] = V.World.Failures["COM 4 output"] = "Input/output error";
    for (int I = 0; I < 3; ++I) V.Send("$A*5A", 3);
    ASSERT_EQ(V.Told.size(), 1u);
    EXPECT_EQ(V.Told[0].Text, "Comport error COM 3. Check your Comport settings!");
    EXPECT_EQ(V.Told[0].Title, "Comport error");
    EXPECT_EQ(V.Told[0].Icon, Box_Icon::Stop);
    V.Send("$A*5A", 4);
    V.Send("$A*5A", 5); // never opened
    V.Send("$A*5A", 5);
    EXPECT_EQ(V.Take_Boxes(), (Texts{"Comport error COM 3. Check your Comport settings!",
                                     "Comport error COM 4. Check your Comport settings!",
                                     "Comport error COM 5. Check your Comport settings!"}));
    EXPECT_EQ(Open_One<frmMonitor>(V.Sim)->txtCom[3].Text(), ""); // the monitors are not told
    EXPECT_TRUE(V.Left.empty());
    EXPECT_EQ(V.Sim.Counts.Failed[3], 3u);

    V.World.Failures.clear();
    V.Send("$A*5A", 3);
    V.World.Failures["COM 3 output"] = "Input/output error";
    V.Send("$A*5A", 3); // told already, for the rest of the run
    EXPECT_TRUE(V.Told.empty());
    EXPECT_EQ(V.Sent_On("COM 3"), Texts{"$A*5A\r\n"});
}

TEST(Send_NMEA, A_Failing_Datagram_Is_Ignored_And_Shows_On_The_Monitor) {
    Virtual_Simulator V;
    V.Use({18, 19});
    Open_Window(V.Sim, "frmMonitor");
    V.World.Failures["UDP 255.255.255.255:60001 send"] = "Network is unreachable";
    V.Send("$A*5A", 18);
    V.Send("$B*5A", 19);
    V.Send("$C*5A", 20); // never opened
    EXPECT_TRUE(V.Told.empty());
    EXPECT_EQ(Open_One<frmMonitor>(V.Sim)->txtCom[18].Text(), "$A*5A\r\n");
    EXPECT_EQ(V.Left, (std::vector<std::pair<int, std::string>>{{19, "$B*5A\r\n"}})); // only what has left
    EXPECT_EQ(V.Sim.Counts.Failed[18], 1u);
    EXPECT_EQ(V.Sim.Counts.Failed[20], 1u);
}

TEST(Send_NMEA, Status_Texts_Come_From_The_Second_Sentence_On) {
    Virtual_Simulator V(45000);
    V.Use({3, 17});
    auto& Panel = Main_Window(V.Sim).sbStatusBar[3];
    const std::string At_First = *Panel.Caption;
    V.Send("$A", 3);
    EXPECT_EQ(*Panel.Caption, At_First);

    // Late in a minute the seconds turn negative, also where they print as zero.
    const struct {
        double Time_s;
        const char* Text;
    } Cases[] = {{45296.2, "12:34:56.2"}, {45299.3, "12:34:59.3"},   {45299.75, "12:34:-00.3"},
                 {59.5, "00:00:-00.5"},   {59.96875, "00:00:-00.0"}, {86399.75, "23:59:-00.3"},
                 {3605, "01:00:05.0"}};
    for (const auto& C : Cases) {
        V.Set_Time_Of_Day(C.Time_s);
        V.Link().Transmit.Last_Send_Time = 0; // no wait, so that the time stays what it is
        V.Send("$A", 3);
        EXPECT_EQ(*Panel.Caption, std::string("COM 3 : TX ") + C.Text);
    }

    // The label of the server: one client alone needs a second sentence, with two the second client's sending
    // is one.
    const auto Label = [&] { return *Open_One<frmTCPIP>(V.Sim)->lblTX.Caption; };
    V.Send("$A", 17);
    EXPECT_EQ(Label(), ""); // nobody there
    V.World.Connect();
    V.Send("$A", 17);
    EXPECT_EQ(Label(), "");
    V.Set_Time_Of_Day(45296.2);
    V.Link().Transmit.Last_Send_Time = 0;
    V.Send("$A", 17);
    EXPECT_EQ(Label(), "TCP/IP : TX 12:34:56.2");

    Virtual_Simulator Two(45296);
    Two.Use({17});
    Two.World.Connect();
    Two.World.Connect();
    Two.Send("$A", 17);
    EXPECT_EQ(*Open_One<frmTCPIP>(Two.Sim)->lblTX.Caption, "TCP/IP : TX 12:34:56.0");
}

} // namespace
} // namespace brinewright
