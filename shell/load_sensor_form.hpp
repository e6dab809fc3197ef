#pragma once

#include "shell/sensor_form.hpp"
#include "shell/simulator.hpp"

#include <memory>
#include <string>

namespace brinewright {

// Makes the window of an instance and runs its opening up to the point where it can be shown. The simulator
// keeps no hold on it once it has unloaded; the desktop does until the event is over. An instance other than
// 1 or 2 throws Run_Time_Error "Subscript out of range".
template <class Window>
std::shared_ptr<Sensor_Form> Load_Sensor_Form(Simulator& Sim, Per_Instance<std::shared_ptr<Window>>& Places,
                                              int Instance, void (*Form_Load)(Simulator&, Window&)) {
    std::shared_ptr<Window>& Place = Places[Instance];
    auto Made = std::make_shared<Window>(Sim.Windows, Instance);
    Place = Made;
    Made->Tag = std::to_string(Made->Form_Index);
    Made->Sentences.Is_Loading = true;
    Form_Load(Sim, *Made);
    Made->Sentences.Is_Loading = false;
    Made->On_Unload = [&Sim, &Place, &W = *Made] { Unload_Sensor_Form(Sim, W, [&] { Place.reset(); }); };
    return Made;
}

} // namespace brinewright
