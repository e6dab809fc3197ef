#include "gnss/position/position_tips.hpp"

#include "gnss/position/frm_position.hpp"
#include "platform/tool_tips.hpp"

namespace brinewright {

void Set_Tool_Tips(frmPosition& W) {
    const Tip_Row Tips[] = {
        {W.frmGGA, "Position, simulator and sentences of this sensor"},
        {W.frmGSA, "Satellites in use"},
        {W.frmGSV, "Satellites in view"},
        {W.frmGST, "Error statistics of the position"},
        {W.lblShipControl, "In Ship mode the ship moves this sensor"},
        {W.frmSimulator, "Where this sensor is and how it moves"},
        {W.lblStartLat, "True latitude, or metres north of GNSS 1 while a fixed offset is held"},
        {W.txtLat,
         "True latitude, degrees and minutes, 90 S to 90 N; with a fixed offset, metres north of GNSS 1"},
        {W.lblStartLon, "True longitude, or metres east of GNSS 1 while a fixed offset is held"},
        {W.txtLon,
         "True longitude, degrees and minutes, 180 W to 180 E; with a fixed offset, metres east of GNSS 1"},
        {W.chkFixOffset,
         "Keeps this sensor at a fixed distance, in metres, from the true position of GNSS 1"},
        {W.lblLatitude, "Reported latitude, degrees"},
        {W.lblLat, "Reported latitude, noise included, degrees; new each second while running"},
        {W.lblLongitude, "Reported longitude, degrees"},
        {W.lblLon, "Reported longitude, noise included, degrees; new each second while running"},
        {W.frmSOG, "Speed over ground, knots"},
        {W.scrSOG, "Speed over ground, 0.0 to 40.0 knots in steps of 0.1"},
        {W.lblSOG, "Speed over ground, knots"},
        {W.txtSOG, "Speed over ground, knots, 0.0 and above; typed speeds may exceed the 40.0 of the bar"},
        {W.lblSOGUnit, "Unit of the speed"},
        {W.frmCOG, "Course over ground, degrees true"},
        {W.scrCOG, "Course over ground, 0.0 to 359.9 degrees true in steps of 0.1"},
        {W.lblCOG, "Course over ground, degrees true"},
        {W.txtCOG, "Course over ground, 0.0 to 359.9 degrees true"},
        {W.lblCOGUnit, "Unit of the course"},
        {W.chkNoise, "Adds a random error to the reported position, each second anew"},
        {W.lblMaxNoise, "Largest error, 0 to 100 m"},
        {W.cmbNoise, "Largest error, 0 to 100 m"},
        {*W.optAccumulatedNoise.Buttons[0], "The error, in metres, leaves the true position alone"},
        {*W.optAccumulatedNoise.Buttons[1],
         "The error, in metres, moves the true position too: a random walk"},
        {W.frmSimulatorControl, "Starts and stops the motion"},
        {W.cmdStart, "Moves the position once a second and starts the ticked sentences anew"},
        {W.cmdPause, "Stops the motion, GGA, GLL, RMC and VTG; the other sentences go on"},
        {W.cmdArrows, "Left and right turn by 0.1 degrees, up and down change the speed by 0.1 knots"},
        {W.lblArrows, "The arrow keys change course and speed until another control is chosen"},
        {W.txtDummy, "Takes the arrow keys: 0.1 degrees or 0.1 knots each"},
        {W.lblDecimals, "Digits behind the point in sentences"},
        {W.lblDecimalsPosition, "Decimals of the minutes of latitude and longitude, 3 to 6"},
        {W.cmbDecimals, "Decimals of the minutes of latitude and longitude, 3 to 6"},
        {W.lblDecimalsTime, "Decimals of the seconds of time, 0 to 2"},
        {W.cmbDecimalsTime, "Decimals of the seconds of time, 0 to 2"},
    };
    Show_Tips(Tips);
}

} // namespace brinewright
