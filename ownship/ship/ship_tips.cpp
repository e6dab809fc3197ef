#include "ownship/ship/ship_tips.hpp"

#include "ownship/ship/frm_ship.hpp"
#include "platform/tool_tips.hpp"

namespace brinewright {

namespace {

template <class Controls>
void Set_All(const Controls& Parts, const char* Text) {
    for (const auto& Part : Parts) Part->Tool_Tip = std::string(Text);
}

constexpr const char* Arrows_Tip =
    "Arrow and page keys, 0.1 deg/min and 1 % a step, until another control is "
    "chosen";
constexpr const char* Freeze_Tip = "Stops ship and targets; the sentences go on with unchanged values";
constexpr const char* Pause_Tip = "Stops all output; the ship goes on";

} // namespace

void Set_Tool_Tips(frmShip& W) {
    const Tip_Row Tips[] = {
        {W.frameThrottle, "Speed of the ship, percent of its limit"},
        {W.lblAhead, "100 % ahead, the greatest speed of the ship setup in knots"},
        {W.sldThrottle, "Speed, 100 % ahead to 100 % astern of the limits in the ship setup; at once"},
        {W.lblAstern, "100 % astern, the greatest speed of the ship setup in knots"},
        {W.lblThrottle, "Where the throttle stands, 0 to 100 %"},
        {W.cmdZero, "Speed 0 knots and rate of turn 0 deg/min"},
        {W.frameRudder, "Rate of turn, degrees per minute"},
        {W.sldRudder,
         "Rate of turn in steps of 0.1 deg/min up to the limit of the ship setup, port to starboard"},
        {W.lblRudder, "Rate of turn, deg/min: red to port, green to starboard; with its noise"},
        {W.lblRudderUnit, "Unit of the rate of turn"},
        {W.cmdZeroRudder, "Rate of turn 0 deg/min"},
        {W.lblSOGNoise, "Random change of the speed each second, 0.0 to 1.0 kt"},
        {W.cmbSOGNoise, "Random change of the speed each second, 0.0 to 1.0 kt; the logs do not see it"},
        {W.lblROTNoise, "Random change of the rate of turn each second, 0.0 to 1.0 deg/min"},
        {W.cmbROTNoise, "Random change of the rate of turn each second, 0.0 to 1.0 deg/min"},
        {W.lblHDG, "Heading, 0 to 360 degrees true"},
        {W.cmbHDG, "Heading, 0 to 360 degrees true; choose or type another, which takes effect at once"},
        {W.cmdSetSOG, "Speed in knots and heading in degrees by number"},
        {W.cmdArrows, Arrows_Tip},
        {W.lblArrows, Arrows_Tip},
        {W.txtDummy, Arrows_Tip},
        {W.frameArrows, Arrows_Tip},
        {W.lblArrowsStep, "One step: 0.1 deg/min or 1 %; page keys 10 %"},
        {W.lblArrowsShift, "Ten steps: 1 deg/min or 10 %"},
        {W.lblArrowsAlt, "0 deg/min or 0 %"},
        {W.lblArrowsCtrl, "The end of the range, in deg/min or 100 %"},
        {W.frameJoystick, "The stick steps ten times a second, by 0.1 or 1 deg/min and by 1 or 10 %"},
        {W.lblJoystick, "A game controller, axes 0 to 65535, is looked for when this window opens"},
        {W.cmdFreeze, Freeze_Tip},
        {W.lblFreeze, Freeze_Tip},
        {W.cmdPause, Pause_Tip},
        {W.lblPause, Pause_Tip},
        {W.lblPos1, "Position of GNSS 1, degrees"},
        {W.lblPos2, "Position of GNSS 2, degrees"},
        {W.lblGyro1, "Heading of gyro 1, degrees"},
        {W.lblGyro2, "Heading of gyro 2, degrees"},
        {W.lblLog1, "Speed of log 1, knots"},
        {W.lblLog2, "Speed of log 2, knots"},
        {W.lblSOGTitle, "Speed over ground, knots"},
        {W.lblSOG, "Speed over ground, knots, negative astern; with its noise"},
        {W.lblCOGTitle, "Course over ground, 0 to 360 degrees"},
        {W.lblCOG, "Course over ground, 0 to 360 degrees"},
        {W.frameCurrent, "What speed and course over ground differ by from log 1 and gyro 1"},
        {W.lblSetTitle, "Where the current sets to, 0 to 360 degrees"},
        {W.lblSet, "Where the current sets to, 0 to 360 degrees"},
        {W.lblDriftTitle, "Speed of the current, knots"},
        {W.lblDrift, "Speed of the current, knots"},
    };
    Show_Tips(Tips);
    Set_All(W.lblRudderTick, "Scale of the rate of turn, deg/min");
    Set_All(W.lblJoystickButton, "Buttons 1 to 6 of the game controller");
    Set_All(W.lblLat, "Latitude of this sensor, 90 S to 90 N");
    Set_All(W.lblLon, "Longitude of this sensor, 180 W to 180 E");
    Set_All(W.lblGyro, "Heading of this gyro with its offset, 0 to 360 degrees");
    Set_All(W.lblLog, "Speed of this log with its offset, knots");
}

} // namespace brinewright
