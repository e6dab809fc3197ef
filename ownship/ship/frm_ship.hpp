#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/state/window_class.hpp"

#include <string_view>

namespace brinewright {

struct Simulator;
struct Simulator_State;

// Its opening: unless the simulator starts with the last navdata the ship goes to its start position. Speed,
// heading and rate of turn stay what they are.
extern const Window_Class Ship_Window;

// The own ship of Ship mode: throttle and rate of turn, and what the ship does with them. Exists once; its
// Tag, which marks it among the open windows of the setup file, is 0.
struct frmShip : Form {
    static constexpr const char* Class_Name = "frmShip";

    explicit frmShip(Desktop& Windows);

    float ROT_Noise_Amplitude = 0; // degrees per minute
    float SOG_Noise_Amplitude = 0; // knots
    bool GUI_Off = false;          // the labels of position and speed are left as they are
    bool HDG_Changing = false;     // cmbHDG is being written by the program and not by the user

    // The slider counts in percent; Min, full ahead, is at the top.
    Frame frameThrottle{*this, "frameThrottle", "Throttle", "Speed of the ship, percent of its limit"};
    Label lblAhead{frameThrottle, "lblAhead", "AHEAD",
                   "100 % ahead, the greatest speed of the ship setup in knots"};
    Slider sldThrottle{frameThrottle,
                       "sldThrottle",
                       -100,
                       100,
                       25,
                       "Speed, 100 % ahead to 100 % astern of the limits in the ship setup; at once"};
    Label lblAstern{frameThrottle, "lblAstern", "ASTERN",
                    "100 % astern, the greatest speed of the ship setup in knots"};
    Label lblThrottle{frameThrottle, "lblThrottle", "", "Where the throttle stands, 0 to 100 %"};
    Button cmdZero{*this, "cmdZero", "ALL STOP", "Speed 0 knots and rate of turn 0 deg/min"};

    // The slider counts in tenths of a degree per minute; Min, port, is on the left.
    Frame frameRudder{*this, "frameRudder", "Rate of turn", "Rate of turn, degrees per minute"};
    Slider sldRudder{
        frameRudder,
        "sldRudder",
        -300,
        300,
        50,
        "Rate of turn in steps of 0.1 deg/min up to the limit of the ship setup, port to starboard"};
    // 0 in the middle; 1 to 3 outwards to one side, 4 to 6 to the other.
    Control_Array<Label, 0, 6> lblRudderTick{frameRudder, "lblRudderTick", "",
                                             "Scale of the rate of turn, deg/min"};
    Label lblRudder{frameRudder, "lblRudder", "",
                    "Rate of turn, deg/min: red to port, green to starboard; with its noise"};
    Label lblRudderUnit{frameRudder, "lblRudderUnit", "deg/min", "Unit of the rate of turn"};
    Button cmdZeroRudder{frameRudder, "cmdZeroRudder", "Set to Zero", "Rate of turn 0 deg/min"};

    Label lblSOGNoise{*this, "lblSOGNoise", "Add Noise +/-",
                      "Random change of the speed each second, 0.0 to 1.0 kt"};
    Combo_Box cmbSOGNoise{*this, "cmbSOGNoise", "",
                          "Random change of the speed each second, 0.0 to 1.0 kt; the logs do not see it"};
    Label lblROTNoise{*this, "lblROTNoise", "Add Noise +/-",
                      "Random change of the rate of turn each second, 0.0 to 1.0 deg/min"};
    Combo_Box cmbROTNoise{*this, "cmbROTNoise", "",
                          "Random change of the rate of turn each second, 0.0 to 1.0 deg/min"};

    Label lblHDG{*this, "lblHDG", "Heading", "Heading, 0 to 360 degrees true"};
    Combo_Box cmbHDG{*this, "cmbHDG", "",
                     "Heading, 0 to 360 degrees true; choose or type another, which takes effect at once"};
    Button cmdSetSOG{*this, "cmdSetSOG", "Set SOG/COG", "Speed in knots and heading in degrees by number"};

    // The lines of frameArrows and of frameJoystick stand in the window: automation lists them as visible
    // whichever of the two is shown.
    static constexpr const char* Arrows_Tip =
        "Arrow and page keys, 0.1 deg/min and 1 % a step, until another control is chosen";
    Button cmdArrows{*this, "cmdArrows", "Control by keyboard", Arrows_Tip};
    Label lblArrows{*this, "lblArrows", "Control by Arrow keys", Arrows_Tip};
    Text_Box txtDummy{*this, "txtDummy", "Invisible Dummy", Arrows_Tip}; // catches the keyboard
    Frame frameArrows{*this, "frameArrows", "Arrows Keys", Arrows_Tip};
    Label lblArrowsStep{*this, "lblArrowsStep", "arrow    : Step by 0.1",
                        "One step: 0.1 deg/min or 1 %; page keys 10 %"};
    Label lblArrowsShift{*this, "lblArrowsShift", "shift+arrow:Step by 1", "Ten steps: 1 deg/min or 10 %"};
    Label lblArrowsAlt{*this, "lblArrowsAlt", "alt  +arrow : Set to 0", "0 deg/min or 0 %"};
    Label lblArrowsCtrl{*this, "lblArrowsCtrl", "ctrl  +arrow : Max",
                        "The end of the range, in deg/min or 100 %"};

