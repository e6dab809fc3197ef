#include "links/virtual_port.hpp"

#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"

namespace brinewright {

void SendVirtualData(Simulator& Sim, std::string_view Text) {
    const Link_State& S = Sim.State.Of<Link_State>();
    const auto& Port = Sim.Links.vCom;
    if (!Port) return;
    if (S.Virtual_Port_Option && !Port->Created && S.Virtual_Port_Number != 0) {
        Port->ComPort = S.Virtual_Port_Number;
        Port->Created = true;
    }
    if (S.Virtual_Port_Active && Port->Created) Port->DataToPort(Text);
}

void Activate_Virtual_Port(Simulator& Sim) { Sim.State.Of<Link_State>().Virtual_Port_Active = true; }
void Deactivate_Virtual_Port(Simulator& Sim) { Sim.State.Of<Link_State>().Virtual_Port_Active = false; }

} // namespace brinewright
