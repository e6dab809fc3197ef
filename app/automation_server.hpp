#pragma once

#include "automation/automation.hpp"
#include "platform_qt/local_line_server.hpp"

#include <map>
#include <memory>
#include <string>

namespace brinewright {

// Automation over a local socket: one session for each connection.
class Automation_Server {
  public:
    Automation_Server(const std::string& Socket_Path, Simulator& Sim,
                      Automation_Hooks Hooks); // throws Run_Time_Error
    // Who connects before waits: while the windows of the setup open there is nothing to talk about.
    void Begin() { Socket.Set_Accepting(true); }

  private:
    Simulator& Its_Simulator;
    Automation_Hooks Its_Hooks;
    std::map<std::int64_t, std::unique_ptr<Automation_Session>> Sessions;
    Local_Line_Server Socket;
};

} // namespace brinewright