    // In the place of frameArrows while there is a game controller.
    Frame frameJoystick{*this, "frameJoystick", "Joystick",
                        "The stick steps ten times a second, by 0.1 or 1 deg/min and by 1 or 10 %"};
    static constexpr const char* Buttons_Tip = "Buttons 1 to 6 of the game controller";
    Control_Array<Label, 0, 5> lblJoystickButton{*this,
                                                 "lblJoystickButton",
                                                 {{"Button 1 - All stop", Buttons_Tip},
                                                  {"Button 2 - Rudder 0", Buttons_Tip},
                                                  {"Button 3 - Full port", Buttons_Tip},
                                                  {"Button 4 - Full starboard", Buttons_Tip},
                                                  {"Button 5 - Full astern", Buttons_Tip},
                                                  {"Button 6 - Full ahead", Buttons_Tip}}};
    Label lblJoystick{*this, "lblJoystick", "No Joystick   detected",
                      "A game controller, axes 0 to 65535, is looked for when this window opens"};

    static constexpr const char* Freeze_Tip =
        "Stops ship and targets; the sentences go on with unchanged values";
    Button cmdFreeze{*this, "cmdFreeze", "FREEZE", Freeze_Tip};
    Label lblFreeze{*this, "lblFreeze", "FREEZED", Freeze_Tip};
    static constexpr const char* Pause_Tip = "Stops all output; the ship goes on";
    Button cmdPause{*this, "cmdPause", "TX PAUSE", Pause_Tip};
    Label lblPause{*this, "lblPause", "TX PAUSED", Pause_Tip};

    Label lblPos1{*this, "lblPos1", "Pos 1", "Position of GNSS 1, degrees"};
    Label lblPos2{*this, "lblPos2", "Pos 2", "Position of GNSS 2, degrees"};
    Control_Array<Label, 0, 1> lblLat{*this, "lblLat", "", "Latitude of this sensor, 90 S to 90 N"};
    Control_Array<Label, 0, 1> lblLon{*this, "lblLon", "", "Longitude of this sensor, 180 W to 180 E"};
    Label lblGyro1{*this, "lblGyro1", "Gyro 1", "Heading of gyro 1, degrees"};
    Label lblGyro2{*this, "lblGyro2", "Gyro 2", "Heading of gyro 2, degrees"};
    Control_Array<Label, 0, 1> lblGyro{*this, "lblGyro", "",
                                       "Heading of this gyro with its offset, 0 to 360 degrees"};
    Label lblLog1{*this, "lblLog1", "Log 1", "Speed of log 1, knots"};
    Label lblLog2{*this, "lblLog2", "Log 2", "Speed of log 2, knots"};
    Control_Array<Label, 0, 1> lblLog{*this, "lblLog", "", "Speed of this log with its offset, knots"};
    Label lblSOGTitle{*this, "lblSOGTitle", "SOG", "Speed over ground, knots"};
    Label lblSOG{*this, "lblSOG", "", "Speed over ground, knots, negative astern; with its noise"};
    Label lblCOGTitle{*this, "lblCOGTitle", "COG", "Course over ground, 0 to 360 degrees"};
    Label lblCOG{*this, "lblCOG", "", "Course over ground, 0 to 360 degrees"};
    Frame frameCurrent{*this, "frameCurrent", "Current relative Log 1 and Gyro 1",
                       "What speed and course over ground differ by from log 1 and gyro 1"};
    Label lblSetTitle{frameCurrent, "lblSetTitle", "Set", "Where the current sets to, 0 to 360 degrees"};
    Label lblSet{frameCurrent, "lblSet", "", "Where the current sets to, 0 to 360 degrees"};
    Label lblDriftTitle{frameCurrent, "lblDriftTitle", "Drift", "Speed of the current, knots"};
    Label lblDrift{frameCurrent, "lblDrift", "", "Speed of the current, knots"};

    Timer Timer1{*this, "Timer1"}; // the motion step
    Timer timerJoystick{*this, "timerJoystick"};
};

// The range of the rate of turn, +-Max_Rudder, and its scale. A rate outside it is brought back into it.
void Show_Rudder_Range(const Simulator_State& S, frmShip& W);

// Where sldThrottle stands for Nav_SOG: -100 full ahead to 100 full astern, 0 where the ship can't go that
// way.
int Throttle_Place(const Simulator_State& S, const frmShip& W);

void Show_SOG(frmShip& W, float SOG_kn, std::string_view Pattern);
void Show_Freeze_And_Pause(const Simulator_State& S, frmShip& W);

// Throttle and rate of turn by the arrow and page keys, from cmdArrows until txtDummy loses the focus.
void Wire_Ship_Keyboard(Simulator& Sim, frmShip& W);

Layout Lay_Out_Ship(Simulator& Sim, Form& Shown);

} // namespace brinewright
