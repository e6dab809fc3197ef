#include "links/port_setup/frm_virtual_port.hpp"

#include "links/port_list.hpp"
#include "sentences/number_text.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"

namespace brinewright {

namespace {

void frmVirtualPort_Load(Simulator& Sim, Form& Opened) {
    auto& F = static_cast<frmVirtualPort&>(Opened);
    Link_State& Links = Sim.State.Of<Link_State>();
    for (int Port = 1; Port <= port_number::Last_Serial; ++Port)
        if (!Links.Port_Table[Port].Present) F.cmbVirtualPort.Add_Item("vCom" + Number_Text(Port), Port);
    F.cmbVirtualPort.Choose_Data(Links.Virtual_Port_Number);
    F.cmdOK.Click = [&Sim, &F, &Links] {
        const int Chosen = F.cmbVirtualPort.List_Index();
        if (Chosen >= 0)
            Links.Virtual_Port_Number =
                static_cast<std::int16_t>(F.cmbVirtualPort.Items()[static_cast<std::size_t>(Chosen)].Data);
        Sim.Windows.Unload(F);
    };
}

} // namespace

// No menu opens it while the option of the virtual port is off.
const Window_Class Virtual_Port_Window{.Name = frmVirtualPort::Class_Name,
                                       .Make = Make_Single<frmVirtualPort>,
                                       .Load = frmVirtualPort_Load,
                                       .Lay_Out = Lay_Out_Virtual_Port};

frmVirtualPort::frmVirtualPort(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Dialog) {
    Caption = "Virtual Port Setup";
}

} // namespace brinewright
