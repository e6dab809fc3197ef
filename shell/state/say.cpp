#include "shell/state/say.hpp"

#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

#include <utility>

namespace brinewright {

void Say(Simulator& Sim, std::string Text) {
    std::string& Last = Sim.State.Of<Shell_State>().Last_Said;
    Last = std::move(Text);
    Sim.Windows.Revision++;
    Sim.Told.Said.Tell(Last);
}

} // namespace brinewright
