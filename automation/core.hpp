#pragma once

#include "automation/address.hpp"
#include "automation/automation.hpp"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace brinewright {

struct Watch {
    std::string Path; // 8-bit text, as it was asked for
    Address Where;
    Json Last;
};

// What one session holds. It outlives the session while a line is handled or changes are pushed, so that a
// peer may vanish at any moment.
struct Automation_Core {
    Automation_Target Target;
    Automation_Hooks Hooks;
    std::function<void(std::string)>* Push = nullptr; // of the session; null when that has ended
    std::vector<Watch> Watches;
    std::uint64_t Seen_Revision = 0; // of the windows, when Watches were looked at last
};

} // namespace brinewright
