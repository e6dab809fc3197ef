#pragma once

#include "automation/json_edge.hpp"
#include "shell/state/simulator_state.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace brinewright {

struct State_Shape;

// A variable of the state, an element of a table in it, or a field of a record. It stays good as long as the
// state.
struct State_Place {
    void* Where = nullptr;
    const State_Shape* Shape = nullptr;
};

// Path as GNSS_Lat[1], Port_Table[17].Enabled or GNSS_System_Used[1][2]. Throws Rpc_Error: Unknown_Path,
// telling what in the path is wrong.
State_Place Find_State(Simulator_State& State, std::string_view Path);

// Tables are objects keyed by subscript, so that nobody has to know where they start; records are objects
// keyed by field.
Json State_Json(const State_Place& Place);

// Name, kind and, for tables, first and last subscript of every variable.
Json State_List(Simulator_State& State);

} // namespace brinewright
