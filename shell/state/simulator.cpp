#include "shell/state/simulator.hpp"

namespace brinewright {

Simulator::Simulator(Platform& Its_Platform, Start_Options Its_Options,
                     std::span<const Window_Class* const> Its_Windows)
    : Services(Its_Platform), Options(std::move(Its_Options)), Timers(Its_Platform.Time()), Windows(Timers),
      Window_Table(Its_Windows) {
    const auto Keep = [this](std::string_view Text, int Port, std::int16_t From, bool Received) {
        Clock& Time = Services.Time();
        Keep_Sentence(Log, {Time.Local_us(), Time.Wide_us(), static_cast<std::int16_t>(Port), From, Received},
                      Text);
    };
    // What no link took has not left.
    Told.Sent.Add(&Log, [Keep](const Sent_Sentence& Sent) {
        if (Sent.Link_Took_It) Keep(Sent.Text, Sent.Port, Sent.Sender, false);
    });
    Told.Received.Add(&Log,
                      [Keep](int Port, const std::string& Text) { Keep(Text, Port, sender::None, true); });
}

// The windows hold timers of the queue and handlers on the simulator, so they go while both still stand.
Simulator::~Simulator() {
    for (const auto& Window : Windows.Forms) Window->On_Unload = nullptr;
    while (!Windows.Forms.empty()) Windows.Event([this] { Windows.Unload(*Windows.Forms.back()); });
    Timers.Stop(Links.Watch.Each_Second);
    Links.State_Checks.clear(); // controls of the main window, which is still held
}

} // namespace brinewright
