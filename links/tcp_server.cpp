#include "links/tcp_server.hpp"

#include "links/port_list.hpp"
#include "shell/frm_main.hpp"
#include "shell/number_text.hpp"
#include "shell/simulator.hpp"
#include "shell/tx_time_text.hpp"

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

void Show_Status(Simulator& Sim) {
    if (!Sim.TCPIP) return;
    Sim.TCPIP->lblStatus.Caption = "Connected to" + Number_Text(Sim.State.TCP_Client_Count) + " clients";
}

// The list follows the history, which outlives a closing of the window: new entries come behind, and of the
// others only the one that is selected can have changed.
void Show_History(Simulator& Sim, int Selected) {
    if (!Sim.TCPIP) return;
    Combo_Box& List = Sim.TCPIP->cmbConnections;
    const auto& History = Sim.Links.Connection_History;
    while (List.Items().size() < History.size()) List.Add_Item(History[List.Items().size()]);
    List.Visible = !History.empty();
    if (Selected < 0 || Selected >= static_cast<int>(History.size())) return;
    List.Set_Item(Selected, History[static_cast<std::size_t>(Selected)]);
    List.Set_List_Index(Selected);
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
        --Sim.State.TCP_Client_Count;
        Show_Status(Sim);
        auto& History = Sim.Links.Connection_History;
        if (Index < static_cast<int>(History.size()))
            History[static_cast<std::size_t>(Index)] += " - " + Now_Text(Sim) + " disconnected";
        Show_History(Sim, Index);
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
    auto& Checks = Sim.Main->timerTCPIP_StateCheck;
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
    const int Index = Sim.State.TCP_Client_Max_Index;
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
    if (Sim.TCPIP) {
        Sim.TCPIP->lblStatus.Fore_Colour = Ink::Black;
        Sim.TCPIP->lblTX.Visible = true;
    }
    ++Sim.State.TCP_Client_Count;
    Start_State_Check(Sim, Index);
    ++Sim.State.TCP_Client_Max_Index;
    Element(Sim, Sim.State.TCP_Client_Max_Index);
    TCP_Listen(Sim);
}

} // namespace

frmTCPIP::frmTCPIP(Desktop& Its_Windows) : Form(Its_Windows, "frmTCPIP", 0, Form_Kind::Child) {
    Caption = "TCP/IP Status";
    cmbConnections.Visible = false;
    lblTX.Visible = false;
}

void Show_frmTCPIP(Simulator& Sim) {
    if (Sim.TCPIP) {
        Sim.TCPIP->lblPort.Caption = std::to_string(Sim.State.TCP_Port);
        return;
    }
    auto Window = std::make_shared<frmTCPIP>(Sim.Windows);
    Window->Set_Place(Sim.State.frmTCPIP_Left, Sim.State.frmTCPIP_Top, 7830, 1590);
    Window->lblIP.Caption = Sim.Services.Local_IP();
    Window->lblPort.Caption = std::to_string(Sim.State.TCP_Port);
    Window->cmbConnections.Tool_Tip = std::string("Clients since the start of the program");
    Window->On_Unload = [&Sim, &F = *Window] {
        constexpr float Limit = std::numeric_limits<std::int16_t>::max();
        Sim.State.frmTCPIP_Left = static_cast<std::int16_t>(std::clamp(F.Left, -Limit, Limit));
        Sim.State.frmTCPIP_Top = static_cast<std::int16_t>(std::clamp(F.Top, -Limit, Limit));
        Sim.TCPIP.reset();
    };
    Sim.TCPIP = Window;
    Sim.Windows.Show(std::move(Window), false);
    if (!Sim.Links.Connection_History.empty()) {
        Show_Status(Sim);
        Sim.TCPIP->lblTX.Visible = true;
        Show_History(Sim, static_cast<int>(Sim.Links.Connection_History.size()) - 1);
    }
}

void TCP_Listen(Simulator& Sim) {
    const int Index = Sim.State.TCP_Client_Max_Index;
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
        if (!Listener->Is_Listening()) Listener->Listen(Sim.State.TCP_Port);
        Listening.State = socket_state::Listening;
    } catch (const Run_Time_Error& Failure) {
        Sim.Windows.Boxes.Show(std::string("TCP/IP Error : ") + Failure.what() +
                                   " Select another port number",
                               "", Box_Icon::Stop);
        return;
    }
    if (Index == 0) {
        if (Sim.TCPIP) Sim.TCPIP->lblStatus.Caption = std::string("Listening for connection");
        return;
    }
    Show_Status(Sim);
    Sim.Links.Connection_History.push_back(Number_Text(Index) + "-Connected to IP : " +
                                           Element(Sim, Index - 1).Remote_Host_IP + " - " + Now_Text(Sim));
    Show_History(Sim, Index - 1);
}

void TCP_Stop(Simulator& Sim) {
    if (Sim.Links.Listener) Sim.Links.Listener->Close();
    Close_Listening_Element(Sim, Sim.State.TCP_Client_Max_Index);
    while (!Sim.Links.Connected.empty()) WinsockArray_Close(Sim, Sim.Links.Connected.back());
}

void Write_TCP(Simulator& Sim, const std::string& Text) {
    const auto& Connected = Sim.Links.Connected;
    if (Connected.empty()) return;
    for (const int Index : Connected)
        Sim.Links.WinsockArray[static_cast<std::size_t>(Index)]->Connection->Send(Text);
    // The label says the time from the second sending on, as the panels of the serial ports do.
    float& Last_Tx_s = Sim.State.Transmit.Last_Tx_Time[port_number::TCP - 1];
    if (Sim.TCPIP && (Last_Tx_s != 0 || Connected.size() > 1))
        Sim.TCPIP->lblTX.Caption = "TCP/IP : TX " + Tx_Time_Text(Sim.Services.Time());
    Last_Tx_s = Time_Of_Day_s(Sim.Services.Time().Local_us());
}

} // namespace brinewright
