#pragma once

#include "platform/platform.hpp"
#include "platform/table.hpp"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace brinewright {

// The device path behind each COM number; empty when there is none.
using Com_Table = Table<std::string, 1, 16>;

// Where the system tells of its devices; tests have trees of their own.
struct Device_Roots {
    std::string Dev = "/dev";
    std::string Sys_TTY = "/sys/class/tty";
};

// The serial devices of the machine, each under one path: built-in ports that may exist (ttyS, ttyAMA),
// then USB adapters by the name that stays theirs, then those that have only a changing one (ttyUSB, ttyACM).
std::vector<std::string> Find_Serial_Devices(const Device_Roots& Roots);

// Gives each device that has no number yet the lowest free one; numbers once given stay, whether or not the
// device is there. Devices for which no number is left get none. True when the table has changed.
bool Assign_Devices(Com_Table& Devices, const std::vector<std::string>& Found);

// The table is kept in the application settings "Com1" to "Com16".
Com_Table Load_Com_Table(const App_Settings& Settings);
void Save_Com_Table(const Com_Table& Devices, App_Settings& Settings);

// An option "N=DEVICE". Throws Run_Time_Error when N is not 1 to 16 or the device is missing.
std::pair<int, std::string> Parse_Com_Option(std::string_view Text);

} // namespace brinewright
