#include "tests/support/virtual_simulator.hpp"

namespace brinewright {
namespace {

std::string Sentences(std::initializer_list<int> Numbers) {
    std::string Text;
    for (const int N : Numbers) Text += "$M" + std::to_string(N) + "\r\n";
    return Text;
}

TEST(Monitor, A_Group_Of_Controls_For_Each_Enabled_Link) {
    Virtual_Simulator V;
    V.Use({2, 16, 17, 18, 28});
    V.Link().Port_Table[5].Enabled = true; // ticked, yet not there: it has its pane
    V.Link().Port_Table[6].Present = true;
    V.Choose_Menu("mnuMonitor");
    ASSERT_TRUE(Open_One<frmMonitor>(V.Sim));
    EXPECT_TRUE(*Main_Window(V.Sim).Item("mnuMonitor").Checked);
    frmMonitor& F = *Open_One<frmMonitor>(V.Sim);
    EXPECT_EQ(F.Caption, "Comport Monitor");
    const std::map<int, std::string> Names{{2, "COM 2"},   {5, "COM 5"},      {16, "COM 16"},
                                           {17, "TCP/IP"}, {18, "UDP 60001"}, {28, "UDP 60011"}};
    for (int Port = 1; Port <= 28; ++Port) {
        const bool Shown = Names.contains(Port);
        EXPECT_EQ(*F.lblComport[Port].Visible, Shown) << Port;
        EXPECT_EQ(*F.txtCom[Port].Visible, Shown) << Port;
        EXPECT_EQ(*F.cmdFreeze[Port].Visible, Shown) << Port;
        EXPECT_EQ(*F.cmdClear[Port].Visible, Shown) << Port;
        if (Shown) {
            EXPECT_EQ(*F.lblComport[Port].Caption, Names.at(Port));
        }
    }

    // A second choice gives it the focus; closing clears the check.
    V.Open_Form(1);
    V.Choose_Menu("mnuMonitor");
    EXPECT_EQ(V.Sim.Windows.Active_Form, &F);
    V.Close(F);
    EXPECT_FALSE(*Main_Window(V.Sim).Item("mnuMonitor").Checked);
    V.Send("$M1", 2);
    V.Choose_Menu("mnuMonitor");
    EXPECT_EQ(Open_One<frmMonitor>(V.Sim)->txtCom[2].Text(), "");
    V.Send("$M2", 2);
    EXPECT_EQ(Open_One<frmMonitor>(V.Sim)->txtCom[2].Text(), Sentences({2}));
}

TEST(Monitor, A_Pane_Starts_Over_With_Every_Fourth_Sentence) {
    Virtual_Simulator V;
    V.Use({2, 18});
    V.Choose_Menu("mnuMonitor");
    frmMonitor& F = *Open_One<frmMonitor>(V.Sim);
    const auto Expect_After = [&](int Number, const std::string& Pane) {
        V.Send("$M" + std::to_string(Number), 18);
        EXPECT_EQ(F.txtCom[18].Text(), Pane);
    };
    Expect_After(1, Sentences({1}));
    Expect_After(2, Sentences({1, 2}));
    Expect_After(3, Sentences({1, 2, 3}));
    Expect_After(4, Sentences({4}));
    Expect_After(5, Sentences({4, 5}));

    // Clear empties and does not count anew; frozen, nothing is shown or counted.
    V.Click(F.cmdClear[18]);
    EXPECT_EQ(F.txtCom[18].Text(), "");
    V.Click(F.cmdFreeze[18]);
    EXPECT_EQ(*F.cmdFreeze[18].Caption, "Cont.");
    Expect_After(6, "");
    V.Send("$M1", 2);
    EXPECT_EQ(F.txtCom[2].Text(), Sentences({1})); // each pane has its own button and counter
    V.Click(F.cmdFreeze[18]);
    EXPECT_EQ(*F.cmdFreeze[18].Caption, "Freeze");
    Expect_After(7, Sentences({7}));
    Expect_After(8, Sentences({7, 8}));
    Expect_After(9, Sentences({9}));
    EXPECT_EQ(V.Sent_On("UDP 255.255.255.255:60001").size(), 9u);
}

TEST(Monitor, The_NUL_Of_The_Header_Becomes_A_Blank) {
    Virtual_Simulator V;
    V.Use({18});
    V.Link().Extended_Monitor_Port = 18;
    V.Choose_Menu("mnuMonitor");
    V.Choose_Menu("mnuExtendedMonitor");
    const std::string Framed("UdPbC\0\\s:A*11\\$M", 16);
    const auto Shown = [&](const std::string& Text) {
        V.Click(Open_One<frmMonitor>(V.Sim)->cmdClear[18]);
        V.Click(Open_One<frmExtendedMonitor>(V.Sim)->cmdClear);
        V.Send(Text, 18);
        EXPECT_EQ(V.World.Sent.back().second, Text + "\r\n");
        EXPECT_EQ(Open_One<frmExtendedMonitor>(V.Sim)->txtOutput.Text(),
                  Open_One<frmMonitor>(V.Sim)->txtCom[18].Text());
        return Open_One<frmMonitor>(V.Sim)->txtCom[18].Text();
    };
    V.IEC450().UdPbC_Header_Enabled = true;
    EXPECT_EQ(Shown(Framed), Framed + "\r\n");
    V.IEC450().IEC450_Enabled = true;
    EXPECT_EQ(Shown(Framed), "UdPbC \\s:A*11\\$M\r\n");
    EXPECT_EQ(Shown("UdP"), "UdP\r\n");       // five characters have no sixth
    EXPECT_EQ(Shown("$GPGGA"), "$GPGG \r\n"); // whatever it is
    V.IEC450().UdPbC_Header_Enabled = false;
    EXPECT_EQ(Shown(Framed), Framed + "\r\n");
}

TEST(Monitor, A_Pane_That_No_Count_Empties_Stays_Bounded) {
    Virtual_Simulator V;
    V.Use({18});
    V.Link().Extended_Monitor_Port = 18;
    V.Choose_Menu("mnuExtendedMonitor");
    V.Link().Extended_Monitor_Lines = 0;
    const std::string Long(5000, 'x');
    for (int I = 0; I < 100; ++I) V.Send(Long, 18);
    EXPECT_LE(Open_One<frmExtendedMonitor>(V.Sim)->txtOutput.Text().size(), 65536u);
    EXPECT_TRUE(Open_One<frmExtendedMonitor>(V.Sim)->txtOutput.Text().ends_with("x\r\n"));
}

TEST(Extended_Monitor, Offers_The_Links_In_Use) {
    Virtual_Simulator V;
    V.Use({2, 17, 18, 28});
    V.Link().Port_Table[5].Enabled = true;
    V.Choose_Menu("mnuExtendedMonitor");
    frmExtendedMonitor* F = Open_One<frmExtendedMonitor>(V.Sim);
    EXPECT_TRUE(*Main_Window(V.Sim).Item("mnuExtendedMonitor").Checked);
    EXPECT_EQ(F->cmbComPort.Text(), "Select comport");
    EXPECT_EQ(Entries(F->cmbComPort), (Texts{"COM 2", "TCP/IP", "UDP 60001 Port", "UDP 60011 Port"}));

    F->txtOutput.Set_Text("old");
    F->txtInput.Set_Text("old");
    F->cmbComPort.Set_List_Index(1);
    EXPECT_EQ(V.Link().Extended_Monitor_Port, 17);
    EXPECT_EQ(F->txtOutput.Text(), "");
    EXPECT_EQ(F->txtInput.Text(), "TCP/IP Input not implemented");
    F->cmbComPort.Set_List_Index(3);
    EXPECT_EQ(V.Link().Extended_Monitor_Port, 28);
    EXPECT_EQ(F->txtInput.Text(), "");

    V.Close(*F);
    EXPECT_FALSE(*Main_Window(V.Sim).Item("mnuExtendedMonitor").Checked);
    V.Send("$M1", 28);
    V.Choose_Menu("mnuExtendedMonitor");
    F = Open_One<frmExtendedMonitor>(V.Sim);
    EXPECT_EQ(F->cmbComPort.Text(), "UDP 60011 Port");
    V.Choose_Menu("mnuExtendedMonitor");
    EXPECT_EQ(V.Sim.Windows.Active_Form, F);
    V.Close(*F);
    V.Link().Extended_Monitor_Port = 5;
    V.Choose_Menu("mnuExtendedMonitor");
    EXPECT_EQ(Open_One<frmExtendedMonitor>(V.Sim)->cmbComPort.Text(), "Select comport");
    EXPECT_EQ(V.Link().Extended_Monitor_Port, 5);
}

TEST(Extended_Monitor, Keeps_As_Many_Messages_As_Its_Height_Allows) {
    Virtual_Simulator V;
    V.Use({2, 18});
    V.Link().Extended_Monitor_Port = 18;
    V.Choose_Menu("mnuExtendedMonitor");
    frmExtendedMonitor& F = *Open_One<frmExtendedMonitor>(V.Sim);
    // A pane of 200 holds none, and every 200 more one; halves go to the even number. Beside the two panes
    // the window holds 1500.
    for (const auto& [Pane, Lines] :
         {std::pair(0, -1), {200, 0}, {500, 2}, {700, 2}, {900, 4}, {1040, 4}, {2000, 9}}) {
        F.Resize(9000, static_cast<float>(1500 + 2 * Pane));
        EXPECT_EQ(V.Link().Extended_Monitor_Lines, Lines) << Pane;
    }

    F.Resize(9000, 1500 + 2 * 800); // 3 lines
    for (int I = 1; I <= 4; ++I) {
        V.Send("$M" + std::to_string(I), 18);
        V.Send("$other", 2);
        EXPECT_EQ(F.txtOutput.Text(), I == 1   ? Sentences({1})
                                      : I == 2 ? Sentences({1, 2})
                                      : I == 3 ? Sentences({3})
                                               : Sentences({3, 4}));
    }
    for (const float Height : {1500.0F, 1900.0F}) { // -1 and 0 never empty it
        F.Resize(9000, Height);
        for (int I = 0; I < 10; ++I) V.Send("$M5", 18);
    }
    EXPECT_EQ(F.txtOutput.Text().size(), Sentences({3, 4}).size() + 20 * Sentences({5}).size());

    V.Click(F.cmdFreeze);
    EXPECT_EQ(*F.cmdFreeze.Caption, "Cont.");
    F.txtInput.Set_Text("in");
    V.Click(F.cmdClear);
    V.Send("$M6", 18);
    EXPECT_EQ(F.txtOutput.Text() + F.txtInput.Text(), "");
    V.Click(F.cmdFreeze);
    V.Send("$M7", 18);
    EXPECT_EQ(F.txtOutput.Text(), Sentences({7}));
}

TEST(Extended_Monitor, Received_Texts_Count_As_One_Line_Each) {
    Virtual_Simulator V;
    V.Use({18});
    V.Link().Extended_Monitor_Port = 18;
    V.Choose_Menu("mnuExtendedMonitor");
    frmExtendedMonitor& F = *Open_One<frmExtendedMonitor>(V.Sim);
    V.Link().Extended_Monitor_Lines = 3;
    const auto Expect_After = [&](const std::string& Text, const std::string& Pane) {
        V.Sim.Told.Received.Tell(18, Text);
        EXPECT_EQ(F.txtInput.Text(), Pane);
    };
    Expect_After("a\nb\nc\n", "a\nb\nc\n");
    Expect_After(std::string("d\0e\0", 4), std::string("a\nb\nc\nd e\0", 10)); // the first NUL only
    Expect_After("f", "f");
    Expect_After("g", "fg");
    EXPECT_EQ(F.txtOutput.Text(), "");
}

} // namespace
} // namespace brinewright
