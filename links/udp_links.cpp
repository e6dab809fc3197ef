#include "links/udp_links.hpp"

#include "links/port_list.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"

#include <string>

namespace brinewright {

namespace {

constexpr const char* Broadcast = "255.255.255.255";

// Data that the monitor does not show is left unread; the socket keeps only so much of it.
void DataArrival(Simulator& Sim, std::int16_t K) {
    const Link_State& S = Sim.State.Of<Link_State>();
    const int Port = port_number::First_UDP + K;
    if (!S.Extended_Monitor_Open || S.Extended_Monitor_Frozen || Port != S.Extended_Monitor_Port) return;
    // What was left unread before comes with it, so that the pane does not lag behind the link from then on.
    UDP_Socket& Link = *Sim.Links.WinsockUDP[K];
    for (std::string Text = Link.Receive(); !Text.empty(); Text = Link.Receive())
        Sim.Told.Received.Tell(Port, Text);
}

} // namespace

std::string UDP_Destination(const Simulator& Sim) {
    const Link_State& S = Sim.State.Of<Link_State>();
    return S.UDP_Mode != 0 ? S.UDP_Remote_Host : Broadcast;
}

void Open_UDP(Simulator& Sim, std::int16_t K) {
    try {
        auto& Link = Sim.Links.WinsockUDP[K];
        if (!Link) {
            Link = Sim.Services.Make_UDP_Socket();
            Link->On_Data_Arrival = [&Sim, K] { Sim.Windows.Event([&] { DataArrival(Sim, K); }); };
        }
        if (Link->Is_Open()) Link->Close();
        Link->Open(UDP_Destination(Sim), Sim.State.Of<Link_State>().UDP_Port_Number[K]);
    } catch (const Run_Time_Error& Failure) {
        Sim.Windows.Boxes.Show(std::string("UDP Error : ") + Failure.what() + " Select another port number",
                               "", Box_Icon::Stop);
    }
}

} // namespace brinewright
