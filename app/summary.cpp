#include "app/summary.hpp"

#include "gnss/frm_position.hpp"
#include "links/port_list.hpp"
#include "shell/file_menu.hpp"
#include "shell/simulator.hpp"

namespace brinewright {

namespace {

// " GGA VTG" for the sentences that sensor Form_Index sends now.
std::string Sentence_List(const Form& Window) {
    std::string List;
    for (const Control* C : Window.Controls) {
        constexpr std::string_view Prefix = "timer_";
        if (C->Kind != Control_Kind::Timer || !C->Name.starts_with(Prefix)) continue;
        const std::string Type = C->Name.substr(Prefix.size());
        const Control* Box = Window.Find("chk" + Type);
        if (Box && Box->Kind == Control_Kind::Check_Box && static_cast<const Check_Box*>(Box)->Value())
            List += " " + Type;
    }
    return List.empty() ? " no sentence is ticked" : List;
}

std::string Link_Text(const Simulator& Sim, int Port) {
    const Simulator_State& S = Sim.State;
    if (Port == port_number::None) return "nowhere (no link is chosen)";
    if (!Link_In_Use(Sim, Port)) return "nowhere (its link is not in use)";
    if (Port <= port_number::Last_Serial) return "COM " + std::to_string(Port);
    if (Port == port_number::TCP) {
        if (!Sim.Links.Listener || !Sim.Links.Listener->Is_Listening())
            return "TCP port " + std::to_string(S.TCP_Port) + ", which could not be opened";
        return "TCP port " + std::to_string(S.TCP_Port) + "; look with: nc localhost " +
               std::to_string(S.TCP_Port);
    }
    const std::string Host = S.UDP_Mode == 0 ? "255.255.255.255" : S.UDP_Remote_Host;
    return "UDP " + Host + ":" + std::to_string(S.UDP_Port_Number[Port - port_number::First_UDP]);
}

} // namespace

std::string Summary(const Simulator& Sim) {
    std::string Text = "Setup: " + Setup_File_Name(Sim) + ", " + Sim.State.Mode + " mode\n";
    bool Any = false;
    for (const int Instance : {1, 2}) {
        const auto& Window = Sim.frmPosition_Instance[Instance];
        if (!Window) continue;
        Any = true;
        Text += "GNSS " + std::to_string(Instance) + ":" + Sentence_List(*Window) + " -> " +
                Link_Text(Sim, Sim.State.Sensor_Table[Instance].Port) + "\n";
    }
    if (!Any) Text += "No sensor window is open in this setup, so nothing is sent.\n";
    return Text;
}

} // namespace brinewright
