#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"

#include <memory>
#include <vector>

namespace brinewright {

struct Simulator;
struct Sensor_Form;

inline constexpr const char* Version_Text = "7.00 2026-04-21";

// The container window: menus, status bar, and the start and end of the program. Items whose window does not
// exist are not in the menus.
struct frmMain : Form {
    explicit frmMain(Desktop& Windows);

    Menu_Item mnuFileOpen{*this, "mnuFileOpen", "&Open", "File"};
    Menu_Item mnuFileSave{*this, "mnuFileSave", "&Save", "File"};
    Menu_Item mnuFileSaveAs{*this, "mnuFileSaveAs", "Save &As", "File"};
    Menu_Item mnuFileExit{*this, "mnuFileExit", "E&xit", "File"};
    Menu_Item mnuMode_Ship{Stand(*this).Element(1), "mnuMode", "&Ship simulator", "Mode"};
    Menu_Item mnuMode_Sensor{Stand(*this).Element(2), "mnuMode", "S&ensor", "Mode"};
    Menu_Item mnuSetupShip{*this, "mnuSetupShip", "Ship setup", "Setup"};
    Menu_Item mnuSetupStartOption{*this, "mnuSetupStartOption", "Start with navdata from last session",
                                  "Setup"};
    Menu_Item mnuSetupPort{*this, "mnuSetupPort", "Com setup", "Setup"};
    Menu_Item mnuSetupLatLonFormat{*this, "mnuSetupLatLonFormat", "Lat/Lon format", "Setup"};
    Menu_Item mnuShip{*this, "mnuShip", "Ship simulator", "Window"};
    Control_Array<Menu_Item, 1, 10> mnuOpenForm_Items{*this, "mnuOpenForm", "", "Window"};
    Menu_Item mnuMonitor{*this, "mnuMonitor", "Comport monitor", "Window"};
    Menu_Item mnuExtendedMonitor{*this, "mnuExtendedMonitor", "Extended Comport monitor", "Window"};
    Menu_Item mnuTraffic{*this, "mnuTraffic", "Traffic", "Window"};
    Menu_Item mnuOptionIEC450{*this, "mnuOptionIEC450", "IEC 61162-450 enabled", "Options"};
    Menu_Item mnuOptionsChecksumDisabled{*this, "mnuOptionsChecksumDisabled", "Checksum disabled", "Options"};
    Menu_Item mnuOptionsFaultyChecksum{*this, "mnuOptionsFaultyChecksum", "Simulate faulty checksum",
                                       "Options"};
    Menu_Item mnuOptionsCrLfDisabled{*this, "mnuOptionsCrLfDisabled",
                                     "Simulate merged msgs (No CarriageReturn/LineFeed)", "Options"};
    Menu_Item mnuOptionCuttedMsg{*this, "mnuOptionCuttedMsg", "Simulate cutted messages", "Options"};
    Menu_Item mnuOptionSplittedMsg{*this, "mnuOptionSplittedMsg", "Simulate splitted messages", "Options"};
    Menu_Item mnuHelpContents{*this, "mnuHelpContents", "&Contents", "Help"};
    Menu_Item mnuHelpSearch{*this, "mnuHelpSearch", "&Search For Help On...", "Help"};

    Control_Array<Label, 1, 16> sbStatusBar; // one panel for each serial port
    Timer timer_Sky{*this, "timer_Sky"};
    bool Control_Input_Warned = false; // the control input has told that it needs Ship mode
    std::vector<std::unique_ptr<Timer>> timerTCPIP_StateCheck; // one for each element of WinsockArray

    // Null for form indices whose window does not exist.
    Menu_Item* mnuOpenForm(int Form_Index);
};

// Brings the system up from the setup file: windows, links, saved places. Called once, as one event.
void MDIForm_Load(Simulator& Sim);

// Opens sensor window Form_Index (1 to 11) or gives it the focus.
void mnuOpenForm_Click(Simulator& Sim, std::int16_t Form_Index);

// Opens the window of an entry of Open_Form_List: a sensor window, or the ship window for 0.
void Open_Kept_Window(Simulator& Sim, std::int16_t Index);

// The open sensor window of a form index; null when it is closed or does not exist.
Sensor_Form* Sensor_Window(const Simulator& Sim, std::int16_t Form_Index);

// Sets the checks of the mode menu from Mode, and what is enabled in Ship mode only.
void Show_Mode(Simulator& Sim);

void Wire_Menus(Simulator& Sim);

// Index 1 Ship mode, 2 Sensor mode: every open sensor window is loaded anew, since sensors read Mode at load
// only.
void mnuMode_Click(Simulator& Sim, int Index);

} // namespace brinewright
