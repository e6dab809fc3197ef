#include "shell/monitors/monitor/frm_monitor.hpp"

#include "links/port_list.hpp"
#include "shell/monitors/monitor_pane.hpp"
#include "shell/state/iec450_state.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"

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
    for (int Port = 1; Port <= port_number::Last; ++Port) {
        const bool Enabled = Sim.State.Of<Link_State>().Port_Table[Port].Enabled;
        F.lblComport[Port].Caption = Link_Name(Sim, Port);
        F.lblComport[Port].Visible = Enabled;
        F.txtCom[Port].Visible = Enabled;
        F.cmdFreeze[Port].Visible = Enabled;
        F.cmdClear[Port].Visible = Enabled;
        F.txtCom[Port].Read_Only = true;
        F.txtCom[Port].Tool_Tip = std::string("The last sentences that left here");
        F.cmdFreeze[Port].Tool_Tip = std::string("Holds this pane still; the sentences go on leaving");
        F.cmdClear[Port].Tool_Tip = std::string("Empties this pane");
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

frmMonitor::frmMonitor(Desktop& Its_Windows)
    : Form(Its_Windows, Class_Name, 0, Form_Kind::Child), lblComport(*this, "lblComport", ""),
      txtCom(*this, "txtCom", ""), cmdFreeze(*this, "cmdFreeze", monitor_caption::Running),
      cmdClear(*this, "cmdClear", "Clear") {
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
