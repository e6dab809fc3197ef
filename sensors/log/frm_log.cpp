#include "sensors/log/frm_log.hpp"

#include "sensors/log/log_controls.hpp"
#include "sensors/log/log_state.hpp"
#include "sensors/log/log_ticks.hpp"
#include "sensors/log/log_tips.hpp"
#include "sentences/number_text.hpp"
#include "shell/kit/sensor_form.hpp"
#include "shell/kit/value_bars.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

namespace brinewright {

namespace {

constexpr std::int16_t First_Form_Index = 5;
constexpr float Width = 2800; // twentieths of a point
// In Ship mode the ship sets the speed; the noise on it stays with the user.
void Apply_Mode(const Simulator& Sim, frmLog& W) {
    const bool Ship_Mode = Sim.State.Of<Shell_State>().Mode == "Ship";
    W.lblShipControl.Visible = Ship_Mode;
    if (Ship_Mode) Hide({&W.frmSpeed, &W.scrSpeed, &W.lblSpeed, &W.txtSpeed, &W.lblSpeedUnit});
}

void Wire_Controls(Simulator& Sim, frmLog& W) {
    Wire_Routing(Sim, W, Sim.State.Of<Log_State>().Log_Talker[W.Instance]);
    Wire_Log_Controls(Sim, W);
    Wire_Sentences(Sim, W);
}

void Form_Load(Simulator& Sim, frmLog& W) {
    Show_Log_Speed(Sim.State, W); // before the wiring: showing the speed must not write it
    Wire_Controls(Sim, W);
    Apply_Mode(Sim, W);
    Fill_Log_Lists(W);
    Restore_Log_Settings(Sim, W);
    Restore_Intervals(W.Sentences);
    Start_Enabled_Sentences(W.Sentences);
}

} // namespace

frmLog::frmLog(Desktop& Its_Windows, int Its_Instance)
    : Sensor_Form(Its_Windows, Class_Name, Its_Instance, First_Form_Index, "VW",
                  "Talker of all sentences, two characters") {
    Set_Caption(" Log x"); // until the opener numbers it
    lblShipControl.Visible = false;
    cmdResetVLW.Enabled = false;
    lblVLW.Caption = "VLW Water spd fr Log" + Number_Text(Its_Instance) + "\nVLW Ground spd fr GNSS" +
                     Number_Text(Its_Instance);
    Set_Tool_Tips(*this);
}

const Window_Class Log_Windows{.Name = frmLog::Class_Name,
                               .Count = 2,
                               .First_Form_Index = First_Form_Index,
                               .Entry = {.Name = "mnuOpenForm", .Menu = "Window", .Text = "Log", .Place = 6},
                               .Caption = "Log #",
                               .Make = Make_Instance<frmLog>,
                               .Load = Load_Sensor<frmLog, Form_Load>,
                               .Lay_Out = Lay_Out_Log,
                               .Sentences = Log_Sentences(),
                               .Width = Width};

} // namespace brinewright
