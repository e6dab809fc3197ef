#include "links/tcp_status/frm_tcpip.hpp"

#include "links/tx_time_text.hpp"
#include "sentences/number_text.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>
#include <limits>

namespace brinewright {

namespace {

void Show_Port(const Simulator& Sim, frmTCPIP& F) {
    F.lblPort.Caption = std::to_string(Sim.State.Of<Link_State>().TCP_Port);
}

void Show_Clients(const Simulator& Sim, frmTCPIP& F) {
    F.lblStatus.Caption =
        "Connected to" + Number_Text(Sim.State.Of<Link_State>().TCP_Client_Count) + " clients";
}

// The list follows the history, which outlives a closing of the window: new entries come behind, and of the
// others only the one that is selected can have changed.
void Show_History(const Simulator& Sim, frmTCPIP& F, int Selected) {
    Combo_Box& List = F.cmbConnections;
    const auto& History = Sim.Links.Connection_History;
    while (List.Items().size() < History.size()) List.Add_Item(History[List.Items().size()]);
    List.Visible = !History.empty();
    if (Selected < 0 || Selected >= static_cast<int>(History.size())) return;
    List.Set_Item(Selected, History[static_cast<std::size_t>(Selected)]);
    List.Set_List_Index(Selected);
}

void Follow(Simulator& Sim, frmTCPIP& F, TCP_News News, int Element) {
    switch (News) {
    case TCP_News::Port: Show_Port(Sim, F); break;
    case TCP_News::Listening: F.lblStatus.Caption = std::string("Listening for connection"); break;
    case TCP_News::Client_Count: Show_Clients(Sim, F); break;
    case TCP_News::Client_Came:
        F.lblStatus.Fore_Colour = Ink::Black;
        F.lblTX.Visible = true;
        break;
    case TCP_News::History: Show_History(Sim, F, Element); break;
    case TCP_News::Sent: F.lblTX.Caption = "TCP/IP : TX " + Tx_Time_Text(Sim.Services.Time()); break;
    }
}

void Keep_Own_Place(Link_State& S, const frmTCPIP& F) {
    constexpr float Limit = std::numeric_limits<std::int16_t>::max();
    S.frmTCPIP_Left = static_cast<std::int16_t>(std::clamp(F.Left, -Limit, Limit));
    S.frmTCPIP_Top = static_cast<std::int16_t>(std::clamp(F.Top, -Limit, Limit));
}

void frmTCPIP_Load(Simulator& Sim, Form& Opened) {
    auto& F = static_cast<frmTCPIP&>(Opened);
    Link_State& S = Sim.State.Of<Link_State>();
    F.Set_Place(S.frmTCPIP_Left, S.frmTCPIP_Top, 7830, 1590);
    F.lblIP.Caption = Sim.Services.Local_IP();
    Show_Port(Sim, F);
    Sim.Told.TCP.Add(F, [&](TCP_News News, int Element) { Follow(Sim, F, News, Element); });
    F.On_Unload = [&] { Keep_Own_Place(S, F); };
}

void frmTCPIP_Shown(Simulator& Sim, Form& Opened) {
    const auto& History = Sim.Links.Connection_History;
    if (History.empty()) return;
    auto& F = static_cast<frmTCPIP&>(Opened);
    Show_Clients(Sim, F);
    F.lblTX.Visible = true;
    Show_History(Sim, F, static_cast<int>(History.size()) - 1);
}

} // namespace

const Window_Class TCP_Status_Window{.Name = frmTCPIP::Class_Name,
                                     .Make = Make_Single<frmTCPIP>,
                                     .Load = frmTCPIP_Load,
                                     .Lay_Out = Lay_Out_TCPIP,
                                     .With_Focus = false,
                                     .Shown = frmTCPIP_Shown};

frmTCPIP::frmTCPIP(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Child) {
    Caption = "TCP/IP Status";
    cmbConnections.Visible = false;
    lblTX.Visible = false;
}

} // namespace brinewright
