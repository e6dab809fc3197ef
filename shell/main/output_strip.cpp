#include "ownship/ship/frm_ship.hpp"
#include "shell/main/frm_main.hpp"
#include "shell/state/fault_state.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/windows.hpp"

#include <optional>
#include <utility>

namespace brinewright {

namespace {

struct Fault_Text {
    bool Fault_State::*Fault;
    const char* Text;
};

constexpr Fault_Text Fault_Texts[] = {
    {&Fault_State::Fault_No_Checksum, "no checksum"},
    {&Fault_State::Fault_Faulty_Checksum, "faulty checksum"},
    {&Fault_State::Fault_Merged, "merged messages"},
    {&Fault_State::Fault_Cut, "cut messages"},
    {&Fault_State::Fault_Split, "split messages"},
};

void Show_Faults(Simulator& Sim) {
    std::string Faults;
    for (const Fault_Text& Each : Fault_Texts)
        if (Sim.State.Of<Fault_State>().*Each.Fault)
            Faults += std::string(Faults.empty() ? "" : ", ") + Each.Text;
    Label& Shown = Main_Window(Sim).lblFaults;
    Shown.Caption = "Fault injected: " + Faults;
    Shown.Visible = !Faults.empty();
}

// As the key of the ship window does, which may be closed or hidden.
void Continue_Output(Simulator& Sim) {
    if (auto* const Ship = Open_One<frmShip>(Sim))
        Ship->cmdPause.Click();
    else
        Sim.State.Of<Shell_State>().Pause_Active = false;
}

// Looks after each event: boxes and the pause come and go in many ways, and each window says what holds it.
struct Output_Watch {
    Simulator& Sim;
    std::optional<std::pair<bool, bool>> Seen{};

    void operator()() {
        const bool Held = !Sim.Windows.Boxes.Standing.empty();
        const bool Paused = Sim.State.Of<Shell_State>().Pause_Active;
        if (Seen == std::pair(Held, Paused)) return;
        Seen = {Held, Paused};
        Main_Window(Sim).lblOutputHeld.Visible = Held;
        Main_Window(Sim).lblOutputPaused.Visible = Paused;
        Look_Anew(Sim);
    }
};

} // namespace

void Wire_Output_Strip(Simulator& Sim) {
    Main_Window(Sim).lblOutputPaused.Mouse_Down = [&Sim](Mouse_Button) { Continue_Output(Sim); };
    Show_Faults(Sim);
    Sim.Told.Switched.Add(&Sim, [&Sim] { Show_Faults(Sim); });
    Sim.Windows.On_Settled.push_back(Output_Watch{Sim});
}

} // namespace brinewright
