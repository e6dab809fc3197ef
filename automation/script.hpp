#pragma once

#include "automation/automation.hpp"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace brinewright {

// One line of a script: a message of automation and when it is due.
struct Script_Line {
    std::int64_t Due_us = 0; // after the start of the script
    std::string Message;     // with what a script line may leave out filled in
    int Line_Number = 0;     // in the file, from 1
};

// Reads a script: lines "TIME JSON", TIME in seconds from the start, or "+SECONDS" from the line before;
// empty lines and lines that begin with # count not. A message may leave out "jsonrpc" and "id". Comes back
// with an empty text, or with what is wrong in which line; then Lines is untouched.
std::string Read_Script(std::string_view Text, std::vector<Script_Line>& Lines);

// Plays a script from now on, on the timer queue of the desktop: in real time as in virtual time. One line is
// one event. The player must not outlive the target.
class Script_Player {
  public:
    Script_Player(Automation_Target Target, Automation_Hooks Hooks, std::vector<Script_Line> Script);
    ~Script_Player();
    Script_Player(const Script_Player&) = delete;
    Script_Player& operator=(const Script_Player&) = delete;

    // Told of each response, errors or not, and of each change of what the script watches (with line number
    // 0).
    std::function<void(int Line_Number, const std::string& Response)> On_Output;
    // Told of each response that is an error, before On_Output.
    std::function<void(int Line_Number, const std::string& Response)> On_Error;
    std::size_t Error_Count = 0;
    bool Is_Done() const { return Next >= Lines.size(); }

  private:
    void Await_Next();
    void Play_Next();

    Timer_Queue& Timers;
    std::vector<Script_Line> Lines;
    std::size_t Next = 0;
    std::int64_t Started_us;
    Automation_Session Session;
    Timer_Queue::Entry Alarm;
};

} // namespace brinewright
