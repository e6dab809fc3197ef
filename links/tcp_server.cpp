#include "links/tcp_server.hpp"

#include "links/link_record.hpp"
#include "links/port_list.hpp"
#include "links/tx_time_text.hpp"
#include "sentences/number_text.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>
#include <limits>
#include <utility>

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

void Count_Clients(Simulator& Sim, int More) {
    std::int16_t& Count = Sim.State.Of<Link_State>().TCP_Client_Count;
    Count = static_cast<std::int16_t>(Count + More);
    Note_Clients(Sim, port_number::TCP, Count);
}

void WinsockArray_Close(Simulator& Sim, int Index) {
    TCP_Element& Gone = Element(Sim, Index);
    // Its timer sees the closed state and stops, so that the clients of a long run leave nothing that ticks.
    Gone.State = socket_state::Closed;
    if (Gone.Connection) {
        Gone.Connection->Close();
        // The call may come from inside this connection: it is freed when the next one goes.
        Sim.Links.Gone_Connection = std::move(Gone.Connection);
    }
    std::erase(Sim.Links.Connected, Index);
    if (Gone.Tag != No_Reduction) {
        Count_Clients(Sim, -1);
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

// One line for each element, which is its number in the list as well.
void Tell_Client(Simulator& Sim, int Index) {
    auto& History = Sim.Links.Connection_History;
    const auto Place = static_cast<std::size_t>(Index);
    if (History.size() <= Place) History.resize(Place + 1);
    History[Place] = Number_Text(Index + 1) + "-Connected to IP : " + Element(Sim, Index).Remote_Host_IP +
                     " - " + Now_Text(Sim);
    Sim.Told.TCP.Tell(TCP_News::Client_Count, -1);
    Sim.Told.TCP.Tell(TCP_News::History, Index);
}

// The element that takes the next client: the one that listens. Their number is 16 bits wide; when it is used
// up, those whose clients have gone serve again, one after the other. -1: all of them hold a client.
int Element_For_Client(Simulator& Sim) {
    const int Listening = Sim.State.Of<Link_State>().TCP_Client_Max_Index;
    if (Listening < Last_Element) return Listening;
    int& Next = Sim.Links.Next_Reused;
    for (int Tried = 0; Tried < Last_Element; ++Tried) {
        const int Index = std::exchange(Next, (Next + 1) % Last_Element);
        if (Element(Sim, Index).State == socket_state::Closed) return Index;
    }
    return -1;
}

void WinsockArray_ConnectionRequest(Simulator& Sim, std::unique_ptr<TCP_Connection> Client) {
    const int Index = Element_For_Client(Sim);
    if (Index < 0) return Client->Close();
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
    Count_Clients(Sim, 1);
    Start_State_Check(Sim, Index);
    std::int16_t& Listening = Sim.State.Of<Link_State>().TCP_Client_Max_Index;
    if (Index < Listening) return Tell_Client(Sim, Index); // the one that listens goes on
    ++Listening;
    Element(Sim, Listening);
    TCP_Listen(Sim);
}

} // namespace

std::string Try_Listening(Simulator& Sim) {
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
        Note_Closed(Sim, port_number::TCP, Failure.what());
        return Failure.what();
    }
    Note_Open(Sim, port_number::TCP);
    if (Index == 0)
        Sim.Told.TCP.Tell(TCP_News::Listening, Index);
    else if (static_cast<int>(Sim.Links.Connection_History.size()) < Index)
        Tell_Client(Sim, Index - 1);
    else
        Sim.Told.TCP.Tell(TCP_News::Client_Count, -1);
    return {};
}

void TCP_Listen(Simulator& Sim) {
    const std::string Failure = Try_Listening(Sim);
    if (Failure.empty()) return;
    Sim.Windows.Boxes.Show(
        Message_Box{.Text = "TCP/IP Error : " + Failure + " Select another port number",
                    .Icon = Box_Icon::Stop,
                    .Advice = Full_Link_Name(Sim, port_number::TCP) +
                              " is closed. End the program that has this port and click the panel of the "
                              "link in the status bar, or choose another port in Setup > Com setup."});
}

void TCP_Stop(Simulator& Sim) {
    if (Sim.Links.Listener) Sim.Links.Listener->Close();
    Close_Listening_Element(Sim, Sim.State.Of<Link_State>().TCP_Client_Max_Index);
    while (!Sim.Links.Connected.empty()) WinsockArray_Close(Sim, Sim.Links.Connected.back());
    Note_Unused(Sim, port_number::TCP);
}

bool Write_TCP(Simulator& Sim, const std::string& Text) {
    Link_Record& Record = Sim.State.Of<Link_Record_State>().Link[port_number::TCP];
    const auto& Connected = Sim.Links.Connected;
    if (Connected.empty()) return Record.Open;
    bool Any_Took_It = false;
    for (const int Index : Connected) {
        TCP_Connection& Client = *Sim.Links.WinsockArray[static_cast<std::size_t>(Index)]->Connection;
        const std::uint64_t Skipped_Before = Client.Skipped_Count();
        Any_Took_It = Client.Send(Text) || Any_Took_It;
        Record.Skipped += Client.Skipped_Count() - Skipped_Before;
    }
    // The time is shown from the second sending on, as the panels of the serial ports do.
    float& Last_Tx_s = Sim.State.Of<Link_State>().Transmit.Last_Tx_Time[port_number::TCP - 1];
    if (Last_Tx_s != 0 || Connected.size() > 1) Sim.Told.TCP.Tell(TCP_News::Sent, -1);
    Last_Tx_s = Time_Of_Day_s(Sim.Services.Time().Local_us());
    return Any_Took_It;
}

} // namespace brinewright
