#pragma once

#include "app/options.hpp"
#include "automation/automation.hpp"
#include "shell/state/simulator.hpp"

#include <functional>
#include <string>

namespace brinewright {

// What a program puts in front of the simulator: windows, or nothing.
struct Front_End {
    std::function<void(Simulator&)> Open;  // before the setup is read; may be null
    std::function<void(Simulator&)> Ready; // when the windows of the setup are open
    std::function<void()> Close;           // before the simulator goes
    // Saves a picture of a window; comes back with what went wrong.
    std::function<std::string(const std::string& Form_Path, const std::string& File)> Grab;
    bool Shows_Boxes = false; // message boxes are there to be answered by hand
};

// Runs the simulator as the options say, in real or in virtual time, until it has ended. Needs a
// QCoreApplication. Comes back with the exit status. Throws Run_Time_Error for what the user has to mend
// before a start.
int Run_Program(const Program_Options& Chosen, const Front_End& Front);

// The whole of main around Run, which makes the application object and calls Run_Program: reads the options,
// and tells in one line what was wrong with them or with the start.
int Run_Main(int Argument_Count, char** Arguments, const char* Program_Name,
             const std::function<int(const Program_Options&)>& Run);

} // namespace brinewright
