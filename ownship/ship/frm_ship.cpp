#include "ownship/ship/frm_ship.hpp"

#include "ownship/angles.hpp"
#include "ownship/latin1.hpp"
#include "ownship/position_text.hpp"
#include "ownship/ship/joystick.hpp"
#include "ownship/ship/ship_controls.hpp"
#include "ownship/ship/ship_keyboard.hpp"
#include "ownship/ship/ship_motion.hpp"
#include "ownship/ship/ship_step.hpp"
#include "ownship/ship/ship_tips.hpp"
#include "sentences/number_pattern.hpp"
#include "shell/control_text.hpp"
#include "shell/form_position.hpp"
#include "shell/frm_main.hpp"
#include "shell/simulator.hpp"

#include <cmath>

namespace brinewright {

namespace {

constexpr const char* Form_Tag = "0"; // that marks it in the list of open windows
constexpr std::int16_t Form_Index = 0;
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
    Show_Heading(W, S.Nav_COG); // the course and not the heading, as required
    for (int I = 0; I <= Last_Noise_Choice; ++I) {
        const std::string Number = Format_Dot(static_cast<float>(I) / Noise_Steps, "0.0");
        W.cmbSOGNoise.Add_Item(Number + " kt");
        W.cmbROTNoise.Add_Item(Number + " " + Degree_Sign);
    }
    W.cmbSOGNoise.Set_List_Index(Noise_Choice(S.Ship_SOG_Noise_Index));
    W.cmbROTNoise.Set_List_Index(Noise_Choice(S.Ship_ROT_Noise_Index));
}

// The sliders are set with their handlers at work, as required: the ship takes the whole percent and the
// tenth of a degree per minute that they show, within the limits. A slider that stands at 0 already does not
// move, so the labels are written here too.
void Show_State(const Simulator_State& S, frmShip& W) {
    Show_Throttle(W);
    Show_SOG(W, S.Nav_SOG, "0.0");
    Show_ROT(W, S.Nav_Rudder, "0.0");
    W.lblLat[0].Caption = Position_Text(S.LatLon_Format, S.Nav_Lat, "LAT");
    W.lblLon[0].Caption = Position_Text(S.LatLon_Format, S.Nav_Lon, "LON");
    W.lblGyro[0].Caption = Format_Dot(Add_Degrees(S.Nav_HDG, S.Gyro_Offset[1]), "000.0#") + " deg";
    W.sldThrottle.Set_Value(Throttle_Place(S, W));
    W.sldRudder.Set_Value(Bar_Place(W.sldRudder, S.Nav_Rudder, Rudder_Steps));
}

// The sensors open before the first step, and in a frozen ship there is none: they are not to report a ship
// at 0 N 0 E meanwhile. What they have from a frozen ship already stays.
void Feed_Before_First_Step(Simulator_State& S) {
    const bool Fed = S.GNSS_Lat[1] == S.Nav_Lat && S.GNSS_Lon[1] == S.Nav_Lon;
    if (!S.Freeze_Active || !Fed) Feed_Sensors(S, S.Nav_SOG, S.Nav_Rudder);
}

void frmShip_Load(Simulator& Sim, frmShip& W) {
    Simulator_State& S = Sim.State;
    Keep_Size(W);
    if (!S.Start_With_Last_Navdata) {
        S.Nav_Lat = S.Start_Lat;
        S.Nav_Lon = S.Start_Lon;
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
    W.Timer1.Tick = [&] { Timer1_Tick(Sim, W); };
    W.Timer1.Set_Interval(Step_ms);
}

// A pause ends with the only button that could end it. Keeping the place comes last, since it fails when the
// list of places is full.
void frmShip_Unload(Simulator& Sim, const frmShip& W) {
    const auto Kept_Alive = W.shared_from_this();
    if (Sim.Main) Sim.Main->mnuShip.Checked = false;
    Sim.Ship.reset();
    Sim.State.Pause_Active = false;
    Save_Form_Position(Sim, W);
}

} // namespace

frmShip::frmShip(Desktop& Its_Windows) : Form(Its_Windows, "frmShip", 0, Form_Kind::Child) {
    Tag = Form_Tag;
    for (const auto& Text : lblJoystickButton) Text->Caption = std::string(Joystick_Texts[Text->Index]);
    Set_Tool_Tips(*this);
}

std::shared_ptr<frmShip> Load_frmShip(Simulator& Sim) {
    auto Made = std::make_shared<frmShip>(Sim.Windows);
    frmShip_Load(Sim, *Made);
    Made->On_Unload = [&Sim, &W = *Made] { frmShip_Unload(Sim, W); };
    Sim.Ship = Made;
    return Made;
}

void mnuShip_Click(Simulator& Sim) {
    // It exists in Ship mode only, but a list of windows that was kept in Sensor mode can name it.
    if (Sim.State.Mode != "Ship") return;
    if (Sim.Ship) return Sim.Windows.Activate(*Sim.Ship);
    Sim.Main->mnuShip.Checked = true;
    const std::shared_ptr<frmShip> Window = Load_frmShip(Sim);
    if (Sim.State.Open_Form_Count != 0) Restore_Form_Position(Sim, *Window, Form_Index);
    Window->Set_Caption("Ship Simulator");
    Sim.Windows.Show(Window);
}

} // namespace brinewright
