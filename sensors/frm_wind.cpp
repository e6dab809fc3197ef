#include "sensors/frm_wind.hpp"

#include "ownship/angles.hpp"
#include "sensors/relative_wind.hpp"
#include "sensors/sensor_parts.hpp"
#include "sensors/wind_controls.hpp"
#include "sensors/wind_ticks.hpp"
#include "sensors/wind_tips.hpp"
#include "sensors/wind_units.hpp"
#include "shell/control_text.hpp"
#include "shell/load_sensor_form.hpp"
#include "shell/simulator.hpp"

namespace brinewright {

namespace {

constexpr double Relative_Wind_Period_ms = 2000;

void Set_Talker(frmWind& W, const std::string& Talker) {
    W.MWV_Record.Talker = Talker;
    W.MWD_Record.Talker = Talker;
}

void Form_Load(Simulator& Sim, frmWind& W) {
    Show_True_Wind(Sim.State, W); // before the wiring: showing the wind must not write it
    Wire_Routing(Sim, W, Sim.State.Wind_Talker[W.Instance],
                 [&W](const std::string& Talker) { Set_Talker(W, Talker); });
    Wire_Wind_Controls(Sim, W);
    Wire_Sentences<frmWind>(W.Sentences, Wind_Sentences(), Sim, Sim.State, W, W.Instance);
    W.timerRelativeWind.Tick = [&Sim, &W] { CalculateRelativeWind(Sim, W, W.Instance); };
    // One of the two has two blanks, as is required.
    W.lblRelativeWind.Caption = std::string(W.Instance == 1 ? "log 1 and  gyro 1" : "log 2 and gyro 2");
    Show_Variation(Sim, W);
    Fill_Wind_Lists(W);
    Restore_Wind_Settings(Sim.State, W);
    Restore_Intervals(W.Sentences);
    W.timerRelativeWind.Set_Interval(Relative_Wind_Period_ms);
    Start_Enabled_Sentences(W.Sentences);
}

} // namespace

frmWind::frmWind(Desktop& Its_Windows, int Its_Instance)
    : Sensor_Form(Its_Windows, "frmWind", Its_Instance, form_index::Wind_1, "WI") {
    Set_Caption("Wind Gauge x"); // until the opener numbers it
    Set_Tool_Tips(*this);
}

std::shared_ptr<Sensor_Form> Load_frmWind(Simulator& Sim) {
    const int Instance = Sim.State.Open_Form_Index - form_index::Wind_1 + 1;
    return Load_Sensor_Form(Sim, Sim.frmWind_Instance, Instance, Form_Load);
}

void CalculateRelativeWind(Simulator& Sim, frmWind& W, int k) {
    const Simulator_State& S = Sim.State;
    const Wind_Unit& Unit = Unit_Of_Letter(W.MWV_Record.Speed_Unit);
    const Relative_Wind Felt =
        Work_Out_Relative_Wind({.Wind_Speed_kn = S.Wind_Speed[k] * Unit.Knots_Per_Unit,
                                .Wind_Direction_deg = Normalise_Direction(S.Wind_Direction[k]),
                                .Heading_deg = S.Gyro_HDG[k],
                                .Log_Speed_kn = S.Log_Speed[k],
                                .Lat_deg = S.Nav_Lat,
                                .Lon_deg = S.Nav_Lon,
                                .Course_deg = S.Nav_COG,
                                .Ground_Speed_kn = S.Nav_SOG});
    W.Relative_Speed = Record_Number(Felt.Speed_kn * Unit.Units_Per_Knot);
    W.Relative_Dir = Felt.Direction_deg;
    W.lblRelativeSpeed.Caption = Format_Dot(W.Relative_Speed, "0");
    W.lblRelativeDir.Caption = Format_Dot(W.Relative_Dir, "000");
}

} // namespace brinewright
