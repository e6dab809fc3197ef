#include "sensors/gyro/gyro_controls.hpp"

#include "ownship/geodesy/latin1.hpp"
#include "sensors/gyro/frm_gyro.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "sentences/number_text.hpp"
#include "shell/kit/control_text.hpp"
#include "shell/kit/value_bars.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>

namespace brinewright {

namespace {

constexpr int Noise_Tenths[] = {0, 2, 4, 6, 8, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100};
constexpr const char* Noise_Of[] = {"Heading", "Rate Of Turn", "Roll ", "Pitch"};
constexpr const char* THS_Modes[] = {"A=Autonomous", "E=Estimated", "M=Manual", "S=Simulator", "V=Not valid"};
// Of what is typed: a heading that noise of one circle at most has moved is back with one wrap.
constexpr float Noise_Limit = 360;
constexpr int Most_Decimals = 3;
constexpr int Default_Decimals = 1;

struct Bar_Box {
    Scroll_Bar frmGyro::*Bar;
    Text_Box frmGyro::*Box;
    const char* Refusal;
    std::string (*Shown)(const Simulator_State&, const frmGyro&);
};

std::string Shown_HDG(const Simulator_State&, const frmGyro& W) { return Direction_Shown(W.scrHDG); }
std::string Shown_ROT(const Simulator_State& S, const frmGyro& W) {
    return Format_Dot(S.Of<Gyro_State>().Gyro_ROT[W.Instance], "0.0");
}
std::string Shown_Roll(const Simulator_State&, const frmGyro& W) { return Format_Dot(W.Roll_Value, "0.0"); }
std::string Shown_Pitch(const Simulator_State&, const frmGyro& W) { return Format_Dot(W.Pitch_Value, "0.0"); }

constexpr Bar_Box Heading{&frmGyro::scrHDG, &frmGyro::txtHDG,
                          "Heading must be 0.0 to 360.0 degrees. Try again!", Shown_HDG};
constexpr Bar_Box Turn{&frmGyro::scrROT, &frmGyro::txtROT,
                       "Rate of turn must be -30.0 to 30.0 deg/min. Try again!", Shown_ROT};
constexpr Bar_Box Roll{&frmGyro::scrRoll, &frmGyro::txtRoll, "Roll must be -15.0 to 15.0 degrees. Try again!",
                       Shown_Roll};
constexpr Bar_Box Pitch{&frmGyro::scrPitch, &frmGyro::txtPitch,
                        "Pitch must be -15.0 to 15.0 degrees. Try again!", Shown_Pitch};

void Show(const Simulator_State& S, frmGyro& W, const Bar_Box& B) { (W.*B.Box).Set_Text(B.Shown(S, W)); }

void Leave(Simulator& Sim, frmGyro& W, const Bar_Box& B) {
    Leave_Box(Sim, W, {W.*B.Bar, W.*B.Box, B.Refusal, B.Shown(Sim.State, W)});
}

} // namespace

void Wire_Gyro_Controls(Simulator& Sim, frmGyro& W) {
    W.scrHDG.Change = [&] { scrHDG_Change(Sim, W); };
    W.scrROT.Change = [&] { scrROT_Change(Sim, W); };
    W.scrRoll.Change = [&] { scrRoll_Change(W); };
    W.scrPitch.Change = [&] { scrPitch_Change(W); };
    W.txtHDG.Lost_Focus = [&] { Leave(Sim, W, Heading); };
    W.txtROT.Lost_Focus = [&] { Leave(Sim, W, Turn); };
    W.txtRoll.Lost_Focus = [&] { Leave(Sim, W, Roll); };
    W.txtPitch.Lost_Focus = [&] { Leave(Sim, W, Pitch); };
    W.chkNoise.Click = [&] {
        Sim.State.Of<Gyro_State>().Gyro_Noise_Enabled[W.Instance] = W.chkNoise.Value();
    };
    W.optAccumulatedNoise.Click = [&](int Index) {
        Sim.State.Of<Gyro_State>().Gyro_Noise_Accumulated[W.Instance] = Index == 1;
    };
    for (const auto& List : W.cmbNoise) {
        List->Free_Text = true;
        List->Change = [&W, I = List->Index] { cmbNoise_Change(W, I); };
        List->Click = [&Sim, &W, I = List->Index] { cmbNoise_Click(Sim, W, I); };
    }
    W.cmbModeIndicator.Click = [&] { cmbModeIndicator_Click(W); };
    W.cmbDecimals.Click = [&] { cmbDecimals_Click(Sim, W); };
}

void Show_Gyro_Motion(const Simulator_State& S, frmGyro& W) {
    W.scrHDG.Set_Value(Direction_Place(W.scrHDG, S.Of<Gyro_State>().Gyro_HDG[W.Instance]));
    W.scrROT.Set_Value(Bar_Place(W.scrROT, S.Of<Gyro_State>().Gyro_ROT[W.Instance], Bar_Steps));
    for (const Bar_Box* B : {&Heading, &Turn, &Roll, &Pitch}) Show(S, W, *B);
}

void Fill_Gyro_Lists(frmGyro& W) {
    for (const auto& List : W.cmbNoise) {
        W.lblNoise[List->Index].Caption = std::string(Noise_Of[List->Index]);
        for (const int Tenths : Noise_Tenths)
            List->Add_Item(Format_Dot(Tenths / 10.0, "0.0") + ' ' + Degree_Sign);
    }
    Add_Items(W.cmbModeIndicator, THS_Modes);
    for (int Decimals = 0; Decimals <= Most_Decimals; ++Decimals)
        W.cmbDecimals.Add_Item(Number_Text(Decimals));
}

void Restore_Gyro_Settings(Simulator& Sim, frmGyro& W) {
    const Simulator_State& S = Sim.State;
    const int I = W.Instance;
    for (const auto& List : W.cmbNoise)
        Restore_Choice(*List, S.Of<Gyro_State>().Gyro_Noise_Level[I][List->Index], 0);
    W.optAccumulatedNoise.Select(S.Of<Gyro_State>().Gyro_Noise_Accumulated[I] ? 1 : 0);
    W.chkNoise.Set_Value(S.Of<Gyro_State>().Gyro_Noise_Enabled[I]);
    W.cmbModeIndicator.Set_List_Index(0);
    Restore_Choice(W.cmbDecimals, S.Of<Gyro_State>().Gyro_Decimals[I], Default_Decimals);
}

// With noise the bar sets only the noisy heading, which the next simulator tick makes anew; Gyro_HDG stays.
// This is required.
void scrHDG_Change(Simulator& Sim, frmGyro& W) {
    if (Wrap_Direction_Bar(W.scrHDG)) return;
    float& Set = W.chkNoise.Value() ? W.Noisy_HDG : Sim.State.Of<Gyro_State>().Gyro_HDG[W.Instance];
    Set = Bar_Value(W.scrHDG);
    Show(Sim.State, W, Heading);
}

void scrROT_Change(Simulator& Sim, frmGyro& W) {
    Sim.State.Of<Gyro_State>().Gyro_ROT[W.Instance] = Bar_Value(W.scrROT);
    Show(Sim.State, W, Turn);
}

void scrRoll_Change(frmGyro& W) {
    W.Roll_Value = Bar_Value(W.scrRoll);
    W.txtRoll.Set_Text(Format_Dot(W.Roll_Value, "0.0"));
}

void scrPitch_Change(frmGyro& W) {
    W.Pitch_Value = Bar_Value(W.scrPitch);
    W.txtPitch.Set_Text(Format_Dot(W.Pitch_Value, "0.0"));
}

void cmbNoise_Change(frmGyro& W, int Index) {
    W.Noise_Max[Index] = std::clamp(Number_Shown(W.cmbNoise[Index].Text()), -Noise_Limit, Noise_Limit);
}

// A number that was typed is not kept over a restart: only places in the list are.
void cmbNoise_Click(Simulator& Sim, frmGyro& W, int Index) {
    cmbNoise_Change(W, Index);
    Sim.State.Of<Gyro_State>().Gyro_Noise_Level[W.Instance][Index] =
        static_cast<std::int16_t>(W.cmbNoise[Index].List_Index());
}

void cmbModeIndicator_Click(frmGyro& W) { W.THS_Record.Mode = W.cmbModeIndicator.Text().front(); }

void cmbDecimals_Click(Simulator& Sim, frmGyro& W) {
    Sim.State.Of<Gyro_State>().Gyro_Decimals[W.Instance] =
        static_cast<std::int16_t>(W.cmbDecimals.List_Index());
}

} // namespace brinewright
