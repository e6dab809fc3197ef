#pragma once

#include "links/setup_file/setup_field.hpp"
#include "links/setup_file/setup_limits.hpp"
#include "shell/state/simulator_state.hpp"

#include <span>
#include <string_view>

namespace brinewright {

// One section of the setup file. Read, Write and List are the same walk over its fields.
struct Setup_Section {
    std::string_view Marker;
    void (*Read)(Setup_Reader&, Simulator_State&);
    void (*Write)(Setup_Writer&, const Simulator_State&);
    void (*List)(Setup_Values&, Simulator_State&);
};

// All sections in the order of writing.
std::span<const Setup_Section> Setup_Sections();

} // namespace brinewright
