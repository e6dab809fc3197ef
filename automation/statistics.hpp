#pragma once

#include "automation/automation.hpp"
#include "automation/json_edge.hpp"

#include <string>

namespace brinewright {

// Sentences sent, failed, skipped and dropped; clients; lateness of ticks; time.
Json Statistics_Json(const Automation_Target& Target, const Automation_Hooks& Hooks);

// Seconds on the wide clock since the start of the program.
double Uptime_s(const Automation_Target& Target, const Automation_Hooks& Hooks);

// The clock that sentences print, as 2026-01-01T00:00:10.250000.
std::string Local_Time_Text(const Automation_Target& Target);

} // namespace brinewright
