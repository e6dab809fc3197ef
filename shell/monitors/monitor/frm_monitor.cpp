#include "shell/monitors/monitor/frm_monitor.hpp"

#include "links/port_list.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"

#include <initializer_list>

namespace brinewright {

namespace {

constexpr std::int32_t Sentences_Per_Pane = 4;

// A datagram that could not leave shows all the same: UDP failures are ignored.
void Show_Sent(Simulator& Sim, frmMonitor& F, const Sent_Sentence& Sent) {
    if (Sent.Port > port_number::Last || *F.cmdFreeze[Sent.Port].Caption != monitor_caption::Running) return;
    std::int32_t& Count = Sim.State.Of<Link_State>().Transmit.Monitor_Line_Count[Sent.Port - 1];
    Text_Box& Pane = F.txtCom[Sent.Port];
    if (++Count == Sentences_Per_Pane) {
        Count = 0;
        Pane.Set_Text("");
    }
    Append_To_Pane(Pane, Shown_Text(Sim, Sent.Text));
}

void frmMonitor_Load(Simulator& Sim, Form& Opened) {
    auto& F = static_cast<frmMonitor&>(Opened);
    Sim.Told.Sent.Add(F, [&Sim, &F](const Sent_Sentence& Sent) { Show_Sent(Sim, F, Sent); });
    const Link_State& Links = Sim.State.Of<Link_State>();
    for (int Port = 1; Port <= port_number::Last; ++Port) {
        F.lblComport[Port].Caption = Link_Name(Sim, Port);
        const std::initializer_list<Visible_Control*> Parts{&F.lblComport[Port], &F.txtCom[Port],
                                                            &F.cmdFreeze[Port], &F.cmdClear[Port]};
        for (Visible_Control* Part : Parts) Part->Visible = Links.Port_Table[Port].Enabled;
        F.txtCom[Port].Read_Only = true;
        Button& Freeze = F.cmdFreeze[Port];
        Freeze.Click = [&Freeze] {
            const bool Runs = *Freeze.Caption == monitor_caption::Running;
            Freeze.Caption = std::string(Runs ? monitor_caption::Frozen : monitor_caption::Running);
        };
        // Clear leaves the counters as they are: the next emptying comes as counted before.
        F.cmdClear[Port].Click = [&Pane = F.txtCom[Port]] { Pane.Set_Text(""); };
    }
}

} // namespace

frmMonitor::frmMonitor(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Child) {
    Caption = "Comport Monitor";
    Set_Place(600, 600, 9000, 6000);
}

const Window_Class Monitor_Window{
    .Name = frmMonitor::Class_Name,
    .Entry = {.Name = "mnuMonitor", .Menu = "Window", .Text = "Comport monitor", .Place = 20},
    .Make = Make_Single<frmMonitor>,
    .Load = frmMonitor_Load,
    .Lay_Out = Lay_Out_Monitor};

} // namespace brinewright
