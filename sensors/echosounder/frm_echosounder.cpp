#include "sensors/echosounder/frm_echosounder.hpp"

#include "sensors/echosounder/echo_controls.hpp"
#include "sensors/echosounder/echo_state.hpp"
#include "sensors/echosounder/echo_ticks.hpp"
#include "sensors/echosounder/echo_tips.hpp"
#include "shell/kit/sensor_form.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

namespace brinewright {

namespace {

constexpr std::int16_t First_Form_Index = 7;
void Form_Load(Simulator& Sim, frmEchosounder& W) {
    Show_Kept_Depth(Sim, W); // before the wiring: showing the depth must not write it
    Wire_Routing(Sim, W, Sim.State.Of<Echo_State>().Echo_Talker[W.Instance]);
    Wire_Echo_Controls(Sim, W);
    Wire_Sentences(Sim, W);
    Preset_Echo_Records(W);
    Fill_Echo_Lists(W);
    Restore_Echo_Settings(Sim, W);
    Restore_Intervals(W.Sentences);
    Start_Enabled_Sentences(W.Sentences);
}

} // namespace

frmEchosounder::frmEchosounder(Desktop& Its_Windows, int Its_Instance)
    : Sensor_Form(Its_Windows, Class_Name, Its_Instance, First_Form_Index, "SD",
                  "Talker of all sentences, two characters") {
    Set_Caption("Echosounder x"); // until the opener numbers it
    cmbOffset.Free_Text = true;
    Set_Tool_Tips(*this);
}

const Window_Class Echosounder_Windows{
    .Name = frmEchosounder::Class_Name,
    .Count = 2,
    .First_Form_Index = First_Form_Index,
    .Entry = {.Name = "mnuOpenForm", .Menu = "Window", .Text = "Echosounder", .Place = 8},
    .Caption = "Echosounder #",
    .Make = Make_Instance<frmEchosounder>,
    .Load = Load_Sensor<frmEchosounder, Form_Load>,
    .Lay_Out = Lay_Out_Echosounder,
    .Sentences = Echo_Sentences(),
    // The log of the same number, if it is open: this slip is required.
    .Focused_Instead = "frmLog"};

} // namespace brinewright
