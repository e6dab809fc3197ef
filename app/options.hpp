#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace brinewright {

// What the command line says, checked.
struct Program_Options {
    std::string Setup_File;
    bool No_Save = false;
    std::string Data_Folder;      // with its final separator
    bool Own_Data_Folder = false; // given: the application settings live there too
    std::int16_t Instance_Number = 0;
    std::map<int, std::string> Com_Devices;
    bool To_Stdout = false;
    std::string Record_File;
    std::string Script_File;
    std::string Joystick_Script_File; // empty: the game controller of the machine
    bool Control_Input = false;
    std::string Automation_Socket;
    bool Hold_Boxes = false;
    std::optional<std::uint64_t> Seed;
    std::optional<double> Duration_s;
    bool Virtual = false;
    std::optional<std::int64_t> Start_Local_us;
};

// Reads the command line. Nothing comes back when the program has to end at once with Exit_Status: help was
// asked for (0, it is on stdout), or an option is wrong (2, one line is on stderr).
std::optional<Program_Options> Read_Options(int Argument_Count, char** Arguments, const char* Program_Name,
                                            int& Exit_Status);

} // namespace brinewright
