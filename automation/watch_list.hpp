#pragma once

#include "automation/core.hpp"

#include <memory>
#include <string>

namespace brinewright {

// From now on the watches of Core are looked at after every event, for as long as Core lives. Costs next to
// nothing while nothing is watched.
void Look_When_Settled(const std::shared_ptr<Automation_Core>& Core);

// Begins to watch and comes back with the present value. The path must lead somewhere now; when its window is
// closed later the value becomes null, until the window is opened again. Throws Rpc_Error.
Json Add_Watch(Automation_Core& Core, const std::string& Path);
// Throws Rpc_Error (Unknown_Path) when the path is not watched. An empty path ends all watches.
void Remove_Watch(Automation_Core& Core, const std::string& Path);

} // namespace brinewright
