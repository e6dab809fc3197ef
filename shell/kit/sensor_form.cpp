#include "shell/kit/sensor_form.hpp"

#include "links/port_list.hpp"
#include "shell/kit/talker_box.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

namespace brinewright {

namespace {

void Rebuild_Port_List(Simulator& Sim, Sensor_Form& W) {
    Fill_Port_List(Sim, W.cmbComPort, Sim.State.Of<Link_State>().Sensor_Table[W.Form_Index].Port);
}

void Write_Talker(Sensor_Form& W, const std::string& Talker) {
    for (const Sentence_Line& Line : W.Sentences.Lines)
        if (Line.Row.Talker) Line.Row.Talker(W) = Talker;
}

} // namespace

Sensor_Form::Sensor_Form(Desktop& Its_Windows, std::string Class_Name, int Its_Instance, int First_Form_Index,
                         std::string Default_Talker, std::string Talker_Tip)
    : Form(Its_Windows, std::move(Class_Name), Its_Instance, Form_Kind::Child),
      Form_Index(First_Form_Index + Its_Instance - 1), Sentences(Its_Windows.Timers),
      txtTalker(*this, "txtTalker", std::move(Default_Talker), std::move(Talker_Tip)) {
    Tag = std::to_string(Form_Index);
}

void Wire_Routing(Simulator& Sim, Sensor_Form& W, std::string& Stored_Talker) {
    W.cmbComPort.Click = [&Sim, &W] {
        if (W.cmbComPort.List_Index() < 0) return;
        Sim.State.Of<Link_State>().Sensor_Table[W.Form_Index].Port =
            static_cast<std::int16_t>(W.cmbComPort.Item_Data());
    };
    Rebuild_Port_List(Sim, W);
    Sim.Told.Links_Chosen.Add(W, [&Sim, &W] {
        Sim.State.Of<Shell_State>().Open_Form_Index = static_cast<std::int16_t>(W.Form_Index);
        Rebuild_Port_List(Sim, W);
    });
    W.txtTalker.Set_Text(Stored_Talker);
    Write_Talker(W, Stored_Talker);
    Wire_Talker_Box(Sim.Windows, W.txtTalker, Stored_Talker,
                    [&W](const std::string& Talker) { Write_Talker(W, Talker); });
}

} // namespace brinewright
