#include "sensors/log/log_controls.hpp"

#include "sensors/log/frm_log.hpp"
#include "sensors/log/log_state.hpp"
#include "shell/kit/control_text.hpp"
#include "shell/kit/value_bars.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>

namespace brinewright {

namespace {

// The blank in front of the whole knots belongs to them.
constexpr const char* Noise_Levels[] = {"0.0", "0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9",
                                        " 1",  " 2",  " 3",  " 4",  " 5",  " 6",  " 7",  " 8",  " 9",  " 10"};

void Show_Speed(const Simulator_State& S, frmLog& W) {
    Show_Size(W.lblSpeed, W.txtSpeed, S.Of<Log_State>().Log_Speed[W.Instance]);
}

// The state holds the knots themselves and not a place in the list. A level that the list does not have, as a
// setup file may hold, stays in effect with nothing chosen.
int Place_Of_Level(const Combo_Box& List, float Level_kn) {
    const auto Has_Level = [&](const Combo_Box::Item& I) { return Number_Shown(I.Text) == Level_kn; };
    const auto& Items = List.Items();
    const auto Found = std::find_if(Items.begin(), Items.end(), Has_Level);
    return Found == Items.end() ? -1 : static_cast<int>(Found - Items.begin());
}

void Store_VLW_Period(Simulator& Sim, frmLog& W) {
    Sim.State.Of<Log_State>().Log_VLW_Seconds[W.Instance] =
        static_cast<std::int16_t>(Val_Dot(W.Sentences["VLW"].Interval_List.Text()));
}

} // namespace

void Wire_Log_Controls(Simulator& Sim, frmLog& W) {
    W.scrSpeed.Change = [&] { scrSpeed_Change(Sim, W); };
    W.txtSpeed.Lost_Focus = [&] { txtSpeed_LostFocus(Sim, W); };
    W.chkNoise.Click = [&] { Sim.State.Of<Log_State>().Log_Noise_Enabled[W.Instance] = W.chkNoise.Value(); };
    W.cmbNoise.Click = [&] { cmbNoise_Click(Sim, W); };
    W.chkInvalid.Click = [&] { chkInvalid_Click(W); };
    W.cmdResetVLW.Click = [&] { cmdResetVLW_Click(Sim, W); };
}

void Show_Log_Speed(const Simulator_State& S, frmLog& W) {
    W.scrSpeed.Set_Value(Bar_Place(W.scrSpeed, S.Of<Log_State>().Log_Speed[W.Instance], Bar_Steps));
    Show_Speed(S, W);
}

void Fill_Log_Lists(frmLog& W) { Add_Items(W.cmbNoise, Noise_Levels); }

void Restore_Log_Settings(Simulator& Sim, frmLog& W) {
    const Simulator_State& S = Sim.State;
    W.cmbNoise.Set_List_Index(Place_Of_Level(W.cmbNoise, S.Of<Log_State>().Log_Noise_Level[W.Instance]));
    W.chkNoise.Set_Value(S.Of<Log_State>().Log_Noise_Enabled[W.Instance]);
}

void scrSpeed_Change(Simulator& Sim, frmLog& W) {
    Sim.State.Of<Log_State>().Log_Speed[W.Instance] = Bar_Value(W.scrSpeed);
    Show_Speed(Sim.State, W);
}

void txtSpeed_LostFocus(Simulator& Sim, frmLog& W) {
    const float Speed_kn = Typed_Size(W.scrSpeed, W.txtSpeed);
    Sim.State.Of<Log_State>().Log_Speed[W.Instance] = Speed_kn;
    Show_Speed(Sim.State, W);
}

void cmbNoise_Click(Simulator& Sim, frmLog& W) {
    Sim.State.Of<Log_State>().Log_Noise_Level[W.Instance] = Number_Shown(W.cmbNoise.Text());
}

void chkInvalid_Click(frmLog& W) {
    VBW_Record& R = W.VBW_Record;
    const char Status = W.chkInvalid.Value() ? 'V' : 'A';
    R.Water_Status = R.Ground_Status = R.Stern_Water_Status = R.Stern_Ground_Status = Status;
}

void chkVLW_Clicked(Simulator& Sim, frmLog& W) {
    const bool On = W.Sentences["VLW"].Box.Value();
    W.cmdResetVLW.Enabled = On;
    if (!On) return;
    Store_VLW_Period(Sim, W);
    Log_State& Counters = Sim.State.Of<Log_State>();
    for (auto* Counter : {&Counters.Log_Total_Water, &Counters.Log_Total_Ground, &Counters.Log_Trip_Water,
                          &Counters.Log_Trip_Ground})
        (*Counter)[W.Instance] = 0;
}

void cmbVLWInterval_Clicked(Simulator& Sim, frmLog& W) { Store_VLW_Period(Sim, W); }

void cmdResetVLW_Click(Simulator& Sim, frmLog& W) {
    Sim.State.Of<Log_State>().Log_Trip_Water[W.Instance] = 0;
    Sim.State.Of<Log_State>().Log_Trip_Ground[W.Instance] = 0;
}

} // namespace brinewright
