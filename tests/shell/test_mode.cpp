#include "ownship/ship/frm_ship.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/kit/sensor_form.hpp"
#include "tests/support/virtual_simulator.hpp"

namespace brinewright {
namespace {

// Ship mode as a setup file gives it, with these sensor windows and, first of all, the ship window.
struct Modes : testing::Test, Virtual_Simulator {
    void Begin(const std::string& Mode, std::initializer_list<std::int16_t> Indices) {
        Setup.Of<Shell_State>().Mode = Mode;
        Setup.Of<Link_State>().Comport_Count = 1;
        for (const std::int16_t Index : Indices)
            Add_Window(Setup,
                       {Index == 0 ? "frmShip" : "frmX", Index, 100.0F + Index, 200.0F + Index, 4000, 5000});
        Start(Setup);
    }
    void Send_On_TCP(std::initializer_list<int> Indices) {
        Set_Up_Link(Setup, 17);
        for (const int Index : Indices) Setup.Of<Link_State>().Sensor_Table[Index].Port = 17;
    }
    Sensor_Form& Window(int Index) {
        return static_cast<Sensor_Form&>(*Open_Form_Of_Index(Sim, static_cast<std::int16_t>(Index)));
    }
    Texts Open_Names() const {
        Texts Names;
        for (const auto& F : Sim.Windows.Forms) Names.push_back(F->Path());
        return Names;
    }
    Simulator_State Setup = Default_Setup();
};

TEST_F(Modes, The_Ship_Window_Opens_Before_The_Sensors_And_Without_A_Wait) {
    Begin("Ship", {3, 0, 5});
    EXPECT_EQ(Open_Names(), (Texts{"frmMain", "frmShip", "frmGyro[1]", "frmLog[1]"}));
    EXPECT_EQ(Open_One<frmShip>(Sim)->Left, 200); // its place in the list counts, wherever in it it stands
    EXPECT_EQ(Window(3).Left, 203);
    EXPECT_EQ(Shell().Open_Form_Count, 0);
    EXPECT_NEAR(static_cast<double>(Now_us()), 2 * 350'000, 2000);
    EXPECT_TRUE(*Main_Window(Sim).Item("mnuShip").Checked);
    EXPECT_TRUE(*Main_Window(Sim).Item("mnuShip").Enabled);
    EXPECT_TRUE(*Main_Window(Sim).Item("mnuSetupShip").Enabled);

    // The places are kept at the end, and found again.
    Open_One<frmShip>(Sim)->Left = 777;
    Stop();
    EXPECT_EQ(Take_Boxes(), Texts{});
    const Simulator_State Kept = Saved();
    ASSERT_EQ(Kept.Of<Shell_State>().Open_Form_Count, 3);
    // In the order in which they lay upon each other: the log was opened last, the ship before it.
    EXPECT_EQ(Kept.Of<Shell_State>().Open_Form_List[2].Name, "frmShip");
    EXPECT_EQ(Kept.Of<Shell_State>().Open_Form_List[2].Index, 0);
    EXPECT_EQ(Kept.Of<Shell_State>().Open_Form_List[2].Left, 777);
    EXPECT_EQ(Kept.Of<Shell_State>().Open_Form_List[3].Name, "frmLog");
    EXPECT_EQ(Kept.Of<Shell_State>().Mode, "Ship");
}

TEST_F(Modes, In_Sensor_Mode_There_Is_No_Ship_Window) {
    Begin("Sensor", {0, 3}); // as after a change of mode in a version that kept the ship window in the list
    EXPECT_EQ(Open_Names(), (Texts{"frmMain", "frmGyro[1]"}));
    EXPECT_FALSE(*Main_Window(Sim).Item("mnuShip").Enabled);
    EXPECT_FALSE(*Main_Window(Sim).Item("mnuSetupShip").Enabled);
    EXPECT_FALSE(Sim.Windows.Usable(Main_Window(Sim).Item("mnuShip")));
}

TEST_F(Modes, Every_Sensor_Window_Has_Its_Item) {
    Begin("Sensor", {});
    for (int Index = 1; Index <= 10; ++Index) {
        Choose_Menu("mnuOpenForm", Index);
        EXPECT_EQ(Window(Index).Instance, Index % 2 == 0 ? 2 : 1);
    }
    EXPECT_THROW(Main_Window(Sim).Item("mnuOpenForm", 11), std::logic_error);

    // Choosing again gives the focus; for an echo sounder to the log of the same number.
    for (int Index = 1; Index <= 10; ++Index) {
        Choose_Menu("mnuOpenForm", Index);
        EXPECT_EQ(Sim.Windows.Active_Form, &Window(Index == 7 || Index == 8 ? Index - 2 : Index));
    }
    Close(Window(6));
    EXPECT_EQ(Sim.Windows.Active_Form, &Window(10)); // it stays where it was
    Close(Window(10));
    EXPECT_EQ(Sim.Windows.Active_Form, &Window(9)); // the one that was active before
    Choose_Menu("mnuOpenForm", 2);
    Choose_Menu("mnuOpenForm", 8); // without that log nothing gets it
    EXPECT_EQ(Sim.Windows.Active_Form, &Window(2));
    EXPECT_EQ(Sim.Windows.Forms.size(), 9u);
}

TEST_F(Modes, Changing_Back_And_Forth_Keeps_All_Windows_And_Places) {
    Begin("Ship", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    for (int Index = 1; Index <= 10; ++Index) Window(Index).Left = static_cast<float>(10 * Index);
    for (int Times = 0; Times < 3; ++Times) {
        const std::weak_ptr<Form> Old = Window(9).weak_from_this();
        Choose_Menu("mnuMode", 2);
        EXPECT_TRUE(Old.expired());
        EXPECT_FALSE(Open_One<frmShip>(Sim));
        EXPECT_FALSE(*Main_Window(Sim).Item("mnuShip").Checked);
        EXPECT_EQ(Sim.Windows.Forms.size(), 11u);
        Choose_Menu("mnuMode", 1);
        ASSERT_TRUE(Open_One<frmShip>(Sim));
        EXPECT_EQ(Sim.Windows.Forms.size(), 12u);
    }
    EXPECT_EQ(Take_Boxes(), Texts{});
    for (int Index = 1; Index <= 10; ++Index) EXPECT_EQ(Window(Index).Left, 10 * Index);
    Stop();
    EXPECT_EQ(Take_Boxes(), Texts{});
    EXPECT_EQ(Saved().Of<Shell_State>().Open_Form_Count, 11);
}

TEST_F(Modes, Opening_A_Setup_Exchanges_The_Ship_Window_Too) {
    Begin("Ship", {0, 3});
    Simulator_State Other = Setup;
    Other.Of<Shell_State>().Open_Form_Count = 0;
    Other.Of<Shell_State>().Mode = "Sensor";
    Add_Window(Other, {"frmWind", 9, 1, 2, 3, 4});
    Disk.Content["/other.ini"] = Write_Setup(Other, All_Windows());
    Choose_Menu("mnuFileOpen");
    Answer_File("/other.ini");
    EXPECT_EQ(Open_Names(), (Texts{"frmMain", "frmWind[1]"}));
    EXPECT_FALSE(*Main_Window(Sim).Item("mnuShip").Enabled);

    Choose_Menu("mnuFileOpen");
    Answer_File(Setup_Name);
    EXPECT_EQ(Open_Names(), (Texts{"frmMain", "frmShip", "frmGyro[1]"}));

    Choose_Menu("mnuFileSave");
    EXPECT_EQ(Saved().Of<Shell_State>().Open_Form_List[1].Name, "frmShip");
    EXPECT_EQ(Saved().Of<Shell_State>().Open_Form_List[2].Name, "frmGyro");
}

// The value in field Number of the last sentence of this type that left.
double Last_Value(const Virtual_Simulator& V, const std::string& Type, int Number) {
    for (auto Sent = V.Left.rbegin(); Sent != V.Left.rend(); ++Sent) {
        if (Sent->second.compare(3, 4, Type + ",") != 0) continue;
        std::string Rest = Sent->second;
        for (; Number > 0; --Number) Rest = Rest.substr(Rest.find(',') + 1);
        return Val_Dot(Rest);
    }
    ADD_FAILURE() << "no " << Type;
    return -1;
}

TEST_F(Modes, The_First_Sentence_Tells_Where_The_Ship_Is_Even_When_It_Is_Frozen) {
    Send_On_TCP({1, 3});
    Setup.Of<Shell_State>().Start_With_Last_Navdata = Setup.Of<Shell_State>().Freeze_Active = true;
    Setup.Of<Navdata_State>().Nav_Lat = 54;
    Setup.Of<Navdata_State>().Nav_HDG = 77;
    Setup.Of<GNSS_State>().GLL_Enabled[1] = Setup.Of<Gyro_State>().HDT_Enabled[1] = true;
    Setup.Of<Gyro_State>().HDT_Interval[1] = 0; // 0.1 s
    Begin("Ship", {0, 1, 3});
    Run_s(0.5);
    EXPECT_EQ(Last_Value(*this, "HDT", 1), 77);
    Run_s(3);
    EXPECT_EQ(Last_Value(*this, "GLL", 1), 5400);
}

TEST_F(Modes, A_Pause_Ends_With_The_Window_That_Could_End_It) {
    Send_On_TCP({3});
    Setup.Of<Gyro_State>().HDT_Enabled[1] = true;
    Begin("Ship", {0, 3});
    Click(Open_One<frmShip>(Sim)->cmdPause);
    Run_s(3);
    EXPECT_TRUE(Left.empty());
    Choose_Menu("mnuMode", 2);
    Run_s(3);
    EXPECT_FALSE(Left.empty());
}

TEST_F(Modes, One_Ship_Drives_All_Sensors) {
    Send_On_TCP({1, 3, 5, 9});
    Setup.Of<GNSS_State>().VTG_Enabled[1] = Setup.Of<Gyro_State>().HDT_Enabled[1] =
        Setup.Of<Gyro_State>().ROT_Enabled[1] = Setup.Of<Log_State>().VHW_Enabled[1] = true;
    Setup.Of<GNSS_State>().GLL_Enabled[1] = Setup.Of<Wind_State>().MWV_Enabled[1] = true;
    Setup.Of<Shell_State>().Start_With_Last_Navdata = true;
    Setup.Of<Navdata_State>().Nav_SOG = 12;
    Setup.Of<Navdata_State>().Nav_HDG = Setup.Of<Navdata_State>().Nav_COG = 350;
    Setup.Of<Navdata_State>().Nav_Rudder = 6;
    Setup.Of<Navdata_State>().Nav_Lat = 10;
    Setup.Of<Navdata_State>().Nav_Lon = 20;
    Setup.Of<Wind_State>().Wind_Relative_Ref[1] = true;
    Begin("Ship", {0, 1, 3, 5, 9});
    Run_s(300.5); // 6 degrees a minute: 30 degrees on
    EXPECT_NEAR(Last_Value(*this, "HDT", 1), 20, 0.21);
    EXPECT_EQ(Last_Value(*this, "VTG", 1), Last_Value(*this, "HDT", 1));
    EXPECT_EQ(Last_Value(*this, "VHW", 1), Last_Value(*this, "HDT", 1));
    EXPECT_EQ(Last_Value(*this, "ROT", 1), 6);
    EXPECT_EQ(Last_Value(*this, "VTG", 5), 12);
    EXPECT_EQ(Last_Value(*this, "VHW", 5), 12);
    EXPECT_EQ(Last_Value(*this, "MWV", 3), 12); // no wind: what is felt is the ship's own speed
    // About a nautical mile to the north, and hardly to the east: the mean course is 005.
    EXPECT_NEAR(Nav().Nav_Lat, 10 + 0.985 / 60, 0.01 / 60);
    EXPECT_EQ(GNSS().GNSS_Lat[1], Nav().Nav_Lat);
    EXPECT_EQ(Take_Boxes(), Texts{});
}

} // namespace
} // namespace brinewright
