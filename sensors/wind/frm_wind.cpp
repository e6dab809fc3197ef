#include "sensors/wind/frm_wind.hpp"

#include "ownship/geodesy/angles.hpp"
#include "ownship/navdata_state.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "sensors/log/log_state.hpp"
#include "sensors/wind/relative_wind.hpp"
#include "sensors/wind/wind_controls.hpp"
#include "sensors/wind/wind_state.hpp"
#include "sensors/wind/wind_ticks.hpp"
#include "sensors/wind/wind_tips.hpp"
#include "sensors/wind/wind_units.hpp"
#include "shell/kit/control_text.hpp"
#include "shell/kit/sensor_form.hpp"
#include "shell/kit/value_bars.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

namespace brinewright {

namespace {

constexpr std::int16_t First_Form_Index = 9;
constexpr double Relative_Wind_Period_ms = 2000;

void Form_Load(Simulator& Sim, frmWind& W) {
    Show_True_Wind(Sim.State, W); // before the wiring: showing the wind must not write it
    Wire_Routing(Sim, W, Sim.State.Of<Wind_State>().Wind_Talker[W.Instance]);
    Wire_Wind_Controls(Sim, W);
    Wire_Sentences(Sim, W);
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
    : Sensor_Form(Its_Windows, Class_Name, Its_Instance, First_Form_Index, "WI",
                  "Talker of all sentences, two characters") {
    Set_Caption("Wind Gauge x"); // until the opener numbers it
    Set_Tool_Tips(*this);
}

const Window_Class Wind_Windows{
    .Name = frmWind::Class_Name,
    .Count = 2,
    .First_Form_Index = First_Form_Index,
    .Entry = {.Name = "mnuOpenForm", .Menu = "Window", .Text = "Wind Gauge", .Place = 10},
    .Caption = "Wind gauge #",
    .Make = Make_Instance<frmWind>,
    .Load = Load_Sensor<frmWind, Form_Load>,
    .Lay_Out = Lay_Out_Wind,
    .Sentences = Wind_Sentences()};

void CalculateRelativeWind(Simulator& Sim, frmWind& W, int k) {
    const Simulator_State& S = Sim.State;
    const Wind_Unit& Unit = Unit_Of_Letter(W.MWV_Record.Speed_Unit);
    const Relative_Wind Felt = Work_Out_Relative_Wind(
        {.Wind_Speed_kn = S.Of<Wind_State>().Wind_Speed[k] * Unit.Knots_Per_Unit,
         .Wind_Direction_deg = Normalise_Direction(S.Of<Wind_State>().Wind_Direction[k]),
         .Heading_deg = S.Of<Gyro_State>().Gyro_HDG[k],
         .Log_Speed_kn = S.Of<Log_State>().Log_Speed[k],
         .Lat_deg = S.Of<Navdata_State>().Nav_Lat,
         .Lon_deg = S.Of<Navdata_State>().Nav_Lon,
         .Course_deg = S.Of<Navdata_State>().Nav_COG,
         .Ground_Speed_kn = S.Of<Navdata_State>().Nav_SOG});
    W.Relative_Speed = Record_Number(Felt.Speed_kn * Unit.Units_Per_Knot);
    W.Relative_Dir = Felt.Direction_deg;
    W.lblRelativeSpeed.Caption = Format_Dot(W.Relative_Speed, "0");
    W.lblRelativeDir.Caption = Format_Dot(W.Relative_Dir, "000");
}

} // namespace brinewright
