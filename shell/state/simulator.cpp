#include "shell/state/simulator.hpp"

namespace brinewright {

Simulator::Simulator(Platform& Its_Platform, Start_Options Its_Options,
                     std::span<const Window_Class* const> Its_Windows)
    : Services(Its_Platform), Options(std::move(Its_Options)), Timers(Its_Platform.Time()), Windows(Timers),
      Window_Table(Its_Windows) {}

// The windows hold timers of the queue and handlers on the simulator, so they go while both still stand.
Simulator::~Simulator() {
    for (const auto& Window : Windows.Forms) Window->On_Unload = nullptr;
    while (!Windows.Forms.empty()) Windows.Event([this] { Windows.Unload(*Windows.Forms.back()); });
    Timers.Stop(Links.Watch.Each_Second);
    Links.State_Checks.clear(); // controls of the main window, which is still held
}

} // namespace brinewright
