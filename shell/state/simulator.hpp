#pragma once

#include "platform/desktop.hpp"
#include "platform/platform.hpp"
#include "platform/table.hpp"
#include "platform/timer_queue.hpp"
#include "shell/state/link_table.hpp"
#include "shell/state/reports.hpp"
#include "shell/state/sentence_log.hpp"
#include "shell/state/simulator_state.hpp"
#include "shell/state/window_class.hpp"

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace brinewright {

// What the user said at the start of the program.
struct Start_Options {
    std::string Setup_File;  // empty: the instance's own file in the data folder
    bool No_Save = false;    // the setup file is left as it is at the end
    std::string Data_Folder; // with its final separator
    std::int16_t Instance_Number = 0;
    bool Control_Input = false; // steered by datagrams, see links/control_input
};

// The whole simulator: state, windows, links and the platform below them. There is no other place for state,
// so that every test makes a fresh one.
struct Simulator {
    Simulator(Platform& Its_Platform, Start_Options Its_Options,
              std::span<const Window_Class* const> Its_Windows);
    Simulator(const Simulator&) = delete;
    Simulator& operator=(const Simulator&) = delete;
    ~Simulator();

    Platform& Services;
    Start_Options Options;
    Simulator_State State;
    Timer_Queue Timers;
    Desktop Windows;
    Link_Table Links;
    Reports Told;
    Sentence_Log Log;                   // of all that has left or come
    std::int16_t Sender = sender::None; // whose sentences go through the gate now, see Sending_As

    // The last sentence of each sensor window that left, by form index.
    Table<std::string, 1, 11> Last_Sentence;

    const std::span<const Window_Class* const> Window_Table; // every kind of window that there is
    std::shared_ptr<Form> Main;                              // the container window, until the program ends

    std::string Setup_File;       // from which the state was read last, or as which it was saved
    std::string Saved_Settings;   // what the user had set then, see Setup_Is_Saved
    std::string Unreadable_Setup; // the setup file that failed to load; the save at the end leaves it alone
    bool Save_At_End_Failed = false;
    bool Ended = false; // frmMain has unloaded
};

} // namespace brinewright
