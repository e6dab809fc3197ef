#include "sensors/wind_controls.hpp"

#include "sensors/depth_wind_parts.hpp"
#include "sensors/frm_wind.hpp"
#include "sensors/sensor_parts.hpp"
#include "sensors/wind_units.hpp"
#include "shell/control_text.hpp"
#include "shell/simulator.hpp"

#include <cmath>

namespace brinewright {

namespace {

constexpr int Relative_Index = 0; // of optRef
constexpr int True_Index = 1;

void Show_Direction(const Simulator_State& S, frmWind& W) {
    W.txtHDG.Set_Text(Format_Dot(S.Wind_Direction[W.Instance], "000.0"));
}

void Show_Speed(const Simulator_State& S, frmWind& W) {
    W.lblSpeed.Caption = Format_Dot(S.Wind_Speed[W.Instance], "0.0");
    W.txtSpeed.Set_Text(W.lblSpeed.Caption);
}

void Take_Direction(Simulator& Sim, frmWind& W, float Direction_deg) {
    Sim.State.Wind_Direction[W.Instance] = Direction_deg;
    Show_Direction(Sim.State, W);
    CalculateRelativeWind(Sim, W, W.Instance);
}

void Take_Speed(Simulator& Sim, frmWind& W, float Speed) {
    Sim.State.Wind_Speed[W.Instance] = Speed;
    Show_Speed(Sim.State, W);
    CalculateRelativeWind(Sim, W, W.Instance);
}

} // namespace

void Fill_Wind_Lists(frmWind& W) {
    for (const Wind_Unit& Unit : Wind_Units) W.cmbUnits.Add_Item(Unit.Name);
    for (const auto& List : W.cmbNoise)
        for (int Number = 0; Number <= Last_Noise_Choice; ++Number) List->Add_Item(std::to_string(Number));
}

void Show_True_Wind(const Simulator_State& State, frmWind& W) {
    W.scrHDG.Set_Value(Direction_Place(W.scrHDG, State.Wind_Direction[W.Instance]));
    W.scrSpeed.Set_Value(Bar_Place(W.scrSpeed, State.Wind_Speed[W.Instance], Bar_Steps));
    Show_Direction(State, W);
    Show_Speed(State, W);
}

void Wire_Wind_Controls(Simulator& Sim, frmWind& W) {
    W.scrHDG.Change = [&] { scrHDG_Change(Sim, W); };
    W.txtHDG.Lost_Focus = [&] { txtHDG_LostFocus(Sim, W); };
    W.scrSpeed.Change = [&] { scrSpeed_Change(Sim, W); };
    W.txtSpeed.Lost_Focus = [&] { txtSpeed_LostFocus(Sim, W); };
    W.cmbUnits.Click = [&] { cmbUnits_Click(Sim, W); };
    W.optRef.Click = [&](int Index) { optRef_Click(Sim, W, Index); };
    W.chkInvalid.Click = [&W] { chkInvalid_Click(W); };
    W.chkNoise.Click = [&] { Sim.State.Wind_Noise_Enabled[W.Instance] = W.chkNoise.Value(); };
    for (const auto& List : W.cmbNoise)
        List->Click = [&Sim, &W, &Its_List = *List] {
            Sim.State.Wind_Noise_Level[W.Instance][Its_List.Index] =
                static_cast<std::int16_t>(Its_List.List_Index());
        };
}

void Restore_Wind_Settings(const Simulator_State& State, frmWind& W) {
    W.cmbUnits.Set_List_Index(0);
    W.optRef.Select(State.Wind_Relative_Ref[W.Instance] ? Relative_Index : True_Index);
    for (const auto& List : W.cmbNoise)
        Restore_Choice(*List, State.Wind_Noise_Level[W.Instance][List->Index], 0);
    W.chkNoise.Set_Value(State.Wind_Noise_Enabled[W.Instance]);
}

void scrHDG_Change(Simulator& Sim, frmWind& W) {
    if (Wrap_Direction_Bar(W.scrHDG)) return;
    Take_Direction(Sim, W, Bar_Value(W.scrHDG));
}

// A typed direction is taken to the tenth, as the bar shows it. One outside the circle is north.
void txtHDG_LostFocus(Simulator& Sim, frmWind& W) {
    const float Typed_deg = Number_Shown(W.txtHDG.Text());
    W.scrHDG.Set_Value(Direction_Place(W.scrHDG, Typed_deg > 0 && Typed_deg < 360 ? Typed_deg : 0));
    Take_Direction(Sim, W, Bar_Value(W.scrHDG)); // a bar that stands there already has told nothing
}

void scrSpeed_Change(Simulator& Sim, frmWind& W) { Take_Speed(Sim, W, Bar_Value(W.scrSpeed)); }

// The typed speed comes last, so that it stays in effect where the bar cannot follow: above 40, where the bar
// stands at its end, and between two tenths.
void txtSpeed_LostFocus(Simulator& Sim, frmWind& W) {
    const float Speed = std::abs(Number_Shown(W.txtSpeed.Text()));
    W.scrSpeed.Set_Value(Bar_Place(W.scrSpeed, Speed, Bar_Steps));
    Take_Speed(Sim, W, Speed);
}

// The numbers of the true wind stay as they are and count in the new unit from now on.
void cmbUnits_Click(Simulator& Sim, frmWind& W) {
    const Wind_Unit& Unit = Wind_Units[static_cast<std::size_t>(W.cmbUnits.List_Index())];
    W.MWV_Record.Speed_Unit = Unit.Letter;
    for (const auto& Caption : W.lblUnit) Caption->Caption = std::string(Unit.Name);
    CalculateRelativeWind(Sim, W, W.Instance);
}

void optRef_Click(Simulator& Sim, frmWind& W, int Index) {
    const bool Is_Relative = Index == Relative_Index;
    W.MWV_Record.Reference = Is_Relative ? 'R' : 'T';
    Sim.State.Wind_Relative_Ref[W.Instance] = Is_Relative;
}

void chkInvalid_Click(frmWind& W) { W.MWV_Record.Status = W.chkInvalid.Value() ? 'V' : 'A'; }

} // namespace brinewright
