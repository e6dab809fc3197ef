#include "links/udp_links.hpp"

#include "links/link_record.hpp"
#include "links/port_list.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"

#include <string>

namespace brinewright {

namespace {

constexpr const char* Broadcast = "255.255.255.255";

// Data that the monitor does not show is left unread; the socket keeps only so much of it. What comes while
// the monitor is frozen is lost to it.
void DataArrival(Simulator& Sim, std::int16_t K) {
    const Link_State& S = Sim.State.Of<Link_State>();
    const int Port = port_number::First_UDP + K;
    if (!S.Extended_Monitor_Open || Port != S.Extended_Monitor_Port) return;
    // What was left unread before comes with it, so that the pane does not lag behind the link from then on.
    UDP_Socket& Link = *Sim.Links.WinsockUDP[K];
    for (std::string Text = Link.Receive(); !Text.empty(); Text = Link.Receive())
        if (!S.Extended_Monitor_Frozen) Sim.Told.Received.Tell(Port, Text);
}

} // namespace

std::string UDP_Destination(const Simulator& Sim) {
    const Link_State& S = Sim.State.Of<Link_State>();
    return S.UDP_Mode != 0 ? S.UDP_Remote_Host : Broadcast;
}

std::string Try_UDP(Simulator& Sim, std::int16_t K) {
    const int Port = port_number::First_UDP + K;
    try {
        auto& Link = Sim.Links.WinsockUDP[K];
        if (!Link) {
            Link = Sim.Services.Make_UDP_Socket();
            Link->On_Data_Arrival = [&Sim, K] { Sim.Windows.Event([&] { DataArrival(Sim, K); }); };
        }
        if (Link->Is_Open()) Link->Close();
        Link->Open(UDP_Destination(Sim), Sim.State.Of<Link_State>().UDP_Port_Number[K]);
    } catch (const Run_Time_Error& Failure) {
        Note_Closed(Sim, Port, Failure.what());
        return Failure.what();
    }
    Note_Open(Sim, Port);
    return {};
}

void Open_UDP(Simulator& Sim, std::int16_t K) {
    const std::string Failure = Try_UDP(Sim, K);
    if (Failure.empty()) return;
    Sim.Windows.Boxes.Show(
        Message_Box{.Text = "UDP Error : " + Failure + " Select another port number",
                    .Icon = Box_Icon::Stop,
                    .Advice = Full_Link_Name(Sim, port_number::First_UDP + K) +
                              " is closed. Look at the network of this machine, and at address and port in "
                              "Setup > Com setup. It is tried again every few seconds."});
}

void Close_UDP(Simulator& Sim, std::int16_t K) {
    const auto& Link = Sim.Links.WinsockUDP[K];
    if (Link && Link->Is_Open()) Link->Close();
    Note_Unused(Sim, port_number::First_UDP + K);
}

} // namespace brinewright
