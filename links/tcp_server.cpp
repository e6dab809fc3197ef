#include "links/tcp_server.hpp"

#include "links/port_list.hpp"
#include "links/tx_time_text.hpp"
#include "sentences/number_text.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>
#include <limits>

namespace brinewright {

namespace {

constexpr int Last_Element = std::numeric_limits<std::int16_t>::max(); // TCP_Client_Max_Index is 16 bits wide

// The mark on an element whose closing is not a client that goes away.
constexpr const char* No_Reduction = "NoReduction";

TCP_Element& Element(Simulator& Sim, int Index) {
    auto& All = Sim.Links.WinsockArray;
    while (static_cast<int>(All.size()) <= Index) All.push_back(std::make_unique<TCP_Element>());
    return *All[static_cast<std::size_t>(Index)];
}

std::string Now_Text(Simulator& Sim) { return Date_Time_Text(Sim.Services.Time().Local_us()); }

void WinsockArray_Close(Simulator& Sim, int Index) {
    TCP_Element& Gone = Element(Sim, Index);
    // Its timer sees the closed state and stops, so that the clients of a long run leave nothing that ticks.
    Gone.State = socket_state::Closed;
    if (Gone.Connection) {
        Gone.Skipped = Gone.Connection->Skipped_Count();
        Gone.Connection->Close();
        // The call may come from inside this connection: it is freed when the next one goes.
        Sim.Links.Gone_Connection = std::move(Gone.Connection);
    }
    std::erase(Sim.Links.Connected, Index);
    if (Gone.Tag != No_Reduction) {
        --Sim.State.Of<Link_State>().TCP_Client_Count;
        Sim.Told.TCP.Tell(TCP_News::Client_Count, -1);
        auto& History = Sim.Links.Connection_History;
        if (Index < static_cast<int>(History.size()))
            History[static_cast<std::size_t>(Index)] += " - " + Now_Text(Sim) + " disconnected";
        Sim.Told.TCP.Tell(TCP_News::History, Index);
    }
    Gone.Tag.clear();
}

// Closing the element that listens is no client going away; the mark tells the handler of the closing so.
void Close_Listening_Element(Simulator& Sim, int Index) {
    TCP_Element& Listening = Element(Sim, Index);
    if (Listening.State == socket_state::Closed) return;
    Listening.Tag = No_Reduction;
    WinsockArray_Close(Sim, Index);
}

void Start_State_Check(Simulator& Sim, int Index) {
    auto& Checks = Sim.Links.State_Checks;
    while (static_cast<int>(Checks.size()) <= Index)
        Checks.push_back(
            std::make_unique<Timer>(*Sim.Main, "timerTCPIP_StateCheck", static_cast<int>(Checks.size())));
    Timer& Check = *Checks[static_cast<std::size_t>(Index)];
    Check.Tick = [&Sim, &Check, Index] {
        const int State = Element(Sim, Index).State;
        if (State != socket_state::Connected && State != socket_state::Closing) Check.Set_Interval(0);
    };
    Check.Set_Interval(2000);
}

void WinsockArray_ConnectionRequest(Simulator& Sim, std::unique_ptr<TCP_Connection> Client) {
    const int Index = Sim.State.Of<Link_State>().TCP_Client_Max_Index;
    if (Index >= Last_Element) {
        // Elements are never used again, and their number is 16 bits wide.
        Client->Close();
        return;
    }
    TCP_Element& Accepting = Element(Sim, Index);
    Close_Listening_Element(Sim, Index);
    Accepting.Remote_Host_IP = Client->Remote_IP();
    Accepting.State = socket_state::Connected;
    Accepting.Connection = std::move(Client);
    Accepting.Connection->On_Close = [&Sim, Index] {
        Sim.Windows.Event([&] { WinsockArray_Close(Sim, Index); });
    };
    Sim.Links.Connected.push_back(Index);
    Sim.Told.TCP.Tell(TCP_News::Client_Came, Index);
    ++Sim.State.Of<Link_State>().TCP_Client_Count;
    Start_State_Check(Sim, Index);
    ++Sim.State.Of<Link_State>().TCP_Client_Max_Index;
    Element(Sim, Sim.State.Of<Link_State>().TCP_Client_Max_Index);
    TCP_Listen(Sim);
}

} // namespace

void TCP_Listen(Simulator& Sim) {
    const int Index = Sim.State.Of<Link_State>().TCP_Client_Max_Index;
    TCP_Element& Listening = Element(Sim, Index);
    auto& Listener = Sim.Links.Listener;
    try {
        if (Listening.State != socket_state::Closed) {
            Close_Listening_Element(Sim, Index);
            if (Listener) Listener->Close();
        }
        if (!Listener) {
            Listener = Sim.Services.Make_TCP_Listener();
            Listener->On_Connection = [&Sim](std::unique_ptr<TCP_Connection> Client) {
                Sim.Windows.Event([&] { WinsockArray_ConnectionRequest(Sim, std::move(Client)); });
            };
        }
        if (!Listener->Is_Listening()) Listener->Listen(Sim.State.Of<Link_State>().TCP_Port);
        Listening.State = socket_state::Listening;
    } catch (const Run_Time_Error& Failure) {
        Sim.Windows.Boxes.Show(std::string("TCP/IP Error : ") + Failure.what() +
                                   " Select another port number",
                               "", Box_Icon::Stop);
        return;
    }
    if (Index == 0) {
        Sim.Told.TCP.Tell(TCP_News::Listening, Index);
        return;
    }
    Sim.Told.TCP.Tell(TCP_News::Client_Count, -1);
    Sim.Links.Connection_History.push_back(Number_Text(Index) + "-Connected to IP : " +
                                           Element(Sim, Index - 1).Remote_Host_IP + " - " + Now_Text(Sim));
    Sim.Told.TCP.Tell(TCP_News::History, Index - 1);
}

void TCP_Stop(Simulator& Sim) {
    if (Sim.Links.Listener) Sim.Links.Listener->Close();
    Close_Listening_Element(Sim, Sim.State.Of<Link_State>().TCP_Client_Max_Index);
    while (!Sim.Links.Connected.empty()) WinsockArray_Close(Sim, Sim.Links.Connected.back());
}

void Write_TCP(Simulator& Sim, const std::string& Text) {
    const auto& Connected = Sim.Links.Connected;
    if (Connected.empty()) return;
    for (const int Index : Connected)
        Sim.Links.WinsockArray[static_cast<std::size_t>(Index)]->Connection->Send(Text);
    // The time is shown from the second sending on, as the panels of the serial ports do.
    float& Last_Tx_s = Sim.State.Of<Link_State>().Transmit.Last_Tx_Time[port_number::TCP - 1];
    if (Last_Tx_s != 0 || Connected.size() > 1) Sim.Told.TCP.Tell(TCP_News::Sent, -1);
    Last_Tx_s = Time_Of_Day_s(Sim.Services.Time().Local_us());
}

} // namespace brinewright
