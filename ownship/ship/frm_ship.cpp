#include "ownship/ship/frm_ship.hpp"

#include "gnss/gnss_state.hpp"
#include "ownship/geodesy/angles.hpp"
#include "ownship/geodesy/finite.hpp"
#include "ownship/geodesy/latin1.hpp"
#include "ownship/geodesy/position_text.hpp"
#include "ownship/navdata_state.hpp"
#include "ownship/ship/joystick.hpp"
#include "ownship/ship/set_drift.hpp"
#include "ownship/ship/ship_motion.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "sensors/log/log_state.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/kit/shown_number.hpp"
#include "shell/kit/typed_number.hpp"
#include "shell/kit/value_bars.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"
#include "shell/state/windows.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace brinewright {

namespace {

constexpr float Form_Height = 5700, Form_Width = 7212; // twentieths of a point
constexpr double Step_ms = 1000;
constexpr int Throttle_Steps = 100; // percent
constexpr int Rudder_Steps = 10;    // of the slider, to a degree per minute
constexpr int Heading_Step_deg = 15, Last_Heading_deg = 345;
constexpr int Last_Noise_Choice = 10;
constexpr int Noise_Steps = 10; // of a knot or of a degree

std::string In_Degrees(auto Value, std::string_view Pattern = "000.0#") {
    return Format_Dot(Value, Pattern) + " deg";
}

std::string In_Knots(float Value, std::string_view Pattern = "0.0") {
    return Format_Dot(Value, Pattern) + " knot";
}

void Show_Throttle(frmShip& W) {
    const int Place = W.sldThrottle.Value();
    const char* Way = Place < 0 ? " ahead" : Place > 0 ? " astern" : "";
    W.lblThrottle.Caption = Format_Dot(std::abs(Place), "0 %") + Way;
}

// Degrees per minute: to port red, to starboard green.
void Show_ROT(frmShip& W, float ROT, std::string_view Pattern) {
    W.lblRudder.Caption = Format_Dot(std::abs(ROT), Pattern);
    W.lblRudder.Fore_Colour = ROT < 0 ? Ink::Red : ROT > 0 ? Ink::Green : Ink::Black;
}

// Without running the handlers: else the heading would be rounded to a tenth of a degree each second, and a
// slow turn would never turn the ship.
void Show_Heading(frmShip& W, std::string Text) {
    W.HDG_Changing = true;
    W.cmbHDG.Set_Text(std::move(Text));
    W.HDG_Changing = false;
}

// Of one of the two positions.
void Show_Position(const Simulator_State& S, frmShip& W, int I, double Lat, double Lon) {
    const std::int16_t Form = S.Of<Shell_State>().LatLon_Format;
    W.lblLat[I].Caption = Position_Text(Form, Lat, "LAT");
    W.lblLon[I].Caption = Position_Text(Form, Lon, "LON");
}

struct Latch {
    Button frmShip::*Key;
    Label frmShip::*Lamp;
    const char* Caption; // while it is off
    bool Shell_State::*Active;
};
constexpr Latch Latches[] = {
    {&frmShip::cmdFreeze, &frmShip::lblFreeze, "FREEZE", &Shell_State::Freeze_Active},
    {&frmShip::cmdPause, &frmShip::lblPause, "TX PAUSE", &Shell_State::Pause_Active}};

void Show_Latch(const Simulator_State& S, frmShip& W, const Latch& L) {
    (W.*L.Key).Caption = std::string(S->*L.Active ? "continue" : L.Caption);
    (W.*L.Lamp).Visible = S->*L.Active;
}

void sldThrottle_Change(Navdata_State& N, frmShip& W) {
    const int Place = W.sldThrottle.Value();
    const double Most_kn = Place < 0 ? N.Max_Speed_Ahead : N.Max_Speed_Astern;
    N.Nav_SOG = Place == 0 ? 0.0F : Record_Number(-Most_kn * Place / Throttle_Steps);
    Show_Throttle(W);
    Show_SOG(W, N.Nav_SOG, "0.0");
}

void sldRudder_Change(Navdata_State& N, frmShip& W) {
    N.Nav_Rudder = static_cast<float>(W.sldRudder.Value()) / Rudder_Steps;
    Show_ROT(W, N.Nav_Rudder, "0.0");
}

// The labels are written here too: a slider that stands at 0 already does not run its handler, and the ship
// may still have the little speed or rate for which the slider stands there.
void cmdZeroRudder_Click(Navdata_State& N, frmShip& W) {
    W.sldRudder.Set_Value(0);
    N.Nav_Rudder = 0;
    Show_ROT(W, 0, "0.0");
}

void cmdZero_Click(Navdata_State& N, frmShip& W) {
    W.sldThrottle.Set_Value(0);
    N.Nav_SOG = 0;
    Show_SOG(W, 0, "0.0");
    cmdZeroRudder_Click(N, W);
}

void cmbHDG_Change(Navdata_State& N, frmShip& W) {
    if (W.HDG_Changing) return;
    const std::string& Typed = W.cmbHDG.Text();
    const double Typed_deg = Val_Dot(Typed);
    // On the way to a number, or no way to one, which is said when the list is left.
    if (!Starts_With_Number(Typed) || Beyond_Any_Instrument(Typed_deg)) return;
    if (Typed_deg < 0 || Typed_deg > 360) W.cmbHDG.Warn("A heading is 0 to 360 degrees: others become the end that is nearer");
    if (Typed_deg > 360) Show_Heading(W, "360");
    if (Typed_deg < 0) Show_Heading(W, "000");
    N.Nav_HDG = std::clamp(Typed_deg, 0.0, 360.0);
}

void cmbHDG_LostFocus(const Navdata_State& N, frmShip& W) {
    if (!Typed_Number(W.cmbHDG)) Show_Heading(W, Format_Dot(N.Nav_HDG, "000.0"));
}

// A stored index that the list does not have, as a setup file may hold, is no noise.
void Wire_Noise(Combo_Box& List, const std::string& Unit, float& Amplitude, float& Stored_Index) {
    for (int I = 0; I <= Last_Noise_Choice; ++I)
        List.Add_Item(Format_Dot(static_cast<float>(I) / Noise_Steps, "0.0") + Unit);
    List.Click = [&] {
        Amplitude = Number_Shown(List.Text());
        Stored_Index = static_cast<float>(List.List_Index());
    };
    const bool Has_It = Stored_Index >= 0 && Stored_Index <= Last_Noise_Choice;
    List.Set_List_Index(Has_It ? static_cast<int>(std::nearbyint(Stored_Index)) : 0);
}

void Wire_Controls(Simulator& Sim, frmShip& W) {
    Simulator_State& S = Sim.State;
    Navdata_State& N = S.Of<Navdata_State>();
    W.sldThrottle.Change = [&] { sldThrottle_Change(N, W); };
    W.sldRudder.Change = [&] { sldRudder_Change(N, W); };
    W.cmdZero.Click = [&] { cmdZero_Click(N, W); };
    W.cmdZeroRudder.Click = [&] { cmdZeroRudder_Click(N, W); };
    W.cmbHDG.Free_Text = true;
    for (int Heading_deg = 0; Heading_deg <= Last_Heading_deg; Heading_deg += Heading_Step_deg)
        W.cmbHDG.Add_Item(std::to_string(Heading_deg));
    W.cmbHDG.Change = W.cmbHDG.Click = [&] { cmbHDG_Change(N, W); };
    W.cmbHDG.Lost_Focus = [&] { cmbHDG_LostFocus(N, W); };
    Wire_Noise(W.cmbSOGNoise, " kt", W.SOG_Noise_Amplitude, N.Ship_SOG_Noise_Index);
    Wire_Noise(W.cmbROTNoise, {' ', Degree_Sign}, W.ROT_Noise_Amplitude, N.Ship_ROT_Noise_Index);
    W.cmdSetSOG.Click = [&] { Open_Window(Sim, "frmSetSOG"); };
    for (const Latch& L : Latches)
        (W.*L.Key).Click = [&] {
            S->*L.Active = !(S->*L.Active);
            Show_Latch(S, W, L);
        };
}

// The sliders are set with their handlers at work, as required: the ship takes the whole percent and the
// tenth of a degree per minute that they show, within the limits. A slider that stands at 0 already does not
// move, so the labels are written here too. The heading shown is the course, as required.
void Show_State(const Simulator_State& S, frmShip& W) {
    const Navdata_State& N = S.Of<Navdata_State>();
    Show_Heading(W, Format_Dot(N.Nav_COG, "000.0"));
    Show_Throttle(W);
    Show_SOG(W, N.Nav_SOG, "0.0");
    Show_ROT(W, N.Nav_Rudder, "0.0");
    Show_Position(S, W, 0, N.Nav_Lat, N.Nav_Lon);
    W.lblGyro[0].Caption = In_Degrees(Add_Degrees(N.Nav_HDG, S.Of<Gyro_State>().Gyro_Offset[1]));
    W.sldThrottle.Set_Value(Throttle_Place(S, W));
    W.sldRudder.Set_Value(Bar_Place(W.sldRudder, N.Nav_Rudder, Rudder_Steps));
}

// The set value, with the noise of this second when there is one: uniform within +-Amplitude. Without, the
// first choice, the labels stay as the sliders wrote them.
float Value_Of_Step(Simulator& Sim, const Combo_Box& Noise, float Set_Value, float Amplitude,
                    const auto& Show) {
    if (Noise.List_Index() < 1) return Set_Value;
    const double A = Amplitude;
    const float Value =
        Record_Number(static_cast<double>(Set_Value) - A + 2 * A * Sim.Services.Random.Draw());
    Show(Value);
    return Value;
}

void Show_Motion(Simulator_State& S, frmShip& W) {
    const Navdata_State& N = S.Of<Navdata_State>();
    const GNSS_State& GNSS = S.Of<GNSS_State>();
    for (int I = 1; I <= 2; ++I) {
        Show_Position(S, W, I - 1, GNSS.GNSS_Lat[I], GNSS.GNSS_Lon[I]);
        W.lblGyro[I - 1].Caption = In_Degrees(S.Of<Gyro_State>().Gyro_HDG[I]);
        W.lblLog[I - 1].Caption = In_Knots(S.Of<Log_State>().Log_Speed[I]);
    }
    W.lblCOG.Caption = In_Degrees(N.Nav_COG);
    Show_Heading(W, Format_Dot(N.Nav_HDG, "000.0"));
    Compute_Set_Drift(S);
    W.lblSet.Caption = In_Degrees(N.Current_Set, "000.0");
    W.lblDrift.Caption = In_Knots(N.Current_Drift);
}

// One second of the ship, whatever the clock says: a late tick slows the ship.
void Timer1_Tick(Simulator& Sim, frmShip& W) {
    if (Sim.State.Of<Shell_State>().Freeze_Active) return;
    const Navdata_State& N = Sim.State.Of<Navdata_State>();
    const float ROT = Value_Of_Step(Sim, W.cmbROTNoise, N.Nav_Rudder, W.ROT_Noise_Amplitude,
                                    [&](float Noisy) { Show_ROT(W, Noisy, "0.00"); });
    const float SOG_kn = Value_Of_Step(Sim, W.cmbSOGNoise, N.Nav_SOG, W.SOG_Noise_Amplitude,
                                       [&](float Noisy) { Show_SOG(W, Noisy, "0.00"); });
    Move_Ship(Sim.State, SOG_kn, ROT);
    Feed_Sensors(Sim.State, SOG_kn, ROT);
    if (!W.GUI_Off) Show_Motion(Sim.State, W);
}

// The sensors open before the first step, and in a frozen ship there is none: they are not to report a ship
// at 0 N 0 E meanwhile. What they have from a frozen ship already stays.
void Feed_Before_First_Step(Simulator_State& S) {
    const Navdata_State& N = S.Of<Navdata_State>();
    const GNSS_State& GNSS = S.Of<GNSS_State>();
    const bool Fed = GNSS.GNSS_Lat[1] == N.Nav_Lat && GNSS.GNSS_Lon[1] == N.Nav_Lon;
    if (!S.Of<Shell_State>().Freeze_Active || !Fed) Feed_Sensors(S, N.Nav_SOG, N.Nav_Rudder);
}

// The window has this size only, whatever is asked for.
void Keep_Size(frmShip& W) {
    W.On_Resize = [&W] {
        if (W.Width != Form_Width || W.Height != Form_Height) W.Resize(Form_Width, Form_Height);
    };
    W.Resize(Form_Width, Form_Height);
}

void Form_Load(Simulator& Sim, Form& Opened) {
    auto& W = static_cast<frmShip&>(Opened);
    Simulator_State& S = Sim.State;
    Navdata_State& N = S.Of<Navdata_State>();
    Keep_Size(W);
    if (!S.Of<Shell_State>().Start_With_Last_Navdata) {
        N.Nav_Lat = N.Start_Lat;
        N.Nav_Lon = N.Start_Lon;
    }
    Normalise_Navdata(S);
    Show_Rudder_Range(S, W);
    Sim.Told.Ship_Limits.Add(W, [&] { Show_Rudder_Range(S, W); });
    Sim.Told.Ship_Speed.Add(W, [&] {
        W.sldThrottle.Set_Value(Throttle_Place(S, W));
        // A slider that stayed has not written it.
        Show_SOG(W, S.Of<Navdata_State>().Nav_SOG, "0.0");
    });
    Wire_Controls(Sim, W);
    Wire_Ship_Keyboard(Sim, W);
    Show_State(S, W);
    W.timerJoystick.Tick = [&] { timerJoystick_Tick(Sim, W); };
    Start_Joystick(Sim, W);
    Show_Freeze_And_Pause(S, W);
    Feed_Before_First_Step(S);
    // A pause ends with the only button that could end it.
    W.On_Unload = [&Sim] { Sim.State.Of<Shell_State>().Pause_Active = false; };
    W.Timer1.Tick = [&] { Timer1_Tick(Sim, W); };
    W.Timer1.Set_Interval(Step_ms);
}

bool In_Ship_Mode(const Simulator& Sim) { return Sim.State.Of<Shell_State>().Mode == "Ship"; }

} // namespace

