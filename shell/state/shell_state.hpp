#pragma once

#include "platform/table.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

// Where a window stood. Lengths are in the units of the main window's client area.
struct Open_Form_Entry {
    std::string Name;       // the window's form name
    std::int16_t Index = 0; // its form index 1 to 11; 0 marks the ship window
    float Top = 0;
    float Left = 0;
    float Height = 0;
    float Width = 0;
};

// Mode, windows and the switches of the whole system.
struct Shell_State {
    std::string Mode;                 // "Ship" or "Sensor": who drives the sensors
    std::int16_t Instance_Number = 0; // 0 first copy, 2 second, 3 third
    std::string Data_Folder;          // of setup and route files; ends with the platform's separator
    std::int16_t Open_Form_Index = 0; // form index of the window being opened
    std::int16_t Open_Form_Count = 0; // valid entries of Open_Form_List
    Table<Open_Form_Entry, 1, 20> Open_Form_List;
    bool Pause_Active = false;            // the transmit path discards every sentence
    bool Freeze_Active = false;           // ship and targets stand still, sentences keep flowing
    bool Start_With_Last_Navdata = false; // take the navdata of the setup file at start
    std::string Last_Said;                // in the status bar, see Say
    std::int16_t LatLon_Format = 0;       // in text boxes: 0 degrees and minutes, else with seconds
};

} // namespace brinewright
