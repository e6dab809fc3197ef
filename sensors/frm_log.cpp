#include "sensors/frm_log.hpp"

#include "sensors/log_controls.hpp"
#include "sensors/log_ticks.hpp"
#include "sensors/log_tips.hpp"
#include "sensors/sensor_parts.hpp"
#include "shell/load_sensor_form.hpp"
#include "shell/number_text.hpp"
#include "shell/simulator.hpp"

namespace brinewright {

namespace {

// In Ship mode the ship sets the speed; the noise on it stays with the user.
void Apply_Mode(const Simulator& Sim, frmLog& W) {
    const bool Ship_Mode = Sim.State.Mode == "Ship";
    W.lblShipControl.Visible = Ship_Mode;
    if (Ship_Mode) Hide({&W.frmSpeed, &W.scrSpeed, &W.lblSpeed, &W.txtSpeed, &W.lblSpeedUnit});
}

void Set_Talker(frmLog& W, const std::string& Talker) {
    W.VHW_Record.Talker = Talker;
    W.VBW_Record.Talker = Talker;
    W.VDR_Record.Talker = Talker;
    W.VLW_Record.Talker = Talker;
}

void Wire_Controls(Simulator& Sim, frmLog& W) {
    Wire_Routing(Sim, W, Sim.State.Log_Talker[W.Instance],
                 [&W](const std::string& Talker) { Set_Talker(W, Talker); });
    Wire_Log_Controls(Sim, W);
    Wire_Sentences<frmLog>(W.Sentences, Log_Sentences(), Sim, Sim.State, W, W.Instance);
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
    : Sensor_Form(Its_Windows, "frmLog", Its_Instance, form_index::Log_1, "VW") {
    Set_Caption(" Log x"); // until the opener numbers it
    lblShipControl.Visible = false;
    cmdResetVLW.Enabled = false;
    lblVLW.Caption = "VLW Water spd fr Log" + Number_Text(Its_Instance) + "\nVLW Ground spd fr GNSS" +
                     Number_Text(Its_Instance);
    Set_Tool_Tips(*this);
}

std::shared_ptr<Sensor_Form> Load_frmLog(Simulator& Sim) {
    const int Instance = Sim.State.Open_Form_Index - form_index::Log_1 + 1;
    return Load_Sensor_Form(Sim, Sim.frmLog_Instance, Instance, Form_Load);
}

} // namespace brinewright
