#include "links/links_at_start.hpp"

#include "links/link_record.hpp"
#include "links/port_list.hpp"
#include "links/serial_ports.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"

namespace brinewright {

namespace {

constexpr const char* Settings_Key = "Open_Network_Links_At_Start";

bool Uses_Network(const Simulator& Sim) {
    for (int Port = port_number::TCP; Port <= port_number::Last; ++Port)
        if (Link_In_Use(Sim, Port)) return true;
    return false;
}

} // namespace

bool Opens_Network_Links(const Simulator& Sim) {
    return Sim.Services.Settings().Get(Settings_Key, "1") != "0";
}

void Set_Opens_Network_Links(Simulator& Sim, bool On) {
    Sim.Services.Settings().Set(Settings_Key, On ? "1" : "0");
}

void Open_Links_Of_Setup(Simulator& Sim) {
    const std::int16_t Count = Sim.State.Of<Link_State>().Comport_Count;
    if (Count > 0 || (Opens_Network_Links(Sim) && Uses_Network(Sim)))
        Init_Comports(Sim, Count);
    else if (!Sim.State.Of<Link_Record_State>().Links_Opened)
        Note_Wanted(Sim);
}

bool Links_Are_Closed(const Simulator& Sim) {
    const auto& Records = Sim.State.Of<Link_Record_State>();
    if (Records.Links_Opened) return false;
    for (const Link_Record& R : Records.Link)
        if (R.Wanted) return true;
    return false;
}

void Open_All_Links(Simulator& Sim) {
    Init_Comports(Sim, Sim.State.Of<Link_State>().Comport_Count);
    Sim.Told.Links_Chosen.Tell();
}

} // namespace brinewright
