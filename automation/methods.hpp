#pragma once

#include "automation/core.hpp"

#include <array>
#include <string_view>

namespace brinewright {

struct Rpc_Parameter {
    const char* Name = nullptr; // null behind the last
    bool Required = false;
};

// One row of the table of what can be called.
struct Rpc_Method {
    std::string_view Name;
    std::array<Rpc_Parameter, 3> Parameters;
    Json (*Run)(Automation_Core& Core, const Json& Bound);
};

// Throws Rpc_Error: Unknown_Method.
const Rpc_Method& Find_Method(std::string_view Name);

// The parameters as an object, whether they are given by name, by position or, when none is needed, not at
// all. Throws Rpc_Error (Params) for missing and for unknown ones.
Json Bind_Parameters(const Rpc_Method& Method, const Json& Request);

} // namespace brinewright
