#include "app/summary.hpp"

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
    const Simulator_State& S = Sim.State;
    if (Port == port_number::None) return "nowhere (no link is chosen)";
    if (!Link_In_Use(Sim, Port)) return "nowhere (its link is not in use)";
    if (Port <= port_number::Last_Serial) {
        const auto& Link = Sim.Links.MSComm[Port];
        return "COM " + std::to_string(Port) + (Link && Link->Is_Open() ? "" : ", which could not be opened");
    }
    if (Port == port_number::TCP) {
        if (!Sim.Links.Listener || !Sim.Links.Listener->Is_Listening())
            return "TCP port " + std::to_string(S.Of<Link_State>().TCP_Port) + ", which could not be opened";
        return "TCP port " + std::to_string(S.Of<Link_State>().TCP_Port) + "; look with: nc localhost " +
               std::to_string(S.Of<Link_State>().TCP_Port);
    }
    const std::string Host =
        S.Of<Link_State>().UDP_Mode == 0 ? "255.255.255.255" : S.Of<Link_State>().UDP_Remote_Host;
    return "UDP " + Host + ":" +
           std::to_string(S.Of<Link_State>().UDP_Port_Number[Port - port_number::First_UDP]);
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
