#include "sensors/gyro/frm_gyro.hpp"

#include "sensors/gyro/gyro_controls.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "sensors/gyro/gyro_ticks.hpp"
#include "sensors/gyro/gyro_tips.hpp"
#include "shell/kit/sensor_form.hpp"
#include "shell/kit/value_bars.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

namespace brinewright {

namespace {

constexpr std::int16_t First_Form_Index = 3;
constexpr double Simulator_Period_ms = 400;

// In Ship mode the window is its sentences alone: the ship sets heading and rate of turn, and with the frames
// go noise and attitude, which stay as they are.
void Apply_Mode(const Simulator& Sim, frmGyro& W) {
    const bool Ship_Mode = Sim.State.Of<Shell_State>().Mode == "Ship";
    W.lblShipControl.Visible = Ship_Mode;
    if (!Ship_Mode) return;
    Hide({&W.frmSimulator,
          &W.frmHDG,
          &W.scrHDG,
          &W.txtHDG,
          &W.frmROT,
          &W.scrROT,
          &W.txtROT,
          &W.lblROTUnit,
          &W.frmRoll,
          &W.scrRoll,
          &W.txtRoll,
          &W.frmPitch,
          &W.scrPitch,
          &W.txtPitch,
          &W.chkNoise,
          W.optAccumulatedNoise.Buttons[0].get(),
          W.optAccumulatedNoise.Buttons[1].get(),
          &W.lblMaxNoise,
          &W.frmSimulatorControl,
          &W.cmdStart,
          &W.cmdPause});
    for (const auto& Part : W.lblNoise) Part->Visible = false;
    for (const auto& Part : W.cmbNoise) Part->Visible = false;
}

void Wire_Controls(Simulator& Sim, frmGyro& W) {
    W.cmdStart.Click = [&] { cmdStart_Click(Sim, W); };
    W.cmdPause.Click = [&] { cmdPause_Click(Sim, W); };
    W.timer_Simulator.Tick = [&] { timer_Simulator_Tick(Sim, W); };
    Wire_Routing(Sim, W, Sim.State.Of<Gyro_State>().Gyro_Talker[W.Instance]);
    Wire_Gyro_Controls(Sim, W);
    Wire_Sentences(Sim, W);
}

void Form_Load(Simulator& Sim, frmGyro& W) {
    Show_Gyro_Motion(Sim.State, W); // before the wiring: showing heading and turn must not write them
    Wire_Controls(Sim, W);
    Apply_Mode(Sim, W);
    Fill_Gyro_Lists(W);
    Restore_Gyro_Settings(Sim, W);
    Restore_Intervals(W.Sentences);
    Start_Enabled_Sentences(W.Sentences);
}

} // namespace

frmGyro::frmGyro(Desktop& Its_Windows, int Its_Instance)
    : Sensor_Form(Its_Windows, Class_Name, Its_Instance, First_Form_Index, "HE") {
    Set_Caption("Gyro/Attitude "); // until the opener numbers it
    lblShipControl.Visible = false;
    cmdPause.Enabled = false;
    Set_Tool_Tips(*this);
}

const Window_Class Gyro_Windows{
    .Name = frmGyro::Class_Name,
    .Count = 2,
    .First_Form_Index = First_Form_Index,
    .Entry = {.Name = "mnuOpenForm", .Menu = "Window", .Text = "Gyro", .Place = 4},
    .Caption = "Gyro #",
    .Make = Make_Instance<frmGyro>,
    .Load = Load_Sensor<frmGyro, Form_Load>,
    .Lay_Out = Lay_Out_Gyro,
    .Sentences = Gyro_Sentences()};

// The caption stays: a pause makes it "Continue".
void cmdStart_Click(Simulator&, frmGyro& W) {
    W.cmdPause.Enabled = true;
    W.timer_Simulator.Set_Interval(Simulator_Period_ms);
    Start_Sentences(W.Sentences);
}

void cmdPause_Click(Simulator&, frmGyro& W) {
    W.cmdStart.Caption = std::string("Continue");
    W.timer_Simulator.Set_Interval(0);
    Pause_Sentences(W.Sentences);
}

} // namespace brinewright
