#include "ownship/ship/ship_controls.hpp"

#include "ownship/geodesy/finite.hpp"
#include "ownship/navdata_state.hpp"
#include "ownship/ship/frm_ship.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/kit/control_text.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

namespace brinewright {

namespace {

constexpr int Throttle_Steps = 100; // percent

// A setup file may hold anything; the slider gets an end that it can have, and one that is not negative, so
// that port stays on the left.
int Rudder_End(float Max_Rudder) {
    constexpr double Most = 1e6;
    const double Rate = std::clamp(Finite_Or_Zero(static_cast<double>(Max_Rudder)), 0.0, Most);
    return static_cast<int>(std::nearbyint(Rate * Rudder_Steps));
}

struct Latch {
    Button frmShip::*Key;
    Label frmShip::*Lamp;
    const char* Caption; // while it is off
    bool Shell_State::*Active;
};
constexpr Latch Freeze{&frmShip::cmdFreeze, &frmShip::lblFreeze, "FREEZE", &Shell_State::Freeze_Active};
constexpr Latch Pause{&frmShip::cmdPause, &frmShip::lblPause, "TX PAUSE", &Shell_State::Pause_Active};

void Show_Latch(const Simulator_State& S, frmShip& W, const Latch& L) {
    (W.*L.Key).Caption = std::string(S->*L.Active ? "continue" : L.Caption);
    (W.*L.Lamp).Visible = S->*L.Active;
}

void Toggle(Simulator_State& S, frmShip& W, const Latch& L) {
    S->*L.Active = !(S->*L.Active);
    Show_Latch(S, W, L);
}

void Take_Noise(const Combo_Box& List, float& Amplitude, float& Stored_Index) {
    Amplitude = Number_Shown(List.Text());
    Stored_Index = static_cast<float>(List.List_Index());
}

} // namespace

void Wire_Ship_Controls(Simulator& Sim, frmShip& W) {
    W.sldThrottle.Change = [&] { sldThrottle_Change(Sim, W); };
    W.sldRudder.Change = [&] { sldRudder_Change(Sim, W); };
    W.cmdZero.Click = [&] { cmdZero_Click(Sim, W); };
    W.cmdZeroRudder.Click = [&] { cmdZeroRudder_Click(Sim, W); };
    W.cmbHDG.Change = W.cmbHDG.Click = [&] { cmbHDG_Change(Sim, W); };
    W.cmbSOGNoise.Click = [&] {
        Take_Noise(W.cmbSOGNoise, W.SOG_Noise_Amplitude, Sim.State.Of<Navdata_State>().Ship_SOG_Noise_Index);
    };
    W.cmbROTNoise.Click = [&] {
        Take_Noise(W.cmbROTNoise, W.ROT_Noise_Amplitude, Sim.State.Of<Navdata_State>().Ship_ROT_Noise_Index);
    };
    W.cmdSetSOG.Click = [&] { Open_Window(Sim, "frmSetSOG"); };
    W.cmdFreeze.Click = [&] { cmdFreeze_Click(Sim, W); };
    W.cmdPause.Click = [&] { cmdPause_Click(Sim, W); };
}

void Show_Rudder_Range(const Simulator_State& S, frmShip& W) {
    constexpr int Divisible_By = 15; // so that thirds of the range are multiples of five
    const int End = Rudder_End(S.Of<Navdata_State>().Max_Rudder);
    W.sldRudder.Set_Range(-End, End);
    const double Most = Finite_Or_Zero(static_cast<double>(S.Of<Navdata_State>().Max_Rudder));
    const bool Thirds = std::remainder(std::nearbyint(Most), Divisible_By) == 0;
    W.lblRudderTick[0].Caption = std::string("0");
    for (const int Side : {0, 3}) {
        for (const int Third : {1, 2})
            W.lblRudderTick[Side + Third].Caption =
                Thirds ? Format_Dot(static_cast<float>(Most * Third / 3), "") : std::string();
        W.lblRudderTick[Side + 3].Caption = Format_Dot(S.Of<Navdata_State>().Max_Rudder, "");
    }
}

int Throttle_Place(const Simulator_State& S, const frmShip& W) {
    const double SOG_kn = S.Of<Navdata_State>().Nav_SOG;
    const double Most_kn =
        SOG_kn >= 0 ? S.Of<Navdata_State>().Max_Speed_Ahead : S.Of<Navdata_State>().Max_Speed_Astern;
    return Most_kn > 0 ? Bar_Place(W.sldThrottle, -SOG_kn / Most_kn, Throttle_Steps) : 0;
}

void Show_Throttle(frmShip& W) {
    const int Place = W.sldThrottle.Value();
    const char* Way = Place < 0 ? " ahead" : Place > 0 ? " astern" : "";
    W.lblThrottle.Caption = Format_Dot(std::abs(Place), "0 %") + Way;
}

void Show_SOG(frmShip& W, float SOG_kn, std::string_view Picture) {
    W.lblSOG.Caption = Format_Dot(SOG_kn, Picture) + " knot";
}

void Show_ROT(frmShip& W, float ROT, std::string_view Picture) {
    W.lblRudder.Caption = Format_Dot(std::abs(ROT), Picture);
    W.lblRudder.Fore_Colour = ROT < 0 ? Ink::Red : ROT > 0 ? Ink::Green : Ink::Black;
}

void Show_Freeze_And_Pause(const Simulator_State& S, frmShip& W) {
    Show_Latch(S, W, Freeze);
    Show_Latch(S, W, Pause);
}

void Show_Heading(frmShip& W, double Heading_deg) {
    W.HDG_Changing = true;
    W.cmbHDG.Set_Text(Format_Dot(Heading_deg, "000.0"));
    W.HDG_Changing = false;
}

void sldThrottle_Change(Simulator& Sim, frmShip& W) {
    Simulator_State& S = Sim.State;
    const int Place = W.sldThrottle.Value();
    const double Most_kn =
        Place < 0 ? S.Of<Navdata_State>().Max_Speed_Ahead : S.Of<Navdata_State>().Max_Speed_Astern;
    S.Of<Navdata_State>().Nav_SOG = Place == 0 ? 0.0F : Record_Number(-Most_kn * Place / Throttle_Steps);
    Show_Throttle(W);
    Show_SOG(W, S.Of<Navdata_State>().Nav_SOG, "0.0");
}

void sldRudder_Change(Simulator& Sim, frmShip& W) {
    Sim.State.Of<Navdata_State>().Nav_Rudder = static_cast<float>(W.sldRudder.Value()) / Rudder_Steps;
    Show_ROT(W, Sim.State.Of<Navdata_State>().Nav_Rudder, "0.0");
}

// The labels are written here too: a slider that stands at 0 already does not tell of it, and the ship may
// still have the little speed or rate for which the slider stands there.
void cmdZero_Click(Simulator& Sim, frmShip& W) {
    W.sldThrottle.Set_Value(0);
    Sim.State.Of<Navdata_State>().Nav_SOG = 0;
    Show_SOG(W, 0, "0.0");
    cmdZeroRudder_Click(Sim, W);
}

void cmdZeroRudder_Click(Simulator& Sim, frmShip& W) {
    W.sldRudder.Set_Value(0);
    Sim.State.Of<Navdata_State>().Nav_Rudder = 0;
    Show_ROT(W, 0, "0.0");
}

void cmbHDG_Change(Simulator& Sim, frmShip& W) {
    if (W.HDG_Changing) return;
    const double Typed_deg = Val_Dot(W.cmbHDG.Text());
    W.HDG_Changing = true;
    if (Typed_deg > 360) W.cmbHDG.Set_Text("360");
    if (Typed_deg < 0) W.cmbHDG.Set_Text("000");
    W.HDG_Changing = false;
    Sim.State.Of<Navdata_State>().Nav_HDG = std::clamp(Typed_deg, 0.0, 360.0);
}

void cmdFreeze_Click(Simulator& Sim, frmShip& W) { Toggle(Sim.State, W, Freeze); }

void cmdPause_Click(Simulator& Sim, frmShip& W) { Toggle(Sim.State, W, Pause); }

} // namespace brinewright
