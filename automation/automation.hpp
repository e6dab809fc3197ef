#pragma once

#include "platform/desktop.hpp"
#include "shell/state/simulator.hpp"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace brinewright {

// What automation looks at and operates.
struct Automation_Target {
    Desktop& Windows;
    Simulator_State& State;
    const Link_Table& Links;
    std::span<const Window_Class* const> Window_Table;
};

inline Automation_Target Target_Of(Simulator& Sim) {
    return {Sim.Windows, Sim.State, Sim.Links, Sim.Window_Table};
}

// What the program lends to automation beyond the target.
struct Automation_Hooks {
    std::function<void(double Seconds)> Advance; // lets virtual time pass; null in real time
    // Writes a picture of a window; comes back with the text of what went wrong, empty for nothing. Null
    // headless.
    std::function<std::string(const std::string& Form_Path, const std::string& File)> Grab;
    std::int64_t Started_us = 0; // reading of the wide clock when the program started
    std::string Version;         // of the program, as text
};

struct Automation_Core;

// One connection of automation: JSON-RPC 2.0, one message a line, as docs/automation.md tells.
//
// Handle_Line is to be called outside Desktop::Event: each action is an event of its own, so that windows are
// freed and changes pushed before the response.
class Automation_Session {
  public:
    static constexpr std::size_t Line_Limit_Bytes = 256 * 1024;

    Automation_Session(Automation_Target Target, Automation_Hooks Hooks);
    ~Automation_Session();
    Automation_Session(const Automation_Session&) = delete;
    Automation_Session& operator=(const Automation_Session&) = delete;

    // The response without its line end; empty when the line asks for none.
    std::string Handle_Line(std::string_view Line);
    // What to send to a peer whose line passed the limit before its end came.
    static std::string Overlong_Response();

    // Takes the lines that nobody asked for: changes of what is watched. It may end this session.
    std::function<void(std::string Line)> Push;

  private:
    std::shared_ptr<Automation_Core> Core;
};

} // namespace brinewright
