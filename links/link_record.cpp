#include "links/link_record.hpp"

#include "links/port_list.hpp"
#include "links/udp_links.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

#include <array>
#include <utility>

namespace brinewright {

namespace {

bool Is_Port(int Port) { return Port > port_number::None && Port <= port_number::Last; }

Link_Record& Own(Simulator& Sim, int Port) { return Sim.State.Of<Link_Record_State>().Link[Port]; }

// What the system says, short enough for the end of a line; any other text stands with a small letter.
std::string In_Few_Words(std::string_view Why) {
    constexpr std::array<std::pair<std::string_view, const char*>, 5> Known{{
        {"Address already in use", "address in use"},
        {"Device or resource busy", "another program has it"},
        {"No such file or directory", "the device is not there"},
        {"Device unavailable", "the device has gone"},
        {"Input/output error", "the device does not answer"},
    }};
    for (const auto& [Text, Words] : Known)
        if (Why == Text) return Words;
    std::string Words(Why);
    if (Words.size() > 1 && Words[0] >= 'A' && Words[0] <= 'Z' && Words[1] >= 'a' && Words[1] <= 'z')
        Words[0] = static_cast<char>(Words[0] - 'A' + 'a');
    while (Words.ends_with('.')) Words.pop_back();
    return Words;
}

void Set_State(Simulator& Sim, int Port, bool Open, std::string Why_Not) {
    Link_Record& R = Own(Sim, Port);
    if (R.Open == Open && R.Why_Not == Why_Not) return;
    R.Open = Open;
    R.Why_Not = std::move(Why_Not);
    Look_Anew(Sim);
    Sim.Told.Link.Tell(Port);
}

} // namespace

const Link_Record& Record_Of(const Simulator& Sim, int Port) {
    return Sim.State.Of<Link_Record_State>().Link[Port];
}

std::string Full_Link_Name(const Simulator& Sim, int Port) {
    const Link_State& S = Sim.State.Of<Link_State>();
    if (Port <= port_number::Last_Serial) return "COM" + std::to_string(Port);
    if (Port == port_number::TCP) return "TCP " + std::to_string(S.TCP_Port);
    const int K = Port - port_number::First_UDP;
    if (S.UDP_Port_Number[K] == 0)
        return "UDP link " + std::to_string(K + 1); // as the port setup counts them
    return "UDP " + UDP_Destination(Sim) + ":" + std::to_string(S.UDP_Port_Number[K]);
}

bool Output_Leaves(const Simulator& Sim, int Port) {
    if (!Is_Port(Port) || Sim.State.Of<Shell_State>().Pause_Active || !Sim.Windows.Boxes.Standing.empty())
        return false;
    return Record_Of(Sim, Port).Open;
}

std::string Why_Nothing_Leaves(const Simulator& Sim, int Port) {
    if (!Is_Port(Port)) return "no link is chosen";
    const Link_Record& R = Record_Of(Sim, Port);
    if (!R.Open && !R.Wanted) return Full_Link_Name(Sim, Port) + " is not in use";
    if (!R.Open) return R.Name + " is closed" + (R.Why_Not.empty() ? "" : ": " + R.Why_Not);
    if (Sim.State.Of<Shell_State>().Pause_Active) return "output is paused";
    if (!Sim.Windows.Boxes.Standing.empty()) return "output is held while a message stands";
    return {};
}

bool Link_Has_Failed(const Simulator& Sim, int Port) { return Is_Port(Port) && !Record_Of(Sim, Port).Open; }

void Note_Wanted(Simulator& Sim) {
    for (int Port = 1; Port <= port_number::Last; ++Port) {
        Link_Record& R = Own(Sim, Port);
        R.Name = Full_Link_Name(Sim, Port);
        R.Wanted = Link_In_Use(Sim, Port);
        Sim.Told.Link.Tell(Port);
    }
    Look_Anew(Sim);
}

void Note_Open(Simulator& Sim, int Port) { Set_State(Sim, Port, true, {}); }

void Note_Closed(Simulator& Sim, int Port, std::string_view Why) {
    Set_State(Sim, Port, false, In_Few_Words(Why));
}

void Note_Unused(Simulator& Sim, int Port) { Set_State(Sim, Port, false, {}); }

void Note_Clients(Simulator& Sim, int Port, int Count) {
    Own(Sim, Port).Clients = Count;
    Look_Anew(Sim);
    Sim.Told.Link.Tell(Port);
}

void Note_Sent(Simulator& Sim, int Port) {
    Link_Record& R = Own(Sim, Port);
    ++R.Sent;
    R.Last_Sent_us = Sim.Services.Time().Local_us();
}

} // namespace brinewright
