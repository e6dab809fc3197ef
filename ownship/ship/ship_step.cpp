#include "ownship/ship/ship_step.hpp"

#include "gnss/gnss_state.hpp"
#include "ownship/geodesy/position_text.hpp"
#include "ownship/navdata_state.hpp"
#include "ownship/ship/frm_ship.hpp"
#include "ownship/ship/set_drift.hpp"
#include "ownship/ship/ship_controls.hpp"
#include "ownship/ship/ship_motion.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "sensors/log/log_state.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/kit/control_text.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

#include <string>

namespace brinewright {

namespace {

// The set value with the noise of this second, uniform within +-Amplitude of it.
float With_Noise(Simulator& Sim, float Set_Value, float Amplitude) {
    const double A = Amplitude;
    return Record_Number(static_cast<double>(Set_Value) - A + 2 * A * Sim.Services.Random.Draw());
}

// Without noise the labels stay as the sliders wrote them.
float ROT_Of_Step(Simulator& Sim, frmShip& W) {
    if (W.cmbROTNoise.List_Index() < 1) return Sim.State.Of<Navdata_State>().Nav_Rudder;
    const float ROT = With_Noise(Sim, Sim.State.Of<Navdata_State>().Nav_Rudder, W.ROT_Noise_Amplitude);
    Show_ROT(W, ROT, "0.00");
    return ROT;
}

float SOG_Of_Step(Simulator& Sim, frmShip& W) {
    if (W.cmbSOGNoise.List_Index() < 1) return Sim.State.Of<Navdata_State>().Nav_SOG;
    const float SOG_kn = With_Noise(Sim, Sim.State.Of<Navdata_State>().Nav_SOG, W.SOG_Noise_Amplitude);
    Show_SOG(W, SOG_kn, "0.00");
    return SOG_kn;
}

template <class Number>
std::string Degrees_Text(Number Value, std::string_view Picture) {
    return Format_Dot(Value, Picture) + " deg";
}

void Show_Motion(Simulator_State& S, frmShip& W) {
    for (int I = 1; I <= 2; ++I) {
        W.lblLat[I - 1].Caption =
            Position_Text(S.Of<Shell_State>().LatLon_Format, S.Of<GNSS_State>().GNSS_Lat[I], "LAT");
        W.lblLon[I - 1].Caption =
            Position_Text(S.Of<Shell_State>().LatLon_Format, S.Of<GNSS_State>().GNSS_Lon[I], "LON");
        W.lblGyro[I - 1].Caption = Degrees_Text(S.Of<Gyro_State>().Gyro_HDG[I], "000.0#");
    }
    W.lblCOG.Caption = Degrees_Text(S.Of<Navdata_State>().Nav_COG, "000.0#");
    Show_Heading(W, S.Of<Navdata_State>().Nav_HDG);
    for (int I = 1; I <= 2; ++I)
        W.lblLog[I - 1].Caption = Format_Dot(S.Of<Log_State>().Log_Speed[I], "0.0") + " knot";
    Compute_Set_Drift(S);
    W.lblSet.Caption = Degrees_Text(S.Of<Navdata_State>().Current_Set, "000.0");
    W.lblDrift.Caption = Format_Dot(S.Of<Navdata_State>().Current_Drift, "0.0") + " knot";
}

} // namespace

void Timer1_Tick(Simulator& Sim, frmShip& W) {
    if (Sim.State.Of<Shell_State>().Freeze_Active) return;
    const float ROT = ROT_Of_Step(Sim, W);
    const float SOG_kn = SOG_Of_Step(Sim, W);
    Move_Ship(Sim.State, SOG_kn, ROT);
    Feed_Sensors(Sim.State, SOG_kn, ROT);
    if (!W.GUI_Off) Show_Motion(Sim.State, W);
}

} // namespace brinewright
