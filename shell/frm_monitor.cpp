#include "shell/frm_monitor.hpp"

#include "links/port_list.hpp"
#include "shell/frm_main.hpp"
#include "shell/open_once.hpp"
#include "shell/simulator.hpp"

namespace brinewright {

namespace {

constexpr std::int32_t Sentences_Per_Pane = 4;
constexpr std::size_t Pane_Limit_Bytes = 64 * 1024;

void frmMonitor_Load(Simulator& Sim, frmMonitor& F) {
    for (int Port = 1; Port <= port_number::Last; ++Port) {
        const bool Enabled = Sim.State.Port_Table[Port].Enabled;
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
    : Form(Its_Windows, "frmMonitor", 0, Form_Kind::Child), lblComport(*this, "lblComport", ""),
      txtCom(*this, "txtCom", ""), cmdFreeze(*this, "cmdFreeze", monitor_caption::Running),
      cmdClear(*this, "cmdClear", "Clear") {
    Caption = "Comport Monitor";
    Set_Place(600, 600, 9000, 6000);
}

void mnuMonitor_Click(Simulator& Sim) { Open_Once(Sim, Sim.Monitor, frmMonitor_Load, &Sim.Main->mnuMonitor); }

std::string Shown_Text(const Simulator& Sim, const std::string& Text) {
    std::string Shown = Text;
    if (Sim.State.IEC450_Enabled && Sim.State.UdPbC_Header_Enabled && Shown.size() >= 6) Shown[5] = ' ';
    return Shown;
}

void Append_To_Pane(Text_Box& Pane, std::string_view More) {
    if (Pane.Text().size() + More.size() > Pane_Limit_Bytes) Pane.Set_Text("");
    Pane.Append_Text(More.substr(0, Pane_Limit_Bytes));
}

void Monitor_Tx(Simulator& Sim, const std::string& Text, std::int16_t Port) {
    std::int32_t& Count = Sim.State.Transmit.Monitor_Line_Count[Port - 1];
    Text_Box& Pane = Sim.Monitor->txtCom[Port];
    if (++Count == Sentences_Per_Pane) {
        Count = 0;
        Pane.Set_Text("");
    }
    Append_To_Pane(Pane, Shown_Text(Sim, Text));
}

} // namespace brinewright
