#pragma once

#include "platform/clock.hpp"
#include "platform/joystick.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace brinewright {

// From Due_us on, after the start of the script, the controller stands so, or is unplugged.
struct Joystick_Script_Line {
    std::int64_t Due_us = 0;
    std::optional<Joystick_Reading> Reading;
};

// Reads a script, one line for each change:
//
//   0     32768 32768 0     seconds, x, y (0 to 65535), buttons (bit mask of 16, 1 is button 1)
//   12.5  65535 32768 0     times ascend
//   60    gone
//
// Empty lines and lines that begin with # count not. Throws Run_Time_Error that names the line.
std::vector<Joystick_Script_Line> Read_Joystick_Script(std::string_view Text);

// A game controller that plays a script from its making on: the last line that is due holds. Before the first
// one there is no controller.
class Scripted_Joystick final : public Joystick {
  public:
    Scripted_Joystick(std::vector<Joystick_Script_Line> Script, Clock& Its_Clock);
    std::optional<Joystick_Reading> Read() override;

  private:
    std::vector<Joystick_Script_Line> Lines;
    Clock& Time;
    std::int64_t Started_us;
    std::size_t Passed = 0; // lines that have been due
};

} // namespace brinewright
