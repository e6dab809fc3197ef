#include "links/serial_ports.hpp"

#include "links/link_record.hpp"
#include "links/link_watch.hpp"
#include "links/port_list.hpp"
#include "links/tcp_server.hpp"
#include "links/udp_links.hpp"
#include "sentences/number_text.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

namespace brinewright {

namespace {

constexpr int Last_Swept_Slot = 8;               // slots 9 to 11 keep the port of a link that is gone
constexpr std::size_t Line_Limit_Bytes = 65'536; // a line that never ends starts over

std::string Settings_Text(const Port_Setting& Port) {
    const std::string Letter = Port.Parity.empty() ? std::string() : Port.Parity.substr(0, 1);
    return std::to_string(Port.BaudRate) + "," + Letter + "," + std::to_string(Port.DataBits) + "," +
           std::to_string(Port.StopBits);
}

void Show_Panel(Simulator& Sim, int Index, bool Visible) {
    Sim.State.Of<Link_State>().Link_Panel[Index].Visible = Visible;
    Sim.Told.Panel.Tell(Index);
}

void Open_Comport(Simulator& Sim, int Index) {
    const std::string Failure = Try_Comport(Sim, Index);
    if (!Failure.empty())
        Sim.Windows.Boxes.Show(Message_Box{
            .Text = Failure + ". Comport " + Number_Text(Index) +
                    " not available! Please re-arrange your COM Setup! (Use Reset buttom on Com Setup)",
            .Advice = Record_Of(Sim, Index).Name + " is tried again every few seconds."});
    // The panel shows in spite of a failure.
    Show_Panel(Sim, Index, true);
}

void Leave_Comport(Simulator& Sim, int Index, bool Hide_Panel) {
    Close_Comport(Sim, Index);
    Note_Unused(Sim, Index);
    for (int Slot = 1; Slot <= Last_Swept_Slot; ++Slot)
        if (Sim.State.Of<Link_State>().Sensor_Table[Slot].Port == Index)
            Sim.State.Of<Link_State>().Sensor_Table[Slot].Port = port_number::None;
    if (Hide_Panel) Show_Panel(Sim, Index, false);
}

void Take_Lines(Simulator& Sim, int Index) {
    std::string& Buffer = Sim.Links.Rx_Buffer;
    Buffer += Sim.Links.MSComm[Index]->Input();
    for (std::size_t Feed = Buffer.find('\n'); Feed != std::string::npos; Feed = Buffer.find('\n')) {
        std::string Line = Buffer.substr(0, Feed + 1);
        Buffer.erase(0, Feed + 1);
        Sim.Told.Received.Tell(Index, Line);
    }
    if (Buffer.size() > Line_Limit_Bytes) Buffer.clear();
}

void Reset_Comport(Simulator& Sim, int Index, const char* Failure_Text) {
    Sim.Windows.Boxes.Show(
        Message_Box{.Text = Failure_Text,
                    .Title = "ERROR - A Communication error has occured on COM-port, port is reset",
                    .Advice = "The port is " + Full_Link_Name(Sim, Index) +
                              ". Look at its cable, and at its settings in Setup > Com setup."});
    const auto& Port = Sim.Links.MSComm[Index];
    if (!Port || !Port->Is_Open()) return;
    const std::string Failure = Try_Comport(Sim, Index);
    if (!Failure.empty()) throw Run_Time_Error(Failure);
}

} // namespace

Serial_Port& Comport_Object(Simulator& Sim, int Index) {
    auto& Object = Sim.Links.MSComm[Index];
    if (!Object) {
        Object = Sim.Services.Make_Serial_Port(Index);
        Object->On_Comm = [&Sim, Index](Comm_Event Event) {
            Sim.Windows.Event([&] { MSComm_OnComm(Sim, Index, Event); });
        };
    }
    return *Object;
}

std::string Try_Comport(Simulator& Sim, int Index) {
    try {
        Serial_Port& Port = Comport_Object(Sim, Index);
        if (Port.Is_Open()) Port.Close();
        Port.Open(Settings_Text(Sim.State.Of<Link_State>().Port_Table[Index]));
    } catch (const Run_Time_Error& Failure) {
        Note_Closed(Sim, Index, Failure.what());
        return Failure.what();
    }
    Note_Open(Sim, Index);
    return {};
}

void Close_Comport(Simulator& Sim, int Index) {
    const auto& Port = Sim.Links.MSComm[Index];
    if (!Port || !Port->Is_Open()) return;
    Port->Close();
    Note_Unused(Sim, Index);
}

void Init_Comports(Simulator& Sim, std::int16_t Count) {
    Simulator_State& S = Sim.State;
    S.Of<Link_State>().Link_Panel[1].Text = Count != 0 ? "COM 1" : "No comports enabled";
    Show_Panel(Sim, 1, Count == 0);
    S.Of<Link_State>().Comport_Count = Count;
    S.Of<Link_Record_State>().Links_Opened = true;
    Note_Wanted(Sim);
    for (int Index = 1; Index <= port_number::Last_Serial; ++Index) {
        if (Link_In_Use(Sim, Index))
            Open_Comport(Sim, Index);
        else
            Leave_Comport(Sim, Index, Index != 1 || Count != 0);
    }
    if (Link_In_Use(Sim, port_number::TCP)) {
        Sim.Told.TCP.Tell(TCP_News::Port, -1);
        if (!Open_Form(Sim, "frmTCPIP")) Open_Window(Sim, "frmTCPIP");
        TCP_Listen(Sim);
    } else if (Sim.Links.Listener) {
        TCP_Stop(Sim);
    }
    for (std::int16_t K = 0; K <= 10; ++K) {
        if (Link_In_Use(Sim, port_number::First_UDP + K))
            Open_UDP(Sim, K);
        else
            Close_UDP(Sim, K);
    }
    S.Of<Link_State>().Ports_Initialised = true;
    Watch_Links(Sim);
}

void MSComm_OnComm(Simulator& Sim, int Index, Comm_Event Event) {
    // Dropped for all ports but the one on the monitor: what has been received stays in the port.
    const Link_State& S = Sim.State.Of<Link_State>();
    if (!S.Extended_Monitor_Open || Index != S.Extended_Monitor_Port) return;
    try {
        switch (Event) {
        case Comm_Event::Break:
        case Comm_Event::Framing:
        case Comm_Event::Overrun:
        case Comm_Event::Receive_Overflow:
        case Comm_Event::Parity:
            // A half-received line is lost with the error; nothing is shown of it.
            Sim.Links.Rx_Buffer.clear();
            break;
        case Comm_Event::Receive: Take_Lines(Sim, Index); break;
        }
    } catch (const Run_Time_Error& Failure) {
        Reset_Comport(Sim, Index, Failure.what());
    }
}

} // namespace brinewright
