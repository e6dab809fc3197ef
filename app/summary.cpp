#include "app/summary.hpp"

#include "links/link_record.hpp"
#include "links/links_at_start.hpp"
#include "links/port_list.hpp"
#include "shell/kit/sensor_form.hpp"
#include "shell/main/file_menu.hpp"
#include "shell/main/frm_main.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

namespace brinewright {

namespace {

// " GGA VTG" for the sentences that are ticked.
std::string Sentence_List(const Sensor_Form& Window) {
    std::string List;
    for (const Sentence_Line& Line : Window.Sentences.Lines)
        if (Line.Box.Value()) List += std::string(" ") + Line.Row.Type;
    return List.empty() ? " no sentence is ticked" : List;
}

std::string Link_Text(const Simulator& Sim, int Port) {
    if (Port <= port_number::None || Port > port_number::Last) return "nowhere (no link is chosen)";
    const Link_Record& R = Record_Of(Sim, Port);
    if (!R.Wanted) return "nowhere (its link is not in use)";
    if (Links_Are_Closed(Sim)) return R.Name + ", which is closed: links are not opened at start";
    if (!R.Open) return R.Name + ", which could not be opened" + (R.Why_Not.empty() ? "" : ": " + R.Why_Not);
    if (Port != port_number::TCP) return R.Name;
    const std::string Number = std::to_string(Sim.State.Of<Link_State>().TCP_Port);
    return "TCP port " + Number + "; look with: nc localhost " + Number;
}

} // namespace

std::string Summary(const Simulator& Sim) {
    std::string Text = "Setup: " + Setup_File_Name(Sim) + ", " + Sim.State.Of<Shell_State>().Mode + " mode\n";
    bool Any = false;
    for (std::int16_t Index = 1; Index <= form_index::Last; ++Index) {
        const auto* const Window = static_cast<const Sensor_Form*>(Open_Form_Of_Index(Sim, Index));
        if (!Window) continue;
        Any = true;
        Text += Entry_Text(*Class_Of_Index(Sim, Index), Window->Instance) + ":" + Sentence_List(*Window) +
                " -> " + Link_Text(Sim, Sim.State.Of<Link_State>().Sensor_Table[Index].Port) + "\n";
    }
    if (!Any) Text += "No sensor window is open in this setup, so nothing is sent.\n";
    return Text;
}

} // namespace brinewright