// A setup file may hold anything; the slider gets an end that it can have, and one that is not negative, so
// that port stays on the left.
void Show_Rudder_Range(const Simulator_State& S, frmShip& W) {
    constexpr int Divisible_By = 15; // so that thirds of the range are multiples of five
    constexpr double Greatest_End = 1e6;
    const float Max_Rudder = S.Of<Navdata_State>().Max_Rudder;
    const double Most = Finite_Or_Zero(static_cast<double>(Max_Rudder));
    const int End = static_cast<int>(std::nearbyint(std::clamp(Most, 0.0, Greatest_End) * Rudder_Steps));
    W.sldRudder.Set_Range(-End, End);
    const bool Thirds = std::remainder(std::nearbyint(Most), Divisible_By) == 0;
    W.lblRudderTick[0].Caption = std::string("0");
    for (const int Side : {0, 3}) {
        for (const int Third : {1, 2})
            W.lblRudderTick[Side + Third].Caption =
                Thirds ? Format_Dot(static_cast<float>(Most * Third / 3), "") : std::string();
        W.lblRudderTick[Side + 3].Caption = Format_Dot(Max_Rudder, "");
    }
}

int Throttle_Place(const Simulator_State& S, const frmShip& W) {
    const Navdata_State& N = S.Of<Navdata_State>();
    const double SOG_kn = N.Nav_SOG;
    const double Most_kn = SOG_kn >= 0 ? N.Max_Speed_Ahead : N.Max_Speed_Astern;
    return Most_kn > 0 ? Bar_Place(W.sldThrottle, -SOG_kn / Most_kn, Throttle_Steps) : 0;
}

void Show_SOG(frmShip& W, float SOG_kn, std::string_view Pattern) {
    W.lblSOG.Caption = In_Knots(SOG_kn, Pattern);
}

void Show_Freeze_And_Pause(const Simulator_State& S, frmShip& W) {
    for (const Latch& L : Latches) Show_Latch(S, W, L);
}

const Window_Class Ship_Window{
    .Name = frmShip::Class_Name,
    .First_Form_Index = form_index::Ship,
    .Entry = {.Name = "mnuShip",
              .Menu = "Window",
              .Text = "Ship simulator",
              .Place = 1,
              .In_Ship_Mode_Only = true},
    .Caption = "Ship Simulator",
    .Make = Make_Single<frmShip>,
    .Load = Form_Load,
    .Lay_Out = Lay_Out_Ship,
    // It exists in Ship mode only, but a list of windows that was kept in Sensor mode can name it.
    .May_Open = In_Ship_Mode};

frmShip::frmShip(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Child) {
    Tag = "0"; // that marks it in the list of open windows
}

} // namespace brinewright
