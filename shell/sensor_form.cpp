#include "shell/sensor_form.hpp"

#include "links/port_list.hpp"
#include "shell/form_position.hpp"
#include "shell/frm_main.hpp"
#include "shell/simulator.hpp"
#include "shell/talker_box.hpp"

namespace brinewright {

Sensor_Form::Sensor_Form(Desktop& Its_Windows, std::string Class_Name, int Its_Instance, int First_Form_Index,
                         std::string Default_Talker)
    : Form(Its_Windows, std::move(Class_Name), Its_Instance, Form_Kind::Child),
      Form_Index(First_Form_Index + Its_Instance - 1), Sentences(Its_Windows.Timers),
      txtTalker(*this, "txtTalker", std::move(Default_Talker)) {}

void Rebuild_Port_List(Simulator& Sim, Sensor_Form& W) {
    Fill_Port_List(Sim, W.cmbComPort, Sim.State.Sensor_Table[W.Form_Index].Port);
}

void Wire_Routing(Simulator& Sim, Sensor_Form& W, std::string& Stored_Talker,
                  std::function<void(const std::string& Talker)> Write_Records) {
    W.cmbComPort.Click = [&Sim, &W] {
        if (W.cmbComPort.List_Index() < 0) return;
        Sim.State.Sensor_Table[W.Form_Index].Port = static_cast<std::int16_t>(W.cmbComPort.Item_Data());
    };
    Rebuild_Port_List(Sim, W);
    W.txtTalker.Set_Text(Stored_Talker);
    Write_Records(Stored_Talker);
    Wire_Talker_Box(Sim.Windows, W.txtTalker, Stored_Talker, std::move(Write_Records));
}

// The entry of the menu is cleared first, since a change of mode loads the window anew right after. Keeping
// the place comes last, since it fails when the list of places is full.
void Unload_Sensor_Form(Simulator& Sim, const Sensor_Form& W, const std::function<void()>& Forget) {
    const auto Kept_Alive = W.shared_from_this();
    if (Sim.Main)
        if (Menu_Item* Entry = Sim.Main->mnuOpenForm(W.Form_Index)) Entry->Checked = false;
    Forget();
    Save_Form_Position(Sim, W);
}

} // namespace brinewright
