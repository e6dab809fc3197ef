#pragma once

#include "platform/controls.hpp"
#include "shell/simulator.hpp"

#include <memory>
#include <utility>

namespace brinewright {

// Opens a window that exists once, or gives it the focus when it is open. Load wires and fills it before it
// is shown; an On_Unload of its own runs before the window is forgotten. Entry, if any, is checked while it
// is open.
template <class Window>
void Open_Once(Simulator& Sim, std::shared_ptr<Window>& Place, void (*Load)(Simulator&, Window&),
               Menu_Item* Entry = nullptr) {
    if (Place) return Sim.Windows.Activate(*Place);
    Place = std::make_shared<Window>(Sim.Windows);
    Load(Sim, *Place);
    Place->On_Unload = [&Place, Entry, Own = std::move(Place->On_Unload)] {
        if (Own) Own();
        if (Entry) Entry->Checked = false;
        Place.reset();
    };
    if (Entry) Entry->Checked = true;
    Sim.Windows.Show(Place);
}

} // namespace brinewright
