#include "ownship/ship/frm_ship.hpp"

#include "gnss/gnss_state.hpp"
#include "ownship/geodesy/angles.hpp"
#include "ownship/geodesy/latin1.hpp"
#include "ownship/geodesy/position_text.hpp"
#include "ownship/navdata_state.hpp"
#include "ownship/ship/joystick.hpp"
#include "ownship/ship/ship_controls.hpp"
#include "ownship/ship/ship_keyboard.hpp"
#include "ownship/ship/ship_motion.hpp"
#include "ownship/ship/ship_step.hpp"
#include "ownship/ship/ship_tips.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/kit/control_text.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

#include <cmath>

namespace brinewright {

namespace {

constexpr const char* Form_Tag = "0";                  // that marks it in the list of open windows
constexpr float Form_Height = 5700, Form_Width = 7212; // twentieths of a point
constexpr double Step_ms = 1000;
constexpr int Heading_Step_deg = 15, Last_Heading_deg = 345;
constexpr int Last_Noise_Choice = 10;
constexpr int Noise_Steps = 10; // of a knot or of a degree

constexpr const char* Joystick_Texts[] = {"Button 1 - All stop",    "Button 2 - Rudder 0",
                                          "Button 3 - Full port",   "Button 4 - Full starboard",
                                          "Button 5 - Full astern", "Button 6 - Full ahead"};

// The window has this size only, whatever is asked for.
void Keep_Size(frmShip& W) {
    W.On_Resize = [&W] {
        if (W.Width != Form_Width || W.Height != Form_Height) W.Resize(Form_Width, Form_Height);
    };
    W.Resize(Form_Width, Form_Height);
}

// A stored index that the list does not have, as a setup file may hold, is no noise.
int Noise_Choice(float Stored_Index) {
    return Stored_Index >= 0 && Stored_Index <= Last_Noise_Choice
               ? static_cast<int>(std::nearbyint(Stored_Index))
               : 0;
}

void Fill_Lists(const Simulator_State& S, frmShip& W) {
    W.cmbHDG.Free_Text = true;
    for (int Heading_deg = 0; Heading_deg <= Last_Heading_deg; Heading_deg += Heading_Step_deg)
        W.cmbHDG.Add_Item(std::to_string(Heading_deg));
    Show_Heading(W, S.Of<Navdata_State>().Nav_COG); // the course and not the heading, as required
    for (int I = 0; I <= Last_Noise_Choice; ++I) {
        const std::string Number = Format_Dot(static_cast<float>(I) / Noise_Steps, "0.0");
        W.cmbSOGNoise.Add_Item(Number + " kt");
        W.cmbROTNoise.Add_Item(Number + " " + Degree_Sign);
    }
    W.cmbSOGNoise.Set_List_Index(Noise_Choice(S.Of<Navdata_State>().Ship_SOG_Noise_Index));
    W.cmbROTNoise.Set_List_Index(Noise_Choice(S.Of<Navdata_State>().Ship_ROT_Noise_Index));
}

// The sliders are set with their handlers at work, as required: the ship takes the whole percent and the
// tenth of a degree per minute that they show, within the limits. A slider that stands at 0 already does not
// move, so the labels are written here too.
void Show_State(const Simulator_State& S, frmShip& W) {
    Show_Throttle(W);
    Show_SOG(W, S.Of<Navdata_State>().Nav_SOG, "0.0");
    Show_ROT(W, S.Of<Navdata_State>().Nav_Rudder, "0.0");
    W.lblLat[0].Caption =
        Position_Text(S.Of<Shell_State>().LatLon_Format, S.Of<Navdata_State>().Nav_Lat, "LAT");
    W.lblLon[0].Caption =
        Position_Text(S.Of<Shell_State>().LatLon_Format, S.Of<Navdata_State>().Nav_Lon, "LON");
    W.lblGyro[0].Caption =
        Format_Dot(Add_Degrees(S.Of<Navdata_State>().Nav_HDG, S.Of<Gyro_State>().Gyro_Offset[1]), "000.0#") +
        " deg";
    W.sldThrottle.Set_Value(Throttle_Place(S, W));
    W.sldRudder.Set_Value(Bar_Place(W.sldRudder, S.Of<Navdata_State>().Nav_Rudder, Rudder_Steps));
}

// The sensors open before the first step, and in a frozen ship there is none: they are not to report a ship
// at 0 N 0 E meanwhile. What they have from a frozen ship already stays.
void Feed_Before_First_Step(Simulator_State& S) {
    const bool Fed = S.Of<GNSS_State>().GNSS_Lat[1] == S.Of<Navdata_State>().Nav_Lat &&
                     S.Of<GNSS_State>().GNSS_Lon[1] == S.Of<Navdata_State>().Nav_Lon;
    if (!S.Of<Shell_State>().Freeze_Active || !Fed)
        Feed_Sensors(S, S.Of<Navdata_State>().Nav_SOG, S.Of<Navdata_State>().Nav_Rudder);
}

void frmShip_Load(Simulator& Sim, Form& Opened) {
    auto& W = static_cast<frmShip&>(Opened);
    Simulator_State& S = Sim.State;
    Keep_Size(W);
    if (!S.Of<Shell_State>().Start_With_Last_Navdata) {
        S.Of<Navdata_State>().Nav_Lat = S.Of<Navdata_State>().Start_Lat;
        S.Of<Navdata_State>().Nav_Lon = S.Of<Navdata_State>().Start_Lon;
    }
    Normalise_Navdata(S);
    Show_Rudder_Range(S, W);
    Wire_Ship_Controls(Sim, W);
    Wire_Ship_Keyboard(Sim, W);
    Fill_Lists(S, W);
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
    .Load = frmShip_Load,
    .Lay_Out = Lay_Out_Ship,
    // It exists in Ship mode only, but a list of windows that was kept in Sensor mode can name it.
    .May_Open = In_Ship_Mode};

frmShip::frmShip(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Child) {
    Tag = Form_Tag;
    for (const auto& Text : lblJoystickButton) Text->Caption = std::string(Joystick_Texts[Text->Index]);
    Set_Tool_Tips(*this);
}

} // namespace brinewright
