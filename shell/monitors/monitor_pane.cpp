#include "shell/monitors/monitor_pane.hpp"

#include "shell/state/iec450_state.hpp"
#include "shell/state/simulator.hpp"

namespace brinewright {

namespace {
constexpr std::size_t Pane_Limit_Bytes = 64 * 1024;
}

std::string Shown_Text(const Simulator& Sim, std::string_view Text) {
    std::string Shown(Text);
    if (Sim.State.Of<IEC450_State>().IEC450_Enabled && Sim.State.Of<IEC450_State>().UdPbC_Header_Enabled &&
        Shown.size() >= 6)
        Shown[5] = ' ';
    return Shown;
}

void Append_To_Pane(Text_Box& Pane, std::string_view More) {
    if (Pane.Text().size() + More.size() > Pane_Limit_Bytes) Pane.Set_Text("");
    Pane.Append_Text(More.substr(0, Pane_Limit_Bytes));
}

} // namespace brinewright
