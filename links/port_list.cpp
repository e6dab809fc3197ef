#include "links/port_list.hpp"

#include "sentences/number_text.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"

namespace brinewright {

bool Link_In_Use(const Simulator& Sim, int Port) {
    if (Port < 1 || Port > port_number::Last) return false;
    const Port_Setting& Link = Sim.State.Of<Link_State>().Port_Table[Port];
    return Link.Present && Link.Enabled;
}

std::string Link_Name(const Simulator& Sim, int Port) {
    if (Port <= port_number::Last_Serial) return "COM" + Number_Text(Port);
    if (Port == port_number::TCP) return "TCP/IP";
    return "UDP" + Number_Text(Sim.State.Of<Link_State>().UDP_Port_Number[Port - port_number::First_UDP]);
}

void Fill_Port_List(const Simulator& Sim, Combo_Box& List, std::int16_t Selected) {
    List.Clear();
    for (int Port = 1; Port <= port_number::Last; ++Port) {
        if (Link_In_Use(Sim, Port)) List.Add_Item(Link_Name(Sim, Port), Port);
    }
    // The virtual port shares the port number of the first UDP link; nothing turns this option on.
    if (Sim.State.Of<Link_State>().Virtual_Port_Option)
        List.Add_Item("vCom" + Number_Text(Sim.State.Of<Link_State>().Virtual_Port_Number),
                      port_number::First_UDP);
    List.Choose_Data(Selected);
}

} // namespace brinewright
