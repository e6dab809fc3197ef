#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/state/simulator.hpp"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace brinewright {

// The container window: menus, status bar, and the start and end of the program. Its menus hold an entry for
// each window that wants one and the commands of shell/main/menus.cpp. What they show as checked is state.
struct frmMain : Form {
    static constexpr const char* Class_Name = "frmMain";

    frmMain(Desktop& Windows, std::span<const Window_Class* const> Window_Table);

    std::vector<std::unique_ptr<Menu_Item>> Menu_Items;
    Control_Array<Label, 1, 16> sbStatusBar; // one panel for each serial port
    Timer timer_Sky{*this, "timer_Sky"};

    Menu_Item& Item(const char* Item_Name,
                    int Index = Control::No_Index) const; // throws for one that is not there
};

frmMain& Main_Window(const Simulator& Sim);

// A simulator with all windows there are and its main window, which is empty as yet.
std::unique_ptr<Simulator> Make_Simulator(Platform& Its_Platform, Start_Options Its_Options);

// Brings the system up from the setup file: windows, links, saved places. Called once, as one event.
void MDIForm_Load(Simulator& Sim);

// Index 1 Ship mode, 2 Sensor mode: every open sensor window is loaded anew, since sensors read Mode at load
// only.
void mnuMode_Click(Simulator& Sim, int Index);

// Connects menus and status bar with what they do and with the state that they show.
void Wire_Main(Simulator& Sim);

} // namespace brinewright
