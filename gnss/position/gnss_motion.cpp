#include "gnss/gnss_state.hpp"
#include "gnss/position/frm_position.hpp"
#include "gnss/position/position_parts.hpp"
#include "ownship/geodesy/ellipsoid.hpp"
#include "ownship/geodesy/geodetic_constants.hpp"
#include "ownship/geodesy/position_text.hpp"
#include "sentences/number_text.hpp"
#include "shell/kit/kept_choice.hpp"
#include "shell/kit/shown_number.hpp"
#include "shell/kit/typed_number.hpp"
#include "shell/kit/value_bars.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace brinewright {

namespace {

constexpr double Simulator_Period_ms = 1000;
constexpr int Position_Width = 1455;
constexpr int Offset_Width = 735;

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

Position True_Position(const GNSS_State& S, int I) { return {S.GNSS_Start_Lat[I], S.GNSS_Start_Lon[I]}; }

Position A_Second_On(const GNSS_State& S, int I) {
    const double Distance_m = static_cast<double>(S.GNSS_SOG[I]) * m_Per_Nautical_Mile / 60 / 60;
    return Moved(True_Position(S, I), Distance_m, S.GNSS_COG[I] * Degrees_To_Radians);
}

// From the true position of GNSS 1, without its noise, wherever its own tick has brought it.
Position Held_Offset(const GNSS_State& S, const frmPosition& W) {
    const Position First = True_Position(S, 1);
    const double Latitude_Scale = std::cos(First.Lat_deg * Degrees_To_Radians);
    return {First.Lat_deg + W.Offset_North / m_Per_Nautical_Mile / 60,
            First.Lon_deg + W.Offset_East / m_Per_Nautical_Mile / 60 / Latitude_Scale};
}

// Uniform in distance and uniform in direction, which gathers the draws near the centre.
Position With_Noise(Simulator& Sim, const Position& Centre, float Most_m) {
    const double Distance_Draw = Sim.Services.Random.Draw();
    const double Azimuth_Draw = Sim.Services.Random.Draw();
    return Moved(Centre, Distance_Draw * static_cast<double>(Most_m), Azimuth_Draw * Two_Pi);
}

// Latitude or longitude: where it is typed and shown, and what for.
struct Coordinate {
    Text_Box& Box; // the true one, or the offset while that is held
    Label& Shown;  // the reported one
    float& Offset_m;
    double& True_deg;
    const double& Reported_deg;
    const char* Kind;
};

std::array<Coordinate, 2> Coordinates(GNSS_State& S, frmPosition& W) {
    const int I = W.Instance;
    return {{{W.txtLat, W.lblLat, W.Offset_North, S.GNSS_Start_Lat[I], S.GNSS_Lat[I], "LAT"},
             {W.txtLon, W.lblLon, W.Offset_East, S.GNSS_Start_Lon[I], S.GNSS_Lon[I], "LON"}}};
}

void Show_Typed(const Simulator& Sim, const frmPosition& W, const Coordinate& C) {
    C.Box.Set_Text(W.chkFixOffset.Value()
                       ? Format_Dot(C.Offset_m, "0.0 m")
                       : Position_Text(Sim.State.Of<Shell_State>().LatLon_Format, C.True_deg, C.Kind));
}

void Show_Reported(Simulator& Sim, frmPosition& W) {
    for (const Coordinate& C : Coordinates(Sim.State.Of<GNSS_State>(), W))
        C.Shown.Caption = Position_Text(Sim.State.Of<Shell_State>().LatLon_Format, C.Reported_deg, C.Kind);
}

// The reported position is not touched: it changes at the next tick only.
void Leave_Position_Box(Simulator& Sim, frmPosition& W, const Coordinate& C) {
    if (W.chkFixOffset.Value()) {
        if (const auto Typed = Typed_Number(C.Box, Bad_Text_Is_Zero)) C.Offset_m = Record_Number(*Typed);
    } else if (const auto Typed = Typed_Position(Sim, C.Box, C.Kind)) {
        C.True_deg = *Typed;
        W.cmdStart.Caption = std::string("START");
    }
    Show_Typed(Sim, W, C);
}

void chkFixOffset_Click(Simulator& Sim, frmPosition& W) {
    const bool Held = W.chkFixOffset.Value();
    // Let go, the caption of the longitude goes to the label of the latitude, and lblStartLon keeps
    // "deltaEast". This is required.
    W.lblStartLat.Caption = std::string(Held ? "deltaNorth" : "Start Lon");
    if (Held) W.lblStartLon.Caption = std::string("deltaEast");
    for (const Coordinate& C : Coordinates(Sim.State.Of<GNSS_State>(), W)) {
        Show_Typed(Sim, W, C);
        C.Box.Width = Held ? Offset_Width : Position_Width;
    }
}

// One step. It always is a second long, however late the tick comes: there is no clock of its own here.
void timer_Simulator_Tick(Simulator& Sim, frmPosition& W) {
    GNSS_State& S = Sim.State.Of<GNSS_State>();
    const int I = W.Instance;
    const bool Held = W.chkFixOffset.Value();
    Position True = Held ? Held_Offset(S, W) : A_Second_On(S, I);
    Position Reported = True;
    if (W.chkNoise.Value()) {
        // With a held offset the noise works on latitude 0, longitude 0 and not on the position that is held,
        // so that the two together report GNSS 2 off the coast of Africa. The combination is required to
        // behave so.
        Reported = With_Noise(Sim, Held ? Position{} : True, S.GNSS_Noise_Max[I]);
        if (W.optAccumulatedNoise.Selected() == 1) True = Reported;
    }
    S.GNSS_Start_Lat[I] = True.Lat_deg;
    S.GNSS_Start_Lon[I] = True.Lon_deg;
    S.GNSS_Lat[I] = Reported.Lat_deg;
    S.GNSS_Lon[I] = Reported.Lon_deg;
    Show_Reported(Sim, W);
}

void Open_Position(Simulator& Sim, frmPosition& W) {
    W.chkFixOffset.Visible = W.Instance == 2; // the one that can hold an offset from GNSS 1
    W.chkFixOffset.Click = [&] { chkFixOffset_Click(Sim, W); };
    for (const Coordinate& C : Coordinates(Sim.State.Of<GNSS_State>(), W)) {
        C.Box.Width = Position_Width;
        C.Box.Lost_Focus = [&Sim, &W, C] { Leave_Position_Box(Sim, W, C); };
        Show_Typed(Sim, W, C);
    }
    Show_Reported(Sim, W);
    W.timer_Simulator.Tick = [&] { timer_Simulator_Tick(Sim, W); };
}

float Noise_m(int Choice) {
    if (Choice <= Last_Metre_Choice) return static_cast<float>(Choice);
    return static_cast<float>(Larger_Noise_m[Choice - Last_Metre_Choice - 1]);
}

void Open_Noise(GNSS_State& S, frmPosition& W) {
    const int I = W.Instance;
    for (int Metres = 0; Metres <= Last_Metre_Choice; ++Metres)
        W.cmbNoise.Add_Item(Number_Text(Metres) + " m");
    for (const int Metres : Larger_Noise_m) W.cmbNoise.Add_Item(std::to_string(Metres) + " m");
    Keep(W.cmbNoise, S.GNSS_Noise_Index[I], 0,
         [&W, &Most_m = S.GNSS_Noise_Max[I]] { Most_m = Noise_m(W.cmbNoise.List_Index()); });
    Keep(W.optAccumulatedNoise, S.GNSS_Noise_Accumulated[I]);
    bool& Enabled = S.GNSS_Noise_Enabled[I];
    W.chkNoise.Set_Value(Enabled);
    W.chkNoise.Click = [&W, &Enabled] {
        Enabled = W.chkNoise.Value();
        W.optAccumulatedNoise.Set_Enabled(Enabled);
        W.cmbNoise.Enabled = Enabled;
    };
    W.chkNoise.Click();
}

void Show_Course(frmPosition& W, float Course) {
    W.lblCOG.Caption = Format_Dot(Course, "000.0");
    W.txtCOG.Set_Text(W.lblCOG.Caption);
}

void Open_Speed(float& Speed, frmPosition& W) {
    W.scrSOG.Set_Value(Bar_Place(W.scrSOG, Speed, Bar_Steps)); // showing the speed does not write it
    Show_Size(W.lblSOG, W.txtSOG, Speed);
    W.scrSOG.Change = [&] {
        Speed = Bar_Value(W.scrSOG);
        Show_Size(W.lblSOG, W.txtSOG, Speed);
    };
    W.txtSOG.Lost_Focus = [&] {
        if (const auto Typed = Typed_Size(W.scrSOG, W.txtSOG, Bad_Text_Is_Zero)) Speed = *Typed;
        Show_Size(W.lblSOG, W.txtSOG, Speed);
    };
}

// Here the bar comes last, other than with the speed: where it moves, its tenth of a degree replaces what was
// typed. This order is required.
void txtCOG_LostFocus(float& Course, frmPosition& W) {
    constexpr float Last_deg = 359.9F;
    if (const auto Typed = Typed_Number(W.txtCOG, Bad_Text_Is_Zero)) {
        const bool In_Circle = *Typed >= 0 && static_cast<float>(*Typed) <= Last_deg;
        Course = In_Circle ? static_cast<float>(*Typed) : 0.0F;
        if (!In_Circle) W.txtCOG.Warn("A course is 0.0 to 359.9 degrees: others count as 0");
    }
    Show_Course(W, Course);
    W.scrCOG.Set_Value(static_cast<int>(std::nearbyint(Course * Bar_Steps)));
}

void Open_Course(float& Course, frmPosition& W) {
    // The ends of the bar are the wrap, not places to stand on.
    const int Circle = W.scrCOG.Max;
    W.scrCOG.Set_Value((Bar_Place(W.scrCOG, Course, Bar_Steps) + Circle) % Circle);
    Show_Course(W, Course);
    W.scrCOG.Change = [&] {
        if (Wrap_Direction_Bar(W.scrCOG)) return;
        Course = Bar_Value(W.scrCOG);
        Show_Course(W, Course);
    };
    W.txtCOG.Lost_Focus = [&] { txtCOG_LostFocus(Course, W); };
}

void Use_Arrows(frmPosition& W, bool On) {
    W.txtDummy.Visible = On; // catches the keyboard
    W.lblArrows.Visible = On;
    W.Key_Preview = On;
    // Off again, the caption differs from the first one by a word, which is required.
    W.cmdArrows.Caption =
        std::string(On ? "SOG/COG controlled by Arrow keys" : "Control SOG/COG by Arrow keys");
    W.cmdArrows.Enabled = !On;
}

// True when Key_Code is one of the four arrows.
bool frmPosition_KeyDown(frmPosition& W, int Key_Code) {
    Scroll_Bar& SOG = W.scrSOG;
    Scroll_Bar& COG = W.scrCOG;
    switch (Key_Code) {
    case key::Left: COG.Set_Value(COG.Value() - 1); return true;
    case key::Right: COG.Set_Value(COG.Value() + 1); return true;
    case key::Up:
        if (SOG.Value() < SOG.Min) SOG.Set_Value(SOG.Value() + 1);
        return true;
    case key::Down:
        if (SOG.Value() >= 1) SOG.Set_Value(SOG.Value() - 1);
        return true;
    default: return false;
    }
}

void Open_Arrows(Simulator& Sim, frmPosition& W) {
    W.cmdArrows.Click = [&] {
        Use_Arrows(W, true);
        Sim.Windows.Set_Focus(&W.txtDummy);
    };
    W.txtDummy.Lost_Focus = [&] { Use_Arrows(W, false); };
    W.On_Key_Down = [&W](int Key_Code, Key_Modifiers) { return frmPosition_KeyDown(W, Key_Code); };
}

// Paused, or not moving yet.
void Allow_Typing(frmPosition& W, bool Allowed) { W.txtLat.Enabled = W.txtLon.Enabled = Allowed; }

// The caption stays: it becomes "Continue" by a pause and "START" again by another position.
void cmdStart_Click(frmPosition& W) {
    W.cmdPause.Enabled = true;
    Allow_Typing(W, false);
    W.timer_Simulator.Set_Interval(Simulator_Period_ms);
    Start_Sentences(W.Sentences);
}

void cmdPause_Click(frmPosition& W) {
    Allow_Typing(W, true);
    W.cmdStart.Caption = std::string("Continue");
    W.timer_Simulator.Set_Interval(0);
    Pause_Sentences(W.Sentences);
}

} // namespace

void Open_Motion(Simulator& Sim, frmPosition& W) {
    GNSS_State& S = Sim.State.Of<GNSS_State>();
    Open_Position(Sim, W);
    Open_Noise(S, W);
    Open_Speed(S.GNSS_SOG[W.Instance], W);
    Open_Course(S.GNSS_COG[W.Instance], W);
    Open_Arrows(Sim, W);
    W.cmdStart.Click = [&] { cmdStart_Click(W); };
    W.cmdPause.Click = [&] { cmdPause_Click(W); };
}

} // namespace brinewright
