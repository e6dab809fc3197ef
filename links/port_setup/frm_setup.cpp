#include "links/port_setup/frm_setup.hpp"

#include "links/port_setup/port_detection.hpp"
#include "links/port_setup/port_validation.hpp"
#include "links/serial_ports.hpp"
#include "sentences/number_pattern.hpp"
#include "sentences/number_text.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

#include <initializer_list>

namespace brinewright {

namespace {

constexpr int Frames_Per_Column = 8;
constexpr std::int32_t Usual_Baud_Rate = 4800, Usual_TCP_Port = 8040;

void Fill(Combo_Box& List, std::initializer_list<const char*> Entries) {
    for (const char* Entry : Entries) List.Add_Item(Entry);
}

void Fill_Lists(frmSetup& F) {
    for (int Port = 1; Port <= port_number::Last_Serial; ++Port) {
        Fill(F.cmbBaudRate[Port], {"4800", "9600", "19200"});
        Fill(F.cmbDataBits[Port], {"8", "7"});
        Fill(F.cmbParity[Port], {"none", "even", "odd"});
        Fill(F.cmbStopBits[Port], {"1", "2"});
    }
}

// A text that the list does not have keeps what it shows.
void Choose_Text(Combo_Box& List, const std::string& Text) {
    const auto& Items = List.Items();
    for (std::size_t I = 0; I < Items.size(); ++I)
        if (Items[I].Text == Text) return List.Set_List_Index(static_cast<int>(I));
}

std::string Port_Caption(Simulator& Sim, int Port) {
    const std::string Device = Sim.Services.Device_Of(Port);
    return "COM" + Number_Text(Port) + (Device.empty() ? "" : "  " + Device);
}

void Arrange_Frames(frmSetup& F) {
    int Shown = 0;
    for (int Port = 1; Port <= port_number::Last_Serial; ++Port)
        if (*F.frameCOMport[Port].Visible) {
            F.Places[Port] = {Shown / Frames_Per_Column, Shown % Frames_Per_Column};
            ++Shown;
        }
}

void Show_Serial_Ports(Simulator& Sim, frmSetup& F) {
    for (int Port = 1; Port <= port_number::Last_Serial; ++Port) {
        const Port_Setting& Setting = Sim.State.Of<Link_State>().Port_Table[Port];
        Show_Port(Sim, F, Port, Setting.Present);
        if (!Setting.Present) continue;
        F.chkEnable[Port].Set_Value(Setting.Enabled);
        Choose_Text(F.cmbBaudRate[Port], std::to_string(Setting.BaudRate));
        Choose_Text(F.cmbDataBits[Port], std::to_string(Setting.DataBits));
        Choose_Text(F.cmbParity[Port], Setting.Parity);
        Choose_Text(F.cmbStopBits[Port], std::to_string(Setting.StopBits));
    }
}

// The label stands in front of the number of the link, or says that none is set.
void Label_UDP_Link(frmSetup& F, int K) {
    F.lblAvailable[port_number::TCP + K].Caption =
        std::string(F.txtUDP_port[K].Text().empty() ? "UDP available" : "UDP Port : ");
}

void Show_UDP_Links(const Link_State& Links, frmSetup& F) {
    for (int K = 1; K <= UDP_Link_Count; ++K) {
        Text_Box& Box = F.txtUDP_port[K];
        const std::int32_t Number = Links.UDP_Port_Number[K - 1];
        F.frameCOMport[port_number::TCP + K].Caption = "UDP Port" + Number_Text(K);
        Box.Change = [&F, K] { Label_UDP_Link(F, K); };
        Box.Set_Text(Number == 0 ? "" : std::to_string(Number));
        Label_UDP_Link(F, K);
    }
    if (!Links.UDP_Remote_Host.empty()) F.txtUDP_RemoteHost.Set_Text(Links.UDP_Remote_Host);
    F.optUDPMode.Click = [&F](int Mode) { F.txtUDP_RemoteHost.Enabled = Mode != 0; };
    F.optUDPMode.Select(Links.UDP_Mode != 0 ? 1 : 0);
}

void Show_Network_Links(Simulator& Sim, frmSetup& F) {
    const Link_State& Links = Sim.State.Of<Link_State>();
    F.lblIP.Caption = " IP " + Sim.Services.Local_IP();
    F.frameCOMport[port_number::TCP].Caption = std::string("TCP/IP Port");
    F.txtPort.Set_Text(std::to_string(Links.TCP_Port == 0 ? Usual_TCP_Port : Links.TCP_Port));
    for (int Port = port_number::TCP; Port <= port_number::Last; ++Port)
        F.chkEnable[Port].Set_Value(Links.Port_Table[Port].Enabled);
    Show_UDP_Links(Links, F);
}

bool Take_Enable(const frmSetup& F, int Port, Port_Setting& Setting) {
    Setting.Present = *F.frameCOMport[Port].Visible && *F.chkEnable[Port].Enabled;
    Setting.Enabled = Setting.Present && F.chkEnable[Port].Value();
    return Setting.Present;
}

// A list that shows nothing, because the setup holds a value that it does not have, leaves that value as it
// was; only the baud rate becomes the usual one.
void Take_Line_Settings(const frmSetup& F, int Port, Port_Setting& Setting) {
    const auto Take = [](const Combo_Box& List, std::int16_t& Value) {
        if (!List.Text().empty()) Value = static_cast<std::int16_t>(Val_Dot(List.Text()));
    };
    const std::string& Baud_Rate = F.cmbBaudRate[Port].Text();
    Setting.BaudRate = Baud_Rate.empty() ? Usual_Baud_Rate : static_cast<std::int32_t>(Val_Dot(Baud_Rate));
    Take(F.cmbDataBits[Port], Setting.DataBits);
    if (!F.cmbParity[Port].Text().empty()) Setting.Parity = F.cmbParity[Port].Text();
    Take(F.cmbStopBits[Port], Setting.StopBits);
}

void cmdOK_Click(Simulator& Sim, frmSetup& F) {
    if (!All_Is_Valid(F)) return;
    Link_State& Links = Sim.State.Of<Link_State>();
    Links.Present_Port_Count = 0;
    for (int Port = 1; Port <= port_number::Last_Serial; ++Port) {
        if (!Take_Enable(F, Port, Links.Port_Table[Port])) continue;
        ++Links.Present_Port_Count;
        Take_Line_Settings(F, Port, Links.Port_Table[Port]);
    }
    Links.TCP_Port = static_cast<std::int32_t>(Val_Dot(F.txtPort.Text()));
    Links.UDP_Remote_Host = F.txtUDP_RemoteHost.Text();
    Links.UDP_Mode = static_cast<std::int16_t>(F.optUDPMode.Selected());
    for (int K = 1; K <= UDP_Link_Count; ++K)
        Links.UDP_Port_Number[K - 1] = static_cast<std::int32_t>(Val_Dot(F.txtUDP_port[K].Text()));
    for (int Port = port_number::TCP; Port <= port_number::Last; ++Port)
        Take_Enable(F, Port, Links.Port_Table[Port]);
    Init_Comports(Sim, Links.Present_Port_Count);
    Sim.Told.Links_Chosen.Tell();
    Sim.Windows.Unload(F);
}

void cmdReset_Click(Simulator& Sim, frmSetup& F) {
    Link_State& Links = Sim.State.Of<Link_State>();
    Links.Ports_Initialised = false;
    for (int Port = 1; Port <= port_number::Last_Serial; ++Port)
        Links.Port_Table[Port].Present = Links.Port_Table[Port].Enabled = false;
    Sim.Windows.Unload(F);
    Open_Window(Sim, frmSetup::Class_Name);
}

void Show_frmSetup(Simulator& Sim, Form& Shown) {
    auto& F = static_cast<frmSetup&>(Shown);
    F.cmdOK.Click = [&Sim, &F] { cmdOK_Click(Sim, F); };
    F.cmdCancel.Click = [&Sim, &F] { Sim.Windows.Unload(F); };
    F.cmdReset.Click = [&Sim, &F] { cmdReset_Click(Sim, F); };
    F.cmdComInfo.Click = [&Sim] { Open_Window(Sim, frmComportInfo::Class_Name); };
    Fill_Lists(F);
    Show_Network_Links(Sim, F);
    Wire_Validation(Sim, F);
    if (Sim.State.Of<Link_State>().Ports_Initialised) return Show_Serial_Ports(Sim, F);
    for (int Port = 1; Port <= port_number::Last_Serial; ++Port) Show_Port(Sim, F, Port, false);
    Start_Detection(Sim, F);
}

void frmSetup_Load(Simulator& Sim, Form& Opened) {
    Opened.On_Unload = [&Sim] {
        if (Form* const Progress = Open_Form(Sim, frmProgress::Class_Name)) Sim.Windows.Unload(*Progress);
    };
}

void frmComportInfo_Load(Simulator& Sim, Form& Opened) {
    auto& F = static_cast<frmComportInfo&>(Opened);
    F.cmdOK.Click = [&Sim, &F] { Sim.Windows.Unload(F); };
}

} // namespace

// It is filled when it stands, since the detection of ports says what it does in a box.
const Window_Class Port_Setup_Window{.Name = frmSetup::Class_Name,
                                     .Entry = {.Name = "mnuSetupPort",
                                               .Menu = "Setup",
                                               .Text = "Com setup",
                                               .Place = 3,
                                               .Checked_While_Open = false},
                                     .Make = Make_Single<frmSetup>,
                                     .Load = frmSetup_Load,
                                     .Lay_Out = Lay_Out_Setup,
                                     .Shown = Show_frmSetup};
const Window_Class Comport_Info_Window{.Name = frmComportInfo::Class_Name,
                                       .Make = Make_Single<frmComportInfo>,
                                       .Load = frmComportInfo_Load,
                                       .Lay_Out = Lay_Out_Comport_Info};

frmSetup::frmSetup(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Dialog) {
    Caption = "Port settings - Available COM ports";
}

frmComportInfo::frmComportInfo(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Dialog) {
    Caption = "    Comport Information";
}

void Show_Port(Simulator& Sim, frmSetup& F, int Port, bool Shown) {
    // Asked only for ports that are there: a number without a device makes the platform look for new ones.
    F.frameCOMport[Port].Caption = Shown ? Port_Caption(Sim, Port) : "COM" + Number_Text(Port);
    F.frameCOMport[Port].Visible = Shown;
    Arrange_Frames(F);
}

} // namespace brinewright
