#include "gnss/position/position_simulator.hpp"

#include "gnss/gnss_state.hpp"
#include "gnss/position/frm_position.hpp"
#include "ownship/geodesy/ellipsoid.hpp"
#include "ownship/geodesy/geodetic_constants.hpp"
#include "ownship/geodesy/position_text.hpp"
#include "sentences/number_pattern.hpp"
#include "sentences/number_text.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace brinewright {

namespace {

constexpr int Offset_Sensor = 2; // the one that can hold an offset from GNSS 1
constexpr int Position_Width = 1455;
constexpr int Offset_Width = 735;
constexpr const char* Offset_Pattern = "0.0 m";

constexpr int Last_Metre_Choice = 16;
constexpr int Larger_Noise_m[] = {25, 50, 100};

struct Position {
    double Lat_deg = 0;
    double Lon_deg = 0;
};

// A distance of 0 gives the same position bit for bit. The way to radians and back would not, and a sensor
// that stands still would creep.
Position Moved(const Position& From, double Distance_m, double Azimuth_rad) {
    if (Distance_m == 0) return From;
    double Lat_rad = 0, Lon_rad = 0;
    Ellipsoid_Direct(From.Lat_deg * Degrees_To_Radians, From.Lon_deg * Degrees_To_Radians, Distance_m,
                     Azimuth_rad, Lat_rad, Lon_rad, WGS84_Semi_Major_m, WGS84_Eccentricity_Squared);
    return {Lat_rad * Radians_To_Degrees, Lon_rad * Radians_To_Degrees};
}

Position Start_Position(const Simulator_State& S, int I) {
    return {S.Of<GNSS_State>().GNSS_Start_Lat[I], S.Of<GNSS_State>().GNSS_Start_Lon[I]};
}

void Set_Start_Position(Simulator_State& S, int I, const Position& New) {
    S.Of<GNSS_State>().GNSS_Start_Lat[I] = New.Lat_deg;
    S.Of<GNSS_State>().GNSS_Start_Lon[I] = New.Lon_deg;
}

Position A_Second_On(const Simulator_State& S, int I) {
    const double Distance_m =
        static_cast<double>(S.Of<GNSS_State>().GNSS_SOG[I]) * m_Per_Nautical_Mile / 60 / 60;
    return Moved(Start_Position(S, I), Distance_m, S.Of<GNSS_State>().GNSS_COG[I] * Degrees_To_Radians);
}

// From the true position of GNSS 1, without its noise, wherever its own tick has brought it.
Position Held_Offset(const Simulator_State& S, const frmPosition& W) {
    const Position First = Start_Position(S, 1);
    const double Latitude_Scale = std::cos(First.Lat_deg * Degrees_To_Radians);
    return {First.Lat_deg + W.Offset_North / m_Per_Nautical_Mile / 60,
            First.Lon_deg + W.Offset_East / m_Per_Nautical_Mile / 60 / Latitude_Scale};
}

// Uniform in distance and uniform in direction, which gathers the draws near the centre.
Position With_Noise(Simulator& Sim, int I, const Position& From) {
    const double Distance_Draw = Sim.Services.Random.Draw();
    const double Azimuth_Draw = Sim.Services.Random.Draw();
    return Moved(From, Distance_Draw * static_cast<double>(Sim.State.Of<GNSS_State>().GNSS_Noise_Max[I]),
                 Azimuth_Draw * Two_Pi);
}

float Typed_Offset_m(const Text_Box& Box) {
    constexpr auto Most = static_cast<double>(std::numeric_limits<float>::max());
    return static_cast<float>(std::clamp(Val_Dot(Box.Text()), -Most, Most));
}

// A position box and what it stands for.
struct Position_Box {
    Text_Box frmPosition::*Box;
    float frmPosition::*Offset;
    Per_Instance<double> GNSS_State::*Degrees;
    const char* Kind;
};
constexpr Position_Box Latitude{&frmPosition::txtLat, &frmPosition::Offset_North, &GNSS_State::GNSS_Start_Lat,
                                "LAT"};
constexpr Position_Box Longitude{&frmPosition::txtLon, &frmPosition::Offset_East, &GNSS_State::GNSS_Start_Lon,
                                 "LON"};

void Show_Offset(frmPosition& W, const Position_Box& B) {
    (W.*B.Box).Set_Text(Format_Dot(W.*B.Offset, Offset_Pattern));
}

void Show_Degrees(const Simulator_State& S, frmPosition& W, const Position_Box& B) {
    (W.*B.Box).Set_Text(
        Position_Text(S.Of<Shell_State>().LatLon_Format, (S->*B.Degrees)[W.Instance], B.Kind));
}

// The reported position is not touched: it changes at the next tick only.
void Leave_Position_Box(Simulator& Sim, frmPosition& W, const Position_Box& B) {
    Text_Box& Box = W.*B.Box;
    if (W.chkFixOffset.Value()) {
        W.*B.Offset = Typed_Offset_m(Box);
        Show_Offset(W, B);
        return;
    }
    (Sim.State->*B.Degrees)[W.Instance] =
        Parse_Position(Sim.State.Of<Shell_State>().LatLon_Format, Box.Text(), B.Kind, Sim.Windows.Boxes);
    Show_Degrees(Sim.State, W, B);
    W.cmdStart.Caption = std::string("START");
}

} // namespace

