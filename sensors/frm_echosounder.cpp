#include "sensors/frm_echosounder.hpp"

#include "sensors/echo_controls.hpp"
#include "sensors/echo_ticks.hpp"
#include "sensors/echo_tips.hpp"
#include "shell/load_sensor_form.hpp"
#include "shell/simulator.hpp"

namespace brinewright {

namespace {

void Set_Talker(frmEchosounder& W, const std::string& Talker) {
    W.DBT_Record.Talker = Talker;
    W.DPT_Record.Talker = Talker;
}

void Form_Load(Simulator& Sim, frmEchosounder& W) {
    Show_Kept_Depth(Sim, W); // before the wiring: showing the depth must not write it
    Wire_Routing(Sim, W, Sim.State.Echo_Talker[W.Instance],
                 [&W](const std::string& Talker) { Set_Talker(W, Talker); });
    Wire_Echo_Controls(Sim, W);
    Wire_Sentences<frmEchosounder>(W.Sentences, Echo_Sentences(), Sim, Sim.State, W, W.Instance);
    Preset_Echo_Records(W);
    Fill_Echo_Lists(W);
    Restore_Echo_Settings(Sim, W);
    Restore_Intervals(W.Sentences);
    Start_Enabled_Sentences(W.Sentences);
}

} // namespace

frmEchosounder::frmEchosounder(Desktop& Its_Windows, int Its_Instance)
    : Sensor_Form(Its_Windows, "frmEchosounder", Its_Instance, form_index::Echosounder_1, "SD") {
    Set_Caption("Echosounder x"); // until the opener numbers it
    cmbOffset.Free_Text = true;
    Set_Tool_Tips(*this);
}

std::shared_ptr<Sensor_Form> Load_frmEchosounder(Simulator& Sim) {
    const int Instance = Sim.State.Open_Form_Index - form_index::Echosounder_1 + 1;
    return Load_Sensor_Form(Sim, Sim.frmEchosounder_Instance, Instance, Form_Load);
}

} // namespace brinewright
