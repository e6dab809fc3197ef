#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

struct Simulator;

// The own ship of Ship mode: throttle and rate of turn, and what the ship does with them. Exists once; its
// Tag, which marks it among the open windows of the setup file, is 0.
struct frmShip : Form {
    static constexpr const char* Class_Name = "frmShip";

    explicit frmShip(Desktop& Windows);

    float ROT_Noise_Amplitude = 0; // degrees per minute
    float SOG_Noise_Amplitude = 0; // knots
    bool GUI_Off = false;          // the labels of position and speed are left as they are
    bool HDG_Changing = false;     // cmbHDG is being written by the program and not by the user

    Frame frameThrottle{*this, "frameThrottle", "Throttle"};
    Label lblAhead{*this, "lblAhead", "AHEAD"};
    Slider sldThrottle{*this, "sldThrottle", -100, 100, 25}; // percent; Min, full ahead, at the top
    Label lblAstern{*this, "lblAstern", "ASTERN"};
    Label lblThrottle{*this, "lblThrottle"};
    Button cmdZero{*this, "cmdZero", "ALL STOP"};

    Frame frameRudder{*this, "frameRudder", "Rate of turn"};
    Slider sldRudder{*this, "sldRudder", -300, 300, 50}; // tenths of a degree per minute; Min, port, left
    // 0 in the middle; 1 to 3 outwards to one side, 4 to 6 to the other.
    Control_Array<Label, 0, 6> lblRudderTick{*this, "lblRudderTick", ""};
    Label lblRudder{*this, "lblRudder"};
    Label lblRudderUnit{*this, "lblRudderUnit", "deg/min"};
    Button cmdZeroRudder{*this, "cmdZeroRudder", "Set to Zero"};

    Label lblSOGNoise{*this, "lblSOGNoise", "Add Noise +/-"};
    Combo_Box cmbSOGNoise{*this, "cmbSOGNoise"};
    Label lblROTNoise{*this, "lblROTNoise", "Add Noise +/-"};
    Combo_Box cmbROTNoise{*this, "cmbROTNoise"};

    Label lblHDG{*this, "lblHDG", "Heading"};
    Combo_Box cmbHDG{*this, "cmbHDG"}; // degrees; may be typed
    Button cmdSetSOG{*this, "cmdSetSOG", "Set SOG/COG"};

    Button cmdArrows{*this, "cmdArrows", "Control by keyboard"};
    Label lblArrows{*this, "lblArrows", "Control by Arrow keys"};
    Text_Box txtDummy{*this, "txtDummy", "Invisible Dummy"}; // catches the keyboard
    Frame frameArrows{*this, "frameArrows", "Arrows Keys"};
    Label lblArrowsStep{*this, "lblArrowsStep", "arrow    : Step by 0.1"};
    Label lblArrowsShift{*this, "lblArrowsShift", "shift+arrow:Step by 1"};
    Label lblArrowsAlt{*this, "lblArrowsAlt", "alt  +arrow : Set to 0"};
    Label lblArrowsCtrl{*this, "lblArrowsCtrl", "ctrl  +arrow : Max"};

    // In the place of frameArrows while there is a game controller.
    Frame frameJoystick{*this, "frameJoystick", "Joystick"};
    Control_Array<Label, 0, 5> lblJoystickButton{*this, "lblJoystickButton", ""};
    Label lblJoystick{*this, "lblJoystick", "No Joystick   detected"};

    Button cmdFreeze{*this, "cmdFreeze", "FREEZE"};
    Label lblFreeze{*this, "lblFreeze", "FREEZED"};
    Button cmdPause{*this, "cmdPause", "TX PAUSE"};
    Label lblPause{*this, "lblPause", "TX PAUSED"};

    Label lblPos1{*this, "lblPos1", "Pos 1"};
    Label lblPos2{*this, "lblPos2", "Pos 2"};
    Control_Array<Label, 0, 1> lblLat{*this, "lblLat", ""};
    Control_Array<Label, 0, 1> lblLon{*this, "lblLon", ""};
    Label lblGyro1{*this, "lblGyro1", "Gyro 1"};
    Label lblGyro2{*this, "lblGyro2", "Gyro 2"};
    Control_Array<Label, 0, 1> lblGyro{*this, "lblGyro", ""};
    Label lblLog1{*this, "lblLog1", "Log 1"};
    Label lblLog2{*this, "lblLog2", "Log 2"};
    Control_Array<Label, 0, 1> lblLog{*this, "lblLog", ""};
    Label lblSOGTitle{*this, "lblSOGTitle", "SOG"};
    Label lblSOG{*this, "lblSOG"};
    Label lblCOGTitle{*this, "lblCOGTitle", "COG"};
    Label lblCOG{*this, "lblCOG"};
    Frame frameCurrent{*this, "frameCurrent", "Current relative Log 1 and Gyro 1"};
    Label lblSetTitle{*this, "lblSetTitle", "Set"};
    Label lblSet{*this, "lblSet"};
    Label lblDriftTitle{*this, "lblDriftTitle", "Drift"};
    Label lblDrift{*this, "lblDrift"};

    Timer Timer1{*this, "Timer1"}; // the motion step
    Timer timerJoystick{*this, "timerJoystick"};
};

// Its opening: unless the simulator starts with the last navdata the ship goes to its start position. Speed,
// heading and rate of turn stay what they are.
Layout Lay_Out_Ship(Simulator& Sim, Form& Shown);

extern const Window_Class Ship_Window;

} // namespace brinewright
