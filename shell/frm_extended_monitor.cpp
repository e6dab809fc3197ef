#include "shell/frm_extended_monitor.hpp"

#include "links/port_list.hpp"
#include "shell/frm_main.hpp"
#include "shell/frm_monitor.hpp"
#include "shell/number_text.hpp"
#include "shell/open_once.hpp"
#include "shell/simulator.hpp"

#include <algorithm>
#include <cmath>

namespace brinewright {

namespace {

constexpr float Fixed_Height = 1500; // what the window holds beside its two panes, in twentieths of a point

void cmbComPort_Click(Simulator& Sim, frmExtendedMonitor& F) {
    Sim.State.Extended_Monitor_Port = static_cast<std::int16_t>(F.cmbComPort.Item_Data());
    F.txtOutput.Set_Text("");
    F.txtInput.Set_Text("");
    if (Sim.State.Extended_Monitor_Port == port_number::TCP)
        F.txtInput.Set_Text("TCP/IP Input not implemented");
}

void Fill_Links(Simulator& Sim, frmExtendedMonitor& F) {
    for (int Port = 1; Port <= port_number::Last; ++Port) {
        if (!Sim.State.Port_Table[Port].Enabled || !Link_In_Use(Sim, Port)) continue;
        if (Port <= port_number::Last_Serial)
            F.cmbComPort.Add_Item("COM" + Number_Text(Port), Port);
        else if (Port == port_number::TCP)
            F.cmbComPort.Add_Item("TCP/IP", Port);
        else
            F.cmbComPort.Add_Item(
                "UDP" + Number_Text(Sim.State.UDP_Port_Number[Port - port_number::First_UDP]) + " Port",
                Port);
    }
}

void Measure_Lines(Simulator& Sim, const frmExtendedMonitor& F) {
    const float Pane_Height = std::clamp((F.Height - Fixed_Height) / 2, 0.0F, 1e6F);
    // Ties to even, as the nearest whole number is meant everywhere here.
    Sim.State.Extended_Monitor_Lines = static_cast<std::int16_t>(std::nearbyint(Pane_Height / 200 - 1));
}

void frmExtendedMonitor_Load(Simulator& Sim, frmExtendedMonitor& F) {
    F.txtOutput.Read_Only = true;
    F.txtInput.Read_Only = true;
    F.cmbComPort.Tool_Tip = std::string("The link to watch");
    F.cmdFreeze.Tool_Tip = std::string("Holds both panes still; the link goes on working");
    F.cmdClear.Tool_Tip = std::string("Empties both panes");
    F.cmbComPort.Click = [&Sim, &F] { cmbComPort_Click(Sim, F); };
    F.cmdFreeze.Click = [&F] {
        const bool Runs = *F.cmdFreeze.Caption == monitor_caption::Running;
        F.cmdFreeze.Caption = std::string(Runs ? monitor_caption::Frozen : monitor_caption::Running);
    };
    F.cmdClear.Click = [&F] {
        F.txtOutput.Set_Text("");
        F.txtInput.Set_Text("");
    };
    F.On_Resize = [&Sim, &F] { Measure_Lines(Sim, F); };
    Measure_Lines(Sim, F);
    Fill_Links(Sim, F);
    const auto& Items = F.cmbComPort.Items();
    for (std::size_t I = 0; I < Items.size(); ++I)
        if (Items[I].Data == Sim.State.Extended_Monitor_Port) {
            F.cmbComPort.Set_List_Index(static_cast<int>(I));
            break;
        }
}

} // namespace

frmExtendedMonitor::frmExtendedMonitor(Desktop& Its_Windows)
    : Form(Its_Windows, "frmExtendedMonitor", 0, Form_Kind::Child) {
    Caption = "Extended Comport Monitor";
    Set_Place(900, 900, 9000, 6000);
}

void mnuExtendedMonitor_Click(Simulator& Sim) {
    Open_Once(Sim, Sim.Extended_Monitor, frmExtendedMonitor_Load, &Sim.Main->mnuExtendedMonitor);
}

void Extended_Monitor_Tx(Simulator& Sim, const std::string& Text) {
    std::int32_t& Count = Sim.State.Transmit.Extended_Tx_Line_Count;
    Text_Box& Pane = Sim.Extended_Monitor->txtOutput;
    if (++Count == Sim.State.Extended_Monitor_Lines) {
        Count = 0;
        Pane.Set_Text("");
    }
    Append_To_Pane(Pane, Shown_Text(Sim, Text));
}

void Extended_Monitor_Rx(Simulator& Sim, std::string Text) {
    std::int32_t& Count = Sim.State.Transmit.Extended_Rx_Line_Count;
    Text_Box& Pane = Sim.Extended_Monitor->txtInput;
    if (++Count == Sim.State.Extended_Monitor_Lines) {
        Count = 0;
        Pane.Set_Text("");
    }
    if (const auto NUL = Text.find('\0'); NUL != std::string::npos) Text[NUL] = ' ';
    Append_To_Pane(Pane, Text);
}

bool Extended_Monitor_Shows(const Simulator& Sim, int Port) {
    return Sim.Extended_Monitor && *Sim.Main->mnuExtendedMonitor.Checked &&
           Port == Sim.State.Extended_Monitor_Port &&
           *Sim.Extended_Monitor->cmdFreeze.Caption == monitor_caption::Running;
}

} // namespace brinewright
