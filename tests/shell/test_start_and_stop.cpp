#include "tests/support/virtual_simulator.hpp"

namespace brinewright {
namespace {

// GNSS 1 and 2 on UDP links, each with a GGA every second.
Simulator_State Two_Windows() {
    Simulator_State S = Default_Setup();
    S.Of<Link_State>().Comport_Count = 1;
    for (const int I : {1, 2}) {
        Virtual_Simulator::Set_Up_Link(S, 17 + I);
        S.Of<Link_State>().Sensor_Table[I].Port = static_cast<std::int16_t>(17 + I);
        S.Of<GNSS_State>().GGA_Enabled[I] = true;
    }
    Add_Window(S, {"frmPosition", 1, 110, 120, 5130, 7140});
    Add_Window(S, {"frmPosition", 2, 210, 220, 5230, 7240});
    return S;
}

std::vector<std::int16_t> Saved_Indices(const Simulator_State& S) {
    std::vector<std::int16_t> Indices;
    for (int I = 1; I <= S.Of<Shell_State>().Open_Form_Count; ++I)
        Indices.push_back(S.Of<Shell_State>().Open_Form_List[I].Index);
    return Indices;
}

TEST(Start, Saved_Windows_Open_One_After_The_Other_In_Their_Places) {
    Simulator_State Setup = Two_Windows();
    Setup.Of<Shell_State>().Open_Form_List[3] = Setup.Of<Shell_State>().Open_Form_List[2];
    Setup.Of<Shell_State>().Open_Form_List[2] = Setup.Of<Shell_State>().Open_Form_List[1];
    Setup.Of<Shell_State>().Open_Form_List[1] = {"frmShip", 0, 1,
                                                 2,         3, 4}; // the ship window waits for nothing
    Setup.Of<Shell_State>().Open_Form_Count = 3;
    Virtual_Simulator V;
    V.Start(Setup);
    EXPECT_NEAR(static_cast<double>(V.Now_us()), 700'000, 100);
    EXPECT_EQ(V.Shell().Open_Form_Count, 0);
    EXPECT_TRUE(V.Take_Boxes().empty());
    for (const int I : {1, 2}) {
        const frmPosition& W = *Open_One<frmPosition>(V.Sim, I);
        EXPECT_TRUE(*Main_Window(V.Sim).Item("mnuOpenForm", I).Checked);
        EXPECT_EQ(W.Tag, std::to_string(I));
        EXPECT_EQ(W.Top, 100 * I + 10);
        EXPECT_EQ(W.Left, 100 * I + 20);
        EXPECT_EQ(W.Height, 5030 + 100 * I);
        EXPECT_EQ(W.Width, 7040 + 100 * I);
    }
    EXPECT_EQ(Open_One<frmPosition>(V.Sim, 1)->Caption, "GNSS  1    (Global Nav Sat System 1)");
    EXPECT_EQ(Open_One<frmPosition>(V.Sim, 2)->Caption, "GNSS  2    (Global Nav Sat System 2)");
    EXPECT_EQ(V.Sim.Windows.Active_Form, Open_One<frmPosition>(V.Sim, 2));

    // The stagger of the windows stays between their sentences.
    std::vector<std::pair<int, std::int64_t>> Times_us;
    V.Sim.Told.Sent.Add(&Times_us,
                        [&](const Sent_Sentence& S) { Times_us.emplace_back(S.Port, V.Now_us()); });
    V.Run_s(2);
    ASSERT_EQ(Times_us.size(), 4u);
    for (const int I : {0, 1, 2, 3}) {
        const auto& [Port, Time_us] = Times_us[static_cast<std::size_t>(I)];
        EXPECT_EQ(Port, I % 2 ? 19 : 18);
        EXPECT_NEAR(static_cast<double>(Time_us), (I < 2 ? 1e6 : 2e6) + (I % 2 ? 700e3 : 350e3), 100);
    }
}

TEST(Start, Without_A_Setup_File) {
    Virtual_Simulator V;
    V.Start();
    EXPECT_EQ(V.Take_Boxes(),
              (Texts{"No setupfile exist. Default data loaded and no comports initialized ! ",
                     "The Brinewright will automatic detect available comports. It might take e few seconds. "
                     "Please be pasient!"}));
    EXPECT_TRUE(V.Sim.Windows.Find_Form("frmSetup"));
    EXPECT_EQ(V.Shell().Mode, "Ship");
    EXPECT_TRUE(*Main_Window(V.Sim).Item("mnuMode", 1).Checked);
    EXPECT_FALSE(*Main_Window(V.Sim).Item("mnuMode", 2).Checked);
    EXPECT_EQ(V.Link().TCP_Port, 8040);
    EXPECT_TRUE(V.World.Log.empty());
    EXPECT_EQ(*Main_Window(V.Sim).sbStatusBar[1].Caption, "No comports enabled");
    for (int Port = 1; Port <= 16; ++Port)
        EXPECT_EQ(*Main_Window(V.Sim).sbStatusBar[Port].Visible, Port == 1);
    EXPECT_EQ(V.Shell().Data_Folder, "/data/");
    EXPECT_EQ(Main_Window(V.Sim).timer_Sky.Interval_ms(), 10000);
}

TEST(Start, What_The_Setup_Says_And_What_Is_Repaired) {
    Simulator_State Setup = Default_Setup();
    Setup.Of<Shell_State>().Start_With_Last_Navdata = Setup.Of<IEC450_State>().IEC450_Enabled = true;
    Virtual_Simulator::Set_Up_Link(Setup, 3); // yet Comport_Count is 0: no link is opened
    Setup.Of<Link_State>().Sensor_Table[5].Name = "Mine";
    Setup.Of<Link_State>().Sensor_Table[9].Name = "Ninth";
    Setup.Of<GNSS_State>().GNSS_Talker[1] = "";
    Setup.Of<Gyro_State>().Gyro_Talker[2] = "XX";
    Setup.Of<Radar_State>().ARPA_Talker = "";
    Virtual_Simulator V;
    V.Start(Setup);
    EXPECT_TRUE(V.World.Log.empty());
    EXPECT_EQ(*Main_Window(V.Sim).sbStatusBar[1].Caption, "No comports enabled");
    EXPECT_TRUE(*Main_Window(V.Sim).Item("mnuSetupStartOption").Checked);
    EXPECT_TRUE(*Main_Window(V.Sim).Item("mnuOptionIEC450").Checked);
    EXPECT_TRUE(*Main_Window(V.Sim).Item("mnuMode", 2).Checked);
    const char* Names[] = {"GNSS1", "GNSS2",      "Gyro1", "Gyro2", "Log", "Echosounder",
                           "ARPA",  "Wind Gauge", "Ninth", "",      ""};
    for (int Slot = 1; Slot <= 11; ++Slot) EXPECT_EQ(V.Link().Sensor_Table[Slot].Name, Names[Slot - 1]);

    // A file of one section: all else is zero, but for the talkers.
    Virtual_Simulator Bare;
    Bare.Disk.Content[Setup_Name] = "\"REM Mode\"\r\n\"Sensor\"\r\n";
    Bare.Start();
    EXPECT_TRUE(Bare.Told.empty());
    EXPECT_EQ(Bare.Link().TCP_Port, 0);
    for (auto* Sim : {&V.Sim, &Bare.Sim}) {
        for (const int I : {1, 2}) {
            EXPECT_EQ(Sim->State.Of<GNSS_State>().GNSS_Talker[I], "GP");
            EXPECT_EQ(Sim->State.Of<Gyro_State>().Gyro_Talker[I], Sim == &V.Sim && I == 2 ? "XX" : "HE");
            EXPECT_EQ(Sim->State.Of<Log_State>().Log_Talker[I], "VW");
            EXPECT_EQ(Sim->State.Of<Echo_State>().Echo_Talker[I], "SD");
            EXPECT_EQ(Sim->State.Of<Wind_State>().Wind_Talker[I], "WI");
        }
        EXPECT_EQ(Sim->State.Of<Radar_State>().ARPA_Talker, "RA");
    }
}

TEST(Start, Every_Copy_Has_Its_Own_File_And_Caption) {
    const struct {
        std::int16_t Instance;
        const char *File, *Setup_Option, *Caption;
    } Cases[] = {{0, "/data/Brinewright.ini", "", "Brinewright   - Version : 7.00 2026-04-21"},
                 {1, "/data/Brinewright.ini", "", "Brinewright   - Version : 7.00 2026-04-21"},
                 {2, "/data/Brinewright_2.ini", "", "Brinewright  -2 - Version : 7.00 2026-04-21"},
                 {3, "/data/Brinewright_3.ini", "", "Brinewright  -3 - Version : 7.00 2026-04-21"},
                 {3, "/my/own.ini", "/my/own.ini", "Brinewright  -3 - Version : 7.00 2026-04-21"}};
    for (const auto& C : Cases) {
        Virtual_Simulator V(0, {C.Setup_Option, false, "", C.Instance});
        Simulator_State Setup = Default_Setup();
        Setup.Of<Link_State>().TCP_Port = 4711;
        V.Disk.Content[C.File] = Write_Setup(Setup, All_Windows());
        V.Start();
        EXPECT_TRUE(V.Told.empty());
        EXPECT_EQ(V.Link().TCP_Port, 4711);
        EXPECT_EQ(V.Shell().Instance_Number, C.Instance);
        EXPECT_EQ(V.Sim.Main->Caption, C.Caption);
        V.Link().TCP_Port = 4712;
        V.Stop();
        EXPECT_EQ(V.Saved(C.File).Of<Link_State>().TCP_Port, 4712);
        EXPECT_EQ(V.Disk.Content.size(), 1u);
    }
}

TEST(Start, The_Main_Window_Has_Its_Place_In_The_Application_Settings) {
    Virtual_Simulator V;
    V.Settings.Values = {{"MainLeft", "250"}, {"MainHeight", "4321.5"}};
    V.Start();
    frmMain& Main = Main_Window(V.Sim);
    EXPECT_EQ(Main.Left, 250);
    EXPECT_EQ(Main.Top, 1000);
    EXPECT_EQ(Main.Width, 6500);
    EXPECT_EQ(Main.Height, 4321.5F);
    Main.Set_Place(-10, 20, 7000.25F, 8000);
    V.Stop();
    const std::map<std::string, std::string> Places{
        {"MainLeft", "-10"}, {"MainTop", "20"}, {"MainWidth", "7000.25"}, {"MainHeight", "8000"}};
    EXPECT_EQ(V.Settings.Values, Places);

    Virtual_Simulator Minimised;
    Minimised.Start();
    Minimised.Sim.Main->State = Window_State::Minimised;
    Minimised.Stop();
    EXPECT_TRUE(Minimised.Settings.Values.empty());
}

TEST(Stop, Windows_Add_Themselves_And_The_Setup_Is_Written) {
    Virtual_Simulator V;
    V.Start(Two_Windows());
    Open_One<frmPosition>(V.Sim, 2)->Set_Place(1, 2, 3, 4);
    Open_Window(V.Sim, "frmMonitor");
    V.Link().UDP_Remote_Host = "10.1.2.3";
    V.Stop();
    EXPECT_TRUE(V.Sim.Ended);
    EXPECT_TRUE(V.World.Quitting);
    EXPECT_TRUE(V.Sim.Windows.Forms.empty());
    EXPECT_TRUE(V.Told.empty());
    const Simulator_State S = V.Saved();
    EXPECT_EQ(S.Of<Link_State>().UDP_Remote_Host, "10.1.2.3");
    EXPECT_EQ(Saved_Indices(S), (std::vector<std::int16_t>{1, 2}));
    EXPECT_EQ(S.Of<Shell_State>().Open_Form_List[1].Name, "frmPosition");
    EXPECT_EQ(S.Of<Shell_State>().Open_Form_List[1].Top, 110);
    EXPECT_EQ(S.Of<Shell_State>().Open_Form_List[2].Left, 1);
    EXPECT_EQ(S.Of<Shell_State>().Open_Form_List[2].Top, 2);
    EXPECT_EQ(S.Of<Shell_State>().Open_Form_List[2].Width, 3);
    EXPECT_EQ(S.Of<Shell_State>().Open_Form_List[2].Height, 4);
    const auto Ended_us = V.Now_us();
    V.Run_s(5);
    EXPECT_EQ(V.Now_us(), Ended_us); // nothing runs on

    Virtual_Simulator Kept(0, {"", true, "", 0});
    Kept.Start(Two_Windows());
    const std::string Before = Kept.Disk.Content.at(Setup_Name);
    Kept.Link().UDP_Remote_Host = "10.1.2.3";
    Kept.Stop();
    EXPECT_TRUE(Kept.Sim.Ended);
    EXPECT_EQ(Kept.Disk.Content.at(Setup_Name), Before);
}

TEST(Stop, A_Window_Closed_By_Hand_Is_In_The_List_Too_And_Opens_In_Its_First_Place) {
    Virtual_Simulator V;
    V.Start(Default_Setup());
    V.Open_Form(1);
    Open_One<frmPosition>(V.Sim, 1)->Set_Place(11, 12, 13, 14);
    V.Close(*Open_One<frmPosition>(V.Sim, 1));
    EXPECT_FALSE(*Main_Window(V.Sim).Item("mnuOpenForm", 1).Checked);
    V.Open_Form(2); // no entry: as it comes
    Open_One<frmPosition>(V.Sim, 2)->Set_Place(21, 22, 23, 24);
    V.Open_Form(1);
    EXPECT_EQ(Open_One<frmPosition>(V.Sim, 1)->Left, 11);
    EXPECT_EQ(Open_One<frmPosition>(V.Sim, 1)->Height, 14);
    Open_One<frmPosition>(V.Sim, 1)->Set_Place(31, 32, 33, 34);
    V.Stop();
    EXPECT_EQ(Saved_Indices(V.Saved()), (std::vector<std::int16_t>{1, 2, 1}));
}

TEST(Stop, Whatever_Fails_Is_Told_And_The_Program_Ends) {
    // A full list of windows: told for each window that finds no place, and the rest is saved.
    Virtual_Simulator V;
    V.Start(Two_Windows());
    V.Shell().Open_Form_Count = 19;
    V.Stop();
    EXPECT_EQ(V.Take_Boxes(), Texts{"Subscript out of range"});
    EXPECT_TRUE(V.Sim.Ended);
    EXPECT_EQ(V.Saved().Of<Shell_State>().Open_Form_Count, 20);

    Virtual_Simulator Full_Disk;
    Full_Disk.Start(Two_Windows());
    const std::string Before = Full_Disk.Disk.Content.at(Setup_Name);
    Full_Disk.Hold_Boxes = true;
    Full_Disk.Disk.Refuse_Writing = Full_Disk.Settings.Refuse_Writing = true;
    Full_Disk.Stop();
    EXPECT_EQ(Full_Disk.Take_Boxes(), (Texts{"Disk full", "Disk full"}));
    EXPECT_TRUE(Full_Disk.Sim.Ended);
    EXPECT_TRUE(Full_Disk.World.Quitting);
    EXPECT_EQ(Full_Disk.Disk.Content.at(Setup_Name), Before);

    // No data folder can be made, and the setup stands elsewhere: it is loaded, and saved as it was.
    Virtual_Simulator No_Folder(0, {"/my/own.ini", false, "", 0});
    No_Folder.Disk.Refuse_Folder = true;
    No_Folder.Disk.Content["/my/own.ini"] = Write_Setup(Two_Windows(), All_Windows());
    No_Folder.Start();
    EXPECT_EQ(No_Folder.Take_Boxes(), Texts{"Path/File access error"});
    No_Folder.Stop();
    EXPECT_TRUE(No_Folder.Sim.Ended);
    EXPECT_EQ(No_Folder.Saved("/my/own.ini").Of<Link_State>().UDP_Port_Number[1], 60002);
}

TEST(Stop, A_Setup_That_Could_Not_Be_Read_Is_Left_Alone) {
    const std::string Broken =
        "\"REM Mode\"\r\n\"Sensor\"\r\n\"REM TCP/IP settings\"\r\n#TRUE#,maybe,8040\r\n";
    const std::string Beside = std::string(Setup_Name) + ".recovered.ini";
    {
        Virtual_Simulator V;
        V.Disk.Content[Setup_Name] = Broken;
        V.Start();
        EXPECT_EQ(V.Take_Boxes(), Texts{"Type mismatch  Default data loaded"});
        EXPECT_EQ(V.Shell().Mode, "Ship"); // the defaults lie over what had been read
        // Another setup that cannot be read does not make the first one forgotten.
        V.Disk.Content["/other.ini"] = Broken;
        V.Sim.Windows.Event([&] { Open_Setup(V.Sim, "/other.ini"); });
        V.Take_Boxes();
        V.Link().TCP_Port = 4711;
        V.Stop();
        EXPECT_EQ(V.Disk.Content.at(Setup_Name), Broken);
        EXPECT_EQ(V.Saved(Beside).Of<Link_State>().TCP_Port, 4711);
        ASSERT_EQ(V.Told.size(), 1u);
        EXPECT_NE(V.Told[0].Text.find(Beside), std::string::npos);
    }
    // Saving over it on purpose, by either command, replaces it, and the end does so again.
    for (const bool As : {false, true}) {
        Virtual_Simulator V;
        V.Disk.Content[Setup_Name] = Broken;
        V.Start();
        V.Click(As ? Main_Window(V.Sim).Item("mnuFileSaveAs") : Main_Window(V.Sim).Item("mnuFileSave"));
        if (As) V.Answer_File(Setup_Name);
        V.Link().TCP_Port = 4711;
        V.Stop();
        EXPECT_EQ(V.Saved().Of<Link_State>().TCP_Port, 4711);
        EXPECT_FALSE(V.Disk.Content.contains(Beside));
    }
    // A file too large to be a setup, told by the system.
    Virtual_Simulator Large;
    Large.Disk.Content[Setup_Name] = std::string(17 * 1024 * 1024, ',');
    Large.Start();
    ASSERT_EQ(Large.Told.size(), 1u);
    EXPECT_TRUE(Large.Told[0].Text.ends_with("  Default data loaded"));
    Large.Stop();
    EXPECT_EQ(Large.Disk.Content.at(Setup_Name).size(), 17u * 1024 * 1024);
}

} // namespace
} // namespace brinewright