void Wire_Position_Simulator(Simulator& Sim, frmPosition& W) {
    W.txtLat.Width = Position_Width;
    W.txtLon.Width = Position_Width;
    W.timer_Simulator.Tick = [&] { timer_Simulator_Tick(Sim, W); };
    W.txtLat.Lost_Focus = [&] { txtLat_LostFocus(Sim, W); };
    W.txtLon.Lost_Focus = [&] { txtLon_LostFocus(Sim, W); };
    W.chkFixOffset.Click = [&] { chkFixOffset_Click(Sim, W); };
    W.chkNoise.Click = [&] { chkNoise_Click(Sim, W); };
    W.cmbNoise.Click = [&] { cmbNoise_Click(Sim, W); };
    W.optAccumulatedNoise.Click = [&](int Index) { optAccumulatedNoise_Click(Sim, W, Index); };
}

void Fill_Noise_List(Combo_Box& List) {
    for (int Metres = 0; Metres <= Last_Metre_Choice; ++Metres) List.Add_Item(Number_Text(Metres) + " m");
    for (const int Metres : Larger_Noise_m) List.Add_Item(std::to_string(Metres) + " m");
}

void Show_Start_Position(const Simulator_State& State, frmPosition& W) {
    Show_Degrees(State, W, Latitude);
    Show_Degrees(State, W, Longitude);
}

void Show_Reported_Position(const Simulator_State& State, frmPosition& W) {
    W.lblLat.Caption = Position_Text(State.Of<Shell_State>().LatLon_Format,
                                     State.Of<GNSS_State>().GNSS_Lat[W.Instance], "LAT");
    W.lblLon.Caption = Position_Text(State.Of<Shell_State>().LatLon_Format,
                                     State.Of<GNSS_State>().GNSS_Lon[W.Instance], "LON");
}

void timer_Simulator_Tick(Simulator& Sim, frmPosition& W) {
    Simulator_State& S = Sim.State;
    const int I = W.Instance;
    // With a held offset the noise works on latitude 0, longitude 0 and not on the position that is held, so
    // that the two together report GNSS 2 off the coast of Africa. The combination is required to behave so.
    Position Noise_Centre;
    if (W.chkFixOffset.Value() && I == Offset_Sensor) {
        Set_Start_Position(S, I, Held_Offset(S, W));
    } else {
        Noise_Centre = A_Second_On(S, I);
        Set_Start_Position(S, I, Noise_Centre);
    }
    Position Reported = Start_Position(S, I);
    if (W.chkNoise.Value()) {
        Reported = With_Noise(Sim, I, Noise_Centre);
        if (W.optAccumulatedNoise.Selected() == 1) Set_Start_Position(S, I, Reported);
    }
    S.Of<GNSS_State>().GNSS_Lat[I] = Reported.Lat_deg;
    S.Of<GNSS_State>().GNSS_Lon[I] = Reported.Lon_deg;
    Show_Reported_Position(S, W);
}

void txtLat_LostFocus(Simulator& Sim, frmPosition& W) { Leave_Position_Box(Sim, W, Latitude); }
void txtLon_LostFocus(Simulator& Sim, frmPosition& W) { Leave_Position_Box(Sim, W, Longitude); }

void chkFixOffset_Click(Simulator& Sim, frmPosition& W) {
    const bool Held = W.chkFixOffset.Value();
    if (Held) {
        W.lblStartLat.Caption = std::string("deltaNorth");
        W.lblStartLon.Caption = std::string("deltaEast");
        Show_Offset(W, Latitude);
        Show_Offset(W, Longitude);
    } else {
        Show_Start_Position(Sim.State, W);
        // The second caption goes to the same label, by requirement: lblStartLat ends up as "Start Lon" and
        // lblStartLon keeps "deltaEast".
        W.lblStartLat.Caption = std::string("Start Lat");
        W.lblStartLat.Caption = std::string("Start Lon");
    }
    W.txtLat.Width = Held ? Offset_Width : Position_Width;
    W.txtLon.Width = Held ? Offset_Width : Position_Width;
}

void chkNoise_Click(Simulator& Sim, frmPosition& W) {
    const bool On = W.chkNoise.Value();
    Sim.State.Of<GNSS_State>().GNSS_Noise_Enabled[W.Instance] = On;
    W.optAccumulatedNoise.Set_Enabled(On);
    W.cmbNoise.Enabled = On;
}

void cmbNoise_Click(Simulator& Sim, frmPosition& W) {
    const int Choice = W.cmbNoise.List_Index();
    const int Larger =
        std::clamp(Choice - Last_Metre_Choice - 1, 0, static_cast<int>(std::size(Larger_Noise_m)) - 1);
    Sim.State.Of<GNSS_State>().GNSS_Noise_Index[W.Instance] = static_cast<std::int16_t>(Choice);
    Sim.State.Of<GNSS_State>().GNSS_Noise_Max[W.Instance] =
        static_cast<float>(Choice <= Last_Metre_Choice ? Choice : Larger_Noise_m[Larger]);
}

void optAccumulatedNoise_Click(Simulator& Sim, frmPosition& W, int Index) {
    Sim.State.Of<GNSS_State>().GNSS_Noise_Accumulated[W.Instance] = Index == 1;
}

} // namespace brinewright
