#include "shell/frm_main.hpp"

#include "dialogs/frm_geo_format.hpp"
#include "gnss/frm_position.hpp"
#include "links/frm_iec61162.hpp"
#include "links/frm_setup.hpp"
#include "ownship/ship/frm_ship.hpp"
#include "ownship/ship/frm_ship_setup.hpp"
#include "sensors/frm_echosounder.hpp"
#include "sensors/frm_gyro.hpp"
#include "sensors/frm_log.hpp"
#include "sensors/frm_wind.hpp"
#include "shell/file_menu.hpp"
#include "shell/form_position.hpp"
#include "shell/frm_extended_monitor.hpp"
#include "shell/frm_monitor.hpp"
#include "shell/frm_traffic.hpp"
#include "shell/number_text.hpp"
#include "shell/simulator.hpp"

#include <array>

namespace brinewright {

namespace {

struct Fault_Option {
    Menu_Item frmMain::*Item;
    const char* Text_When_Checked;
    const char* Text_When_Unchecked; // null: nothing is shown
};

constexpr std::array<Fault_Option, 5> Fault_Options{{
    {&frmMain::mnuOptionsChecksumDisabled,
     "Checksum disabled. All simulated NMEA messages will be without checksum",
     "Checksum enabled again. All simulated NMEA messages will be with checksum"},
    {&frmMain::mnuOptionsFaultyChecksum,
     "Faulty checksum enabled. All simulated NMEA messages will be simulated with faulty checksum", nullptr},
    {&frmMain::mnuOptionsCrLfDisabled,
     "Merged messages will be simulated. All simulated NMEA messages will be without Carriage return/Line "
     "Feed",
     nullptr},
    {&frmMain::mnuOptionCuttedMsg,
     "Cutted messages will be simulated. All simulated NMEA messages will be cutted at a random character",
     nullptr},
    {&frmMain::mnuOptionSplittedMsg,
     "Splitted messages will be simulated. All simulated NMEA messages will be cutted at a random character "
     "and "
     "remaining characters will start next message",
     nullptr},
}};

void Toggle_Fault_Option(Simulator& Sim, const Fault_Option& Option) {
    Menu_Item& Item = (*Sim.Main).*Option.Item;
    Item.Checked = !*Item.Checked;
    const char* Text = *Item.Checked ? Option.Text_When_Checked : Option.Text_When_Unchecked;
    if (Text) Sim.Windows.Boxes.Show(Text);
}

void mnuSetupStartOption_Click(Simulator& Sim) {
    bool& Option = Sim.State.Start_With_Last_Navdata;
    Option = !Option;
    Sim.Main->mnuSetupStartOption.Checked = Option;
    if (Option)
        Sim.Windows.Boxes.Show(
            "At restart the program will start with pos, speed, course etc. from last session");
}

void mnuHelp_Click(Simulator& Sim) {
    Sim.Windows.Boxes.Show("Unable to display Help Contents. There is no Help associated with this project.");
}

constexpr float Log_Width = 2800; // twentieths of a point

// What the sensor windows of one kind differ in, seen from the menu. They exist twice.
struct Window_Kind {
    int First_Form_Index;
    const char* Menu_Name; // of both, "GNSS 1" and "GNSS 2"
    std::shared_ptr<Sensor_Form> (*Load)(Simulator&);
    Sensor_Form* (*Open_One)(const Simulator&, int Instance);
    const char* Caption; // before the instance number
    float Width;         // that its opening gives it; 0 = its own
};

template <auto Instances>
Sensor_Form* Open_One(const Simulator& Sim, int Instance) {
    return (Sim.*Instances)[Instance].get();
}

constexpr std::array<Window_Kind, 5> Window_Kinds{{
    {form_index::GNSS_1, "GNSS", Load_frmPosition, Open_One<&Simulator::frmPosition_Instance>, "GNSS ", 0},
    {form_index::Gyro_1, "Gyro", Load_frmGyro, Open_One<&Simulator::frmGyro_Instance>, "Gyro ", 0},
    {form_index::Log_1, "Log", Load_frmLog, Open_One<&Simulator::frmLog_Instance>, "Log ", Log_Width},
    {form_index::Echosounder_1, "Echosounder", Load_frmEchosounder,
     Open_One<&Simulator::frmEchosounder_Instance>, "Echosounder ", 0},
    {form_index::Wind_1, "Wind Gauge", Load_frmWind, Open_One<&Simulator::frmWind_Instance>, "Wind gauge ",
     0},
}};

// Null for form indices whose window does not exist.
const Window_Kind* Kind_Of(int Form_Index) {
    for (const Window_Kind& Kind : Window_Kinds)
        if (Form_Index == Kind.First_Form_Index || Form_Index == Kind.First_Form_Index + 1) return &Kind;
    return nullptr;
}

// The window that gets the focus when an open one is chosen again. For the echo sounders it is the log of the
// same number, if it is open: this slip is required.
Sensor_Form* Window_To_Focus(const Simulator& Sim, int Form_Index) {
    const bool Echosounder =
        Form_Index == form_index::Echosounder_1 || Form_Index == form_index::Echosounder_1 + 1;
    const int Shown = Echosounder ? Form_Index - form_index::Echosounder_1 + form_index::Log_1 : Form_Index;
    return Sensor_Window(Sim, static_cast<std::int16_t>(Shown));
}

// An event of its own: keeping the place fails when the list of places is full. That is told, and what
// follows goes on all the same.
void Close_In_Event(Simulator& Sim, Form& Window) {
    Sim.Windows.Event([&] { Sim.Windows.Unload(Window); });
}

std::string Window_Caption(const Window_Kind& Kind, int Instance) {
    std::string Text = Kind.Caption + Number_Text(Instance);
    if (Kind.First_Form_Index == form_index::GNSS_1)
        Text += "    (Global Nav Sat System" + Number_Text(Instance) + ")";
    return Text;
}

} // namespace

frmMain::frmMain(Desktop& Its_Windows)
    : Form(Its_Windows, "frmMain", 0, Form_Kind::Main), sbStatusBar(*this, "sbStatusBar", "") {
    for (const Window_Kind& Windows_Alike : Window_Kinds)
        for (const int Which : {1, 2})
            mnuOpenForm_Items[Windows_Alike.First_Form_Index + Which - 1].Caption =
                Windows_Alike.Menu_Name + Number_Text(Which);
    for (int Port = 1; Port <= 16; ++Port) {
        sbStatusBar[Port].Caption = "COM" + Number_Text(Port);
        sbStatusBar[Port].Visible = false;
    }
    sbStatusBar[1].Caption = std::string("No comports enabled");
    sbStatusBar[1].Visible = true;
}

Menu_Item* frmMain::mnuOpenForm(int Form_Index) {
    return Kind_Of(Form_Index) ? &mnuOpenForm_Items[Form_Index] : nullptr;
}

void Wire_Menus(Simulator& Sim) {
    frmMain& F = *Sim.Main;
    F.mnuFileOpen.Click = [&Sim] { mnuFileOpen_Click(Sim); };
    F.mnuFileSave.Click = [&Sim] { mnuFileSave_Click(Sim); };
    F.mnuFileSaveAs.Click = [&Sim] { mnuFileSaveAs_Click(Sim); };
    F.mnuFileExit.Click = [&Sim] { Sim.Windows.Unload(*Sim.Main); };
    F.mnuMode_Ship.Click = [&Sim] { mnuMode_Click(Sim, 1); };
    F.mnuMode_Sensor.Click = [&Sim] { mnuMode_Click(Sim, 2); };
    F.mnuSetupShip.Click = [&Sim] { mnuSetupShip_Click(Sim); };
    F.mnuSetupStartOption.Click = [&Sim] { mnuSetupStartOption_Click(Sim); };
    F.mnuSetupPort.Click = [&Sim] { mnuSetupPort_Click(Sim); };
    F.mnuSetupLatLonFormat.Click = [&Sim] { mnuSetupLatLonFormat_Click(Sim); };
    F.mnuShip.Click = [&Sim] { mnuShip_Click(Sim); };
    for (std::int16_t Index = 1; Index <= 11; ++Index)
        if (Menu_Item* Item = F.mnuOpenForm(Index))
            Item->Click = [&Sim, Index] { mnuOpenForm_Click(Sim, Index); };
    F.mnuMonitor.Click = [&Sim] { mnuMonitor_Click(Sim); };
    F.mnuExtendedMonitor.Click = [&Sim] { mnuExtendedMonitor_Click(Sim); };
    F.mnuTraffic.Click = [&Sim] { mnuTraffic_Click(Sim); };
    F.mnuOptionIEC450.Click = [&Sim] { mnuOptionIEC450_Click(Sim); };
    for (const Fault_Option& Option : Fault_Options)
        (F.*Option.Item).Click = [&Sim, &Option] { Toggle_Fault_Option(Sim, Option); };
    F.mnuHelpContents.Click = [&Sim] { mnuHelp_Click(Sim); };
    F.mnuHelpSearch.Click = [&Sim] { mnuHelp_Click(Sim); };
}

Sensor_Form* Sensor_Window(const Simulator& Sim, std::int16_t Form_Index) {
    const Window_Kind* Kind = Kind_Of(Form_Index);
    return Kind ? Kind->Open_One(Sim, Form_Index - Kind->First_Form_Index + 1) : nullptr;
}

void mnuOpenForm_Click(Simulator& Sim, std::int16_t Form_Index) {
    const Window_Kind* Kind = Kind_Of(Form_Index);
    if (!Kind) return; // a setup may name windows that do not exist here
    Menu_Item& Item = *Sim.Main->mnuOpenForm(Form_Index);
    Sim.State.Open_Form_Index = Form_Index;
    if (*Item.Checked) {
        if (Form* Window = Window_To_Focus(Sim, Form_Index)) Sim.Windows.Activate(*Window);
        return;
    }
    Item.Checked = true;
    const std::shared_ptr<Sensor_Form> Window = Kind->Load(Sim);
    if (Sim.State.Open_Form_Count != 0) Restore_Form_Position(Sim, *Window, Form_Index);
    Sim.Windows.Show(Window);
    Window->Set_Caption(Window_Caption(*Kind, Window->Instance));
    if (Kind->Width > 0) Window->Resize(Kind->Width, Window->Height);
}

void Open_Kept_Window(Simulator& Sim, std::int16_t Index) {
    if (Index == 0)
        mnuShip_Click(Sim);
    else
        mnuOpenForm_Click(Sim, Index);
}

void Show_Mode(Simulator& Sim) {
    const bool Ship = Sim.State.Mode == "Ship";
    Sim.Main->mnuMode_Ship.Checked = Ship;
    Sim.Main->mnuMode_Sensor.Checked = !Ship;
    Sim.Main->mnuShip.Enabled = Ship;
    Sim.Main->mnuSetupShip.Enabled = Ship;
}

void mnuMode_Click(Simulator& Sim, int Index) {
    const Menu_Item& Clicked = Index == 1 ? Sim.Main->mnuMode_Ship : Sim.Main->mnuMode_Sensor;
    if (*Clicked.Checked) return;
    const auto For_Open_Windows = [&Sim](auto&& Work) {
        for (std::int16_t Form_Index = 1; Form_Index <= 11; ++Form_Index) {
            const Menu_Item* Item = Sim.Main->mnuOpenForm(Form_Index);
            if (Item && *Item->Checked) Work(Form_Index);
        }
    };
    For_Open_Windows([&Sim](std::int16_t Form_Index) { mnuOpenForm_Click(Sim, Form_Index); });
    Sim.State.Mode = Index == 1 ? "Ship" : "Sensor";
    Show_Mode(Sim);
    // Windows that close keep their place in the list of open windows, and take it from there when they open
    // again. They stand again afterwards, so the list ends as it was: it has room for 20 only, and what it
    // holds from before would stand in front of where they are now.
    const auto Kept_List = Sim.State.Open_Form_List;
    const std::int16_t Kept_Count = Sim.State.Open_Form_Count;
    Sim.State.Open_Form_Count = 0;
    if (Index == 1)
        mnuShip_Click(Sim);
    else if (Sim.Ship)
        Close_In_Event(Sim, *Sim.Ship);
    // The unload clears the check, so that the call loads the window anew, in the new mode.
    For_Open_Windows([&Sim](std::int16_t Form_Index) {
        if (Form* Window = Sensor_Window(Sim, Form_Index)) Close_In_Event(Sim, *Window);
        mnuOpenForm_Click(Sim, Form_Index);
    });
    Sim.State.Open_Form_List = Kept_List;
    Sim.State.Open_Form_Count = Kept_Count;
    if (Sim.Ship) Sim.Windows.Activate(*Sim.Ship); // what the mode is about
}

} // namespace brinewright
