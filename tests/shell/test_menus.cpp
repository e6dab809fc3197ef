#include "ownship/ship/frm_ship.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {
namespace {

constexpr const char* Saved_Box = "Setup saved as /data/Brinewright.ini";

// Started in Sensor mode on a setup without windows.
struct Menus : testing::Test, Virtual_Simulator {
    void SetUp() override {
        Setup.Of<Link_State>().Comport_Count = 1;
        Start(Setup);
    }
    frmMain& Main() { return Main_Window(Sim); }
    Simulator_State Setup = Default_Setup();
};

TEST_F(Menus, A_Change_Of_Mode_Loads_The_Open_Windows_Anew) {
    Open_Form(2);
    Open_Form(1);
    Open_Window(Sim, "frmMonitor");
    const std::weak_ptr<Form> Old = Sim.Windows.Forms[2];
    ASSERT_EQ(Old.lock().get(), Open_One<frmPosition>(Sim, 1));
    EXPECT_FALSE(*Open_One<frmPosition>(Sim, 1)->lblShipControl.Visible);
    Choose_Menu("mnuMode", 2); // checked already: nothing at all
    EXPECT_EQ(Shell().Open_Form_Count, 0);
    EXPECT_EQ(Old.lock().get(), Open_One<frmPosition>(Sim, 1));

    Open_One<frmPosition>(Sim, 1)->Set_Place(11, 12, 13, 14);
    Choose_Menu("mnuMode", 1);
    EXPECT_EQ(Shell().Mode, "Ship");
    EXPECT_TRUE(*Main().Item("mnuMode", 1).Checked);
    EXPECT_FALSE(*Main().Item("mnuMode", 2).Checked);
    EXPECT_TRUE(Old.expired());
    for (const int I : {1, 2}) {
        ASSERT_TRUE(Open_One<frmPosition>(Sim, I));
        EXPECT_TRUE(*Main().Item("mnuOpenForm", I).Checked);
        EXPECT_TRUE(*Open_One<frmPosition>(Sim, I)->lblShipControl.Visible);
    }
    EXPECT_EQ(Open_One<frmPosition>(Sim, 1)->Left, 11);
    EXPECT_EQ(Sim.Windows.Active_Form, static_cast<Form*>(Open_One<frmShip>(Sim)));
    EXPECT_EQ(Shell().Open_Form_Count, 0); // they stand again
    EXPECT_TRUE(Open_One<frmMonitor>(Sim));

    // The list of kept windows is left as it is, also when it is full.
    Shell().Open_Form_Count = 20;
    Shell().Open_Form_List[20].Name = "the last";
    Choose_Menu("mnuMode", 2);
    EXPECT_EQ(Take_Boxes(), Texts{});
    EXPECT_EQ(Shell().Open_Form_Count, 20);
    EXPECT_EQ(Shell().Open_Form_List[20].Name, "the last");
    EXPECT_EQ(Shell().Mode, "Sensor");
    for (const int I : {1, 2}) {
        ASSERT_TRUE(Open_One<frmPosition>(Sim, I));
        EXPECT_FALSE(*Open_One<frmPosition>(Sim, I)->lblShipControl.Visible);
    }
}

TEST_F(Menus, Save_Adds_The_Windows_Every_Time_Until_The_List_Is_Full) {
    Open_Form(1);
    Open_Form(2);
    for (int Save = 1; Save <= 10; ++Save) {
        Choose_Menu("mnuFileSave");
        EXPECT_EQ(Take_Boxes(), Texts{Saved_Box});
        EXPECT_EQ(Saved().Of<Shell_State>().Open_Form_Count, 2 * Save);
        EXPECT_EQ(Shell().Open_Form_Count, 2 * Save);
    }
    const std::string Before = Disk.Content.at(Setup_Name);
    Choose_Menu("mnuFileSave");
    EXPECT_EQ(Take_Boxes(), Texts{"Subscript out of range"});
    EXPECT_EQ(Disk.Content.at(Setup_Name), Before);
    EXPECT_TRUE(Open_One<frmPosition>(Sim, 1));
}

TEST_F(Menus, Save_As_Asks_And_Starts_The_List_Anew) {
    Open_Form(2);
    for (int Save = 1; Save <= 2; ++Save) {
        Choose_Menu("mnuFileSaveAs");
        ASSERT_EQ(Sim.Windows.File_Dialogs.size(), 1u);
        const File_Dialog& Dialog = Sim.Windows.File_Dialogs[0];
        EXPECT_TRUE(Dialog.Save);
        EXPECT_EQ(Dialog.Title, "Save Setup As");
        EXPECT_EQ(Dialog.Filter, "Brinewright setup files (*.ini)|*.ini");
        EXPECT_EQ(Dialog.Default_Extension, ".ini");
        EXPECT_EQ(Dialog.Folder, "/data/");
        Answer_File("/tmp/mine.ini");
        EXPECT_EQ(Take_Boxes(), Texts{"Setup saved as /tmp/mine.ini"});
        EXPECT_EQ(Saved("/tmp/mine.ini").Of<Shell_State>().Open_Form_Count, 1);
        EXPECT_EQ(Saved("/tmp/mine.ini").Of<Shell_State>().Open_Form_List[1].Index, 2);
        EXPECT_EQ(Shell().Open_Form_Count, 0);
    }
    Choose_Menu("mnuFileSaveAs");
    Answer_File("");
    EXPECT_EQ(Shell().Open_Form_Count, 0);
    EXPECT_TRUE(Told.empty());

    Disk.Refuse_Writing = true;
    Choose_Menu("mnuFileSaveAs");
    Answer_File("/tmp/mine.ini");
    Choose_Menu("mnuFileSave");
    EXPECT_EQ(Take_Boxes(), (Texts{"Disk full", "Disk full"}));
}

TEST_F(Menus, Open_Replaces_The_Session) {
    Use({3, 10, 11, 17, 18});
    Open_Form(1);
    World.Log.clear();
    Choose_Menu("mnuFileOpen");
    ASSERT_EQ(Sim.Windows.File_Dialogs.size(), 1u);
    EXPECT_FALSE(Sim.Windows.File_Dialogs[0].Save);
    EXPECT_EQ(Sim.Windows.File_Dialogs[0].Title, "Open Setup File");
    EXPECT_EQ(Sim.Windows.File_Dialogs[0].Filter, "Brinewright setup files (*.ini)|*.ini");
    EXPECT_EQ(Sim.Windows.File_Dialogs[0].Default_Extension, ".ini");
    EXPECT_EQ(Sim.Windows.File_Dialogs[0].Folder, "/data/");
    Answer_File("");
    EXPECT_TRUE(Open_One<frmPosition>(Sim, 1));

    // A file that is not there changes nothing.
    Choose_Menu("mnuFileOpen");
    Answer_File("/tmp/none.ini");
    EXPECT_EQ(Take_Boxes(), Texts{"File /tmp/none.ini do not exist."});
    EXPECT_TRUE(Open_One<frmPosition>(Sim, 1));
    EXPECT_TRUE(World.Log.empty());

    // Ports 1 to 10 are closed; without ports in the new setup the others stay as they are.
    Simulator_State Other = Setup;
    Other.Of<Shell_State>().Mode = "Ship";
    Other.Of<Link_State>().Comport_Count = 0;
    Other.Of<Link_State>().Sensor_Table[1].Name = "As in the file";
    Add_Window(Other, {"frmPosition", 2, 210, 220, 5230, 7240});
    Add_Window(Other, {"frmShip", 0, 1, 2, 3, 4});
    Disk.Content["/tmp/other.ini"] = Write_Setup(Other, All_Windows());
    const auto Before_us = Now_us();
    Choose_Menu("mnuFileOpen");
    Answer_File("/tmp/other.ini");
    EXPECT_EQ(Now_us(), Before_us); // no waits here
    EXPECT_EQ(World.Log, (Texts{"COM 3 close", "COM 10 close"}));
    EXPECT_FALSE(Open_One<frmPosition>(Sim, 1));
    ASSERT_TRUE(Open_One<frmPosition>(Sim, 2));
    EXPECT_EQ(Open_One<frmPosition>(Sim, 2)->Top, 210);
    EXPECT_EQ(Shell().Open_Form_Count, 0);
    EXPECT_EQ(Shell().Mode, "Ship");
    EXPECT_TRUE(*Main().Item("mnuMode", 1).Checked);
    EXPECT_FALSE(*Main().Item("mnuMode", 2).Checked);
    EXPECT_EQ(Link().Sensor_Table[1].Name, "As in the file");

    // With ports they are brought to the new state; port 11 is not used any more and is let go.
    Other.Of<Link_State>().Comport_Count = 2;
    Set_Up_Link(Other, 10);
    Disk.Content["/tmp/other.ini"] = Write_Setup(Other, All_Windows());
    World.Log.clear();
    Sim.Windows.Event([&] { Open_Setup(Sim, "/tmp/other.ini"); });
    EXPECT_EQ(World.Log, (Texts{"COM 10 open 4800,n,8,1", "COM 11 close", "listen close"}));

    // One that cannot be read: told, and the defaults.
    Disk.Content["/tmp/other.ini"] = "\"REM UTCOffset\"\r\n99999\r\n";
    Sim.Windows.Event([&] { Open_Setup(Sim, "/tmp/other.ini"); });
    EXPECT_EQ(Take_Boxes(), Texts{"Overflow  Default data loaded"});
    EXPECT_EQ(Shell().Mode, "Ship");
    Stop();
    EXPECT_EQ(Saved().Of<Link_State>().TCP_Port, 8040);
}

} // namespace
} // namespace brinewright
