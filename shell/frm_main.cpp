#include "shell/frm_main.hpp"

#include "dialogs/frm_geo_format.hpp"
#include "gnss/frm_position.hpp"
#include "links/frm_iec61162.hpp"
#include "links/frm_setup.hpp"
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

std::string GNSS_Caption(int Instance) {
    return "GNSS " + Number_Text(Instance) + "    (Global Nav Sat System" + Number_Text(Instance) + ")";
}

} // namespace

frmMain::frmMain(Desktop& Its_Windows)
    : Form(Its_Windows, "frmMain", 0, Form_Kind::Main), sbStatusBar(*this, "sbStatusBar", "") {
    for (int Port = 1; Port <= 16; ++Port) {
        sbStatusBar[Port].Caption = "COM" + Number_Text(Port);
        sbStatusBar[Port].Visible = false;
    }
    sbStatusBar[1].Caption = std::string("No comports enabled");
    sbStatusBar[1].Visible = true;
}

Menu_Item* frmMain::mnuOpenForm(int Form_Index) {
    switch (Form_Index) {
    case 1: return &mnuOpenForm_GNSS1;
    case 2: return &mnuOpenForm_GNSS2;
    default: return nullptr;
    }
}

void Wire_Menus(Simulator& Sim) {
    frmMain& F = *Sim.Main;
    F.mnuFileOpen.Click = [&Sim] { mnuFileOpen_Click(Sim); };
    F.mnuFileSave.Click = [&Sim] { mnuFileSave_Click(Sim); };
    F.mnuFileSaveAs.Click = [&Sim] { mnuFileSaveAs_Click(Sim); };
    F.mnuFileExit.Click = [&Sim] { Sim.Windows.Unload(*Sim.Main); };
    F.mnuMode_Ship.Click = [&Sim] { mnuMode_Click(Sim, 1); };
    F.mnuMode_Sensor.Click = [&Sim] { mnuMode_Click(Sim, 2); };
    F.mnuSetupStartOption.Click = [&Sim] { mnuSetupStartOption_Click(Sim); };
    F.mnuSetupPort.Click = [&Sim] { mnuSetupPort_Click(Sim); };
    F.mnuSetupLatLonFormat.Click = [&Sim] { mnuSetupLatLonFormat_Click(Sim); };
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

Form* Sensor_Window(Simulator& Sim, std::int16_t Form_Index) {
    if (Form_Index == 1 || Form_Index == 2) return Sim.frmPosition_Instance[Form_Index].get();
    return nullptr;
}

void mnuOpenForm_Click(Simulator& Sim, std::int16_t Form_Index) {
    Menu_Item* Item = Sim.Main->mnuOpenForm(Form_Index);
    if (!Item) return; // a setup may name windows that do not exist here
    Sim.State.Open_Form_Index = Form_Index;
    if (*Item->Checked) {
        if (Form* Window = Sensor_Window(Sim, Form_Index)) Sim.Windows.Activate(*Window);
        return;
    }
    Item->Checked = true;
    std::shared_ptr<Form> Window = Load_frmPosition(Sim);
    if (Sim.State.Open_Form_Count != 0) Restore_Form_Position(Sim, *Window, Form_Index);
    Sim.Windows.Show(Window);
    Window->Set_Caption(GNSS_Caption(Form_Index));
}

void Show_Mode(Simulator& Sim) {
    const bool Ship = Sim.State.Mode == "Ship";
    Sim.Main->mnuMode_Ship.Checked = Ship;
    Sim.Main->mnuMode_Sensor.Checked = !Ship;
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
    // The unload clears the check, so that the call loads the window anew, in the new mode.
    For_Open_Windows([&Sim](std::int16_t Form_Index) {
        // An event of its own: keeping the place fails when the list of places is full. That is told, and the
        // window opens again all the same.
        if (Form* Window = Sensor_Window(Sim, Form_Index))
            Sim.Windows.Event([&] { Sim.Windows.Unload(*Window); });
        mnuOpenForm_Click(Sim, Form_Index);
    });
}

} // namespace brinewright
