#include "shell/monitors/extended_monitor/frm_extended_monitor.hpp"

#include "links/port_list.hpp"
#include "sentences/number_text.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>
#include <cmath>

namespace brinewright {

namespace {

constexpr float Fixed_Height = 1500; // what the window holds beside its two panes, in twentieths of a point

void Empty_Panes(frmExtendedMonitor& F) {
    F.txtOutput.Set_Text("");
    F.txtInput.Set_Text("");
}

void cmbComPort_Click(Link_State& S, frmExtendedMonitor& F) {
    S.Extended_Monitor_Port = static_cast<std::int16_t>(F.cmbComPort.Item_Data());
    Empty_Panes(F);
    if (S.Extended_Monitor_Port == port_number::TCP) F.txtInput.Set_Text("TCP/IP Input not implemented");
}

std::string Name_In_List(const Link_State& S, int Port) {
    if (Port <= port_number::Last_Serial) return "COM" + Number_Text(Port);
    if (Port == port_number::TCP) return "TCP/IP";
    return "UDP" + Number_Text(S.UDP_Port_Number[Port - port_number::First_UDP]) + " Port";
}

// The link of the last time is chosen, if it is there.
void Fill_Links(Simulator& Sim, frmExtendedMonitor& F) {
    const Link_State& S = Sim.State.Of<Link_State>();
    for (int Port = 1; Port <= port_number::Last; ++Port) {
        if (!S.Port_Table[Port].Enabled || !Link_In_Use(Sim, Port)) continue;
        F.cmbComPort.Add_Item(Name_In_List(S, Port), Port);
        if (Port == S.Extended_Monitor_Port)
            F.cmbComPort.Set_List_Index(static_cast<int>(F.cmbComPort.Items().size()) - 1);
    }
}

void Measure_Lines(Link_State& S, const frmExtendedMonitor& F) {
    const float Pane_Height = std::clamp((F.Height - Fixed_Height) / 2, 0.0F, 1e6F);
    // Ties to even, as the nearest whole number is meant everywhere here.
    S.Extended_Monitor_Lines = static_cast<std::int16_t>(std::nearbyint(Pane_Height / 200 - 1));
}

// Any text counts as one line, whatever it holds.
void Show_Line(const Link_State& S, Text_Box& Pane, std::int32_t& Count, std::string_view Text) {
    if (++Count == S.Extended_Monitor_Lines) {
        Count = 0;
        Pane.Set_Text("");
    }
    Append_To_Pane(Pane, Text);
}

// A datagram that could not leave shows all the same: UDP failures are ignored.
void Show_Sent(Simulator& Sim, frmExtendedMonitor& F, const Sent_Sentence& Sent) {
    Link_State& S = Sim.State.Of<Link_State>();
    if (Sent.Port == S.Extended_Monitor_Port && !S.Extended_Monitor_Frozen)
        Show_Line(S, F.txtOutput, S.Transmit.Extended_Tx_Line_Count, Shown_Text(Sim, Sent.Text));
}

void Show_Received(Link_State& S, frmExtendedMonitor& F, int Port, std::string Text) {
    if (Port != S.Extended_Monitor_Port || S.Extended_Monitor_Frozen) return;
    if (const auto NUL = Text.find('\0'); NUL != std::string::npos) Text[NUL] = ' ';
    Show_Line(S, F.txtInput, S.Transmit.Extended_Rx_Line_Count, Text);
}

void Listen(Simulator& Sim, frmExtendedMonitor& F) {
    Link_State& S = Sim.State.Of<Link_State>();
    Sim.Told.Sent.Add(F, [&Sim, &F](const Sent_Sentence& Sent) { Show_Sent(Sim, F, Sent); });
    Sim.Told.Received.Add(F,
                          [&S, &F](int Port, const std::string& Line) { Show_Received(S, F, Port, Line); });
    S.Extended_Monitor_Open = true;
    S.Extended_Monitor_Frozen = false;
    F.On_Unload = [&S] { S.Extended_Monitor_Open = false; };
}

void frmExtendedMonitor_Load(Simulator& Sim, Form& Opened) {
    auto& F = static_cast<frmExtendedMonitor&>(Opened);
    Link_State& S = Sim.State.Of<Link_State>();
    Listen(Sim, F);
    F.txtOutput.Read_Only = true;
    F.txtInput.Read_Only = true;
    F.cmbComPort.Click = [&] { cmbComPort_Click(S, F); };
    F.cmdFreeze.Click = [&] {
        bool& Frozen = S.Extended_Monitor_Frozen;
        Frozen = !Frozen;
        F.cmdFreeze.Caption = std::string(Frozen ? monitor_caption::Frozen : monitor_caption::Running);
    };
    F.cmdClear.Click = [&] { Empty_Panes(F); };
    F.On_Resize = [&] { Measure_Lines(S, F); };
    Measure_Lines(S, F);
    Fill_Links(Sim, F);
}

} // namespace

frmExtendedMonitor::frmExtendedMonitor(Desktop& Its_Windows)
    : Form(Its_Windows, Class_Name, 0, Form_Kind::Child) {
    Caption = "Extended Comport Monitor";
    Set_Place(900, 900, 9000, 6000);
}

const Window_Class Extended_Monitor_Window{.Name = frmExtendedMonitor::Class_Name,
                                           .Entry = {.Name = "mnuExtendedMonitor",
                                                     .Menu = "Window",
                                                     .Text = "Extended Comport monitor",
                                                     .Place = 21},
                                           .Make = Make_Single<frmExtendedMonitor>,
                                           .Load = frmExtendedMonitor_Load,
                                           .Lay_Out = Lay_Out_Extended_Monitor};

} // namespace brinewright
