#include "links/link_watch.hpp"

#include "links/link_record.hpp"
#include "links/port_list.hpp"
#include "links/serial_ports.hpp"
#include "links/tcp_server.hpp"
#include "links/udp_links.hpp"
#include "shell/state/say.hpp"
#include "shell/state/simulator.hpp"

#include <cmath>

namespace brinewright {

namespace {

constexpr std::size_t Counted_Seconds = 3;
constexpr int Seconds_Between_Tries = 3;

std::string Try_Link(Simulator& Sim, int Port) {
    if (Port <= port_number::Last_Serial) return Try_Comport(Sim, Port);
    if (Port == port_number::TCP) return Try_Listening(Sim);
    return Try_UDP(Sim, static_cast<std::int16_t>(Port - port_number::First_UDP));
}

// A device can go while nothing is sent to it.
void Look_At_Device(Simulator& Sim, int Port) {
    if (Port > port_number::Last_Serial || !Record_Of(Sim, Port).Open) return;
    const auto& Device = Sim.Links.MSComm[Port];
    if (Device && !Device->Is_Open()) Link_Fails(Sim, Port, "Device unavailable");
}

void Try_Again(Simulator& Sim, int Port) {
    const Link_Record& R = Record_Of(Sim, Port);
    if (R.Open || Port == port_number::TCP || !Link_In_Use(Sim, Port)) return;
    if (Try_Link(Sim, Port).empty()) Say(Sim, R.Name + " is open again");
}

void Count_Rates(Simulator& Sim) {
    auto& Past = Sim.Links.Watch.Past;
    auto& Links = Sim.State.Of<Link_Record_State>().Link;
    Sent_Until Now{Sim.Services.Time().Wide_us(), {}};
    for (int Port = 1; Port <= port_number::Last; ++Port) Now.Sent[Port] = Links[Port].Sent;
    Past.push_back(Now);
    if (Past.size() > Counted_Seconds + 1) Past.pop_front();
    const double Passed_s = static_cast<double>(Now.At_us - Past.front().At_us) / us_Per_Second;
    for (int Port = 1; Passed_s > 0 && Port <= port_number::Last; ++Port) {
        const auto Count = static_cast<double>(Now.Sent[Port] - Past.front().Sent[Port]);
        Links[Port].Sentences_Per_s = std::round(10 * Count / Passed_s) / 10;
    }
}

void Look_At_Links(Simulator& Sim) {
    Link_Watch& Watch = Sim.Links.Watch;
    const bool Tries = ++Watch.Seconds >= Seconds_Between_Tries;
    if (Tries) Watch.Seconds = 0;
    Count_Rates(Sim);
    for (int Port = 1; Port <= port_number::Last; ++Port) {
        if (!Record_Of(Sim, Port).Wanted) continue;
        Look_At_Device(Sim, Port);
        if (Tries) Try_Again(Sim, Port);
        Sim.Told.Link.Tell(Port);
    }
}

} // namespace

void Watch_Links(Simulator& Sim) {
    Link_Watch& Watch = Sim.Links.Watch;
    if (Watch.Each_Second.Period_us != 0) return;
    Watch.Each_Second.Tick = [&Sim] { Look_At_Links(Sim); };
    Count_Rates(Sim);
    Sim.Timers.Start(Watch.Each_Second, us_Per_Second);
}

void Open_Link_Again(Simulator& Sim, int Port) {
    const bool Open = Try_Link(Sim, Port).empty();
    Say(Sim, Open ? Record_Of(Sim, Port).Name + " is open" : Why_Nothing_Leaves(Sim, Port));
}

void Link_Fails(Simulator& Sim, int Port, const char* Why) {
    if (!Record_Of(Sim, Port).Open) return; // it is known why
    Note_Closed(Sim, Port, Why);
    Say(Sim, Why_Nothing_Leaves(Sim, Port) + ". It is tried again every few seconds");
}

void Link_Works(Simulator& Sim, int Port) {
    if (Record_Of(Sim, Port).Open) return;
    Note_Open(Sim, Port);
    Say(Sim, Record_Of(Sim, Port).Name + " is open again");
}

} // namespace brinewright
