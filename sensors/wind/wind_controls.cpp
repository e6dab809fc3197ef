#include "sensors/wind/wind_controls.hpp"

#include "sensors/wind/frm_wind.hpp"
#include "sensors/wind/wind_state.hpp"
#include "sensors/wind/wind_units.hpp"
#include "shell/kit/control_text.hpp"
#include "shell/kit/depth_wind_parts.hpp"
#include "shell/kit/value_bars.hpp"
#include "shell/state/simulator.hpp"

namespace brinewright {

namespace {

constexpr int Relative_Index = 0; // of optRef
constexpr int True_Index = 1;

void Show_Direction(frmWind& W) { W.txtHDG.Set_Text(Direction_Shown(W.scrHDG)); }

void Show_Speed(const Simulator_State& S, frmWind& W) {
    Show_Size(W.lblSpeed, W.txtSpeed, S.Of<Wind_State>().Wind_Speed[W.Instance]);
}

void Take_Speed(Simulator& Sim, frmWind& W, float Speed) {
    Sim.State.Of<Wind_State>().Wind_Speed[W.Instance] = Speed;
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
    W.scrHDG.Set_Value(Direction_Place(W.scrHDG, State.Of<Wind_State>().Wind_Direction[W.Instance]));
    W.scrSpeed.Set_Value(Bar_Place(W.scrSpeed, State.Of<Wind_State>().Wind_Speed[W.Instance], Bar_Steps));
    Show_Direction(W);
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
    W.chkNoise.Click = [&] {
        Sim.State.Of<Wind_State>().Wind_Noise_Enabled[W.Instance] = W.chkNoise.Value();
    };
    for (const auto& List : W.cmbNoise)
        List->Click = [&Sim, &W, &Its_List = *List] {
            Sim.State.Of<Wind_State>().Wind_Noise_Level[W.Instance][Its_List.Index] =
                static_cast<std::int16_t>(Its_List.List_Index());
        };
}

void Restore_Wind_Settings(const Simulator_State& State, frmWind& W) {
    W.cmbUnits.Set_List_Index(0);
    W.optRef.Select(State.Of<Wind_State>().Wind_Relative_Ref[W.Instance] ? Relative_Index : True_Index);
    for (const auto& List : W.cmbNoise)
        Restore_Choice(*List, State.Of<Wind_State>().Wind_Noise_Level[W.Instance][List->Index], 0);
    W.chkNoise.Set_Value(State.Of<Wind_State>().Wind_Noise_Enabled[W.Instance]);
}

void scrHDG_Change(Simulator& Sim, frmWind& W) {
    if (Wrap_Direction_Bar(W.scrHDG)) return;
    Sim.State.Of<Wind_State>().Wind_Direction[W.Instance] = Bar_Value(W.scrHDG);
    Show_Direction(W);
    CalculateRelativeWind(Sim, W, W.Instance);
}

void txtHDG_LostFocus(Simulator& Sim, frmWind& W) {
    Leave_Box(Sim, W,
              {W.scrHDG, W.txtHDG, "Wind direction must be 0.0 to 360.0 degrees. Try again!",
               Direction_Shown(W.scrHDG)});
}

void scrSpeed_Change(Simulator& Sim, frmWind& W) { Take_Speed(Sim, W, Bar_Value(W.scrSpeed)); }

void txtSpeed_LostFocus(Simulator& Sim, frmWind& W) {
    Take_Speed(Sim, W, Typed_Size(W.scrSpeed, W.txtSpeed));
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
    Sim.State.Of<Wind_State>().Wind_Relative_Ref[W.Instance] = Is_Relative;
}

void chkInvalid_Click(frmWind& W) { W.MWV_Record.Status = W.chkInvalid.Value() ? 'V' : 'A'; }

} // namespace brinewright
