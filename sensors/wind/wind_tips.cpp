#include "sensors/wind/wind_tips.hpp"

#include "platform/tool_tips.hpp"
#include "sensors/wind/frm_wind.hpp"

namespace brinewright {

namespace {

void Set_Wind_Tips(frmWind& W) {
    const char* const Unit = "Unit of the speed";
    const char* const Direction_Noise = "Largest error of the direction to either side, 0 to 20 degrees";
    const char* const Speed_Noise = "Largest error of the speed to either side, 0 to 20 of its unit";
    const Tip_Row Tips[] = {
        {W.frmTrueWindDir, "Where the true wind comes from, degrees true"},
        {W.scrHDG, "Where the true wind comes from, 0.0 to 359.9 degrees true in steps of 0.1; both ends "
                   "lead past north"},
        {W.txtHDG, "Where the true wind comes from, 0.0 to 360.0 degrees true"},
        {W.lblHDGUnit, "Unit of the direction"},
        {W.frmTrueWindSpd, "Speed of the true wind, in the chosen unit"},
        {W.scrSpeed, "Speed of the true wind, 0.0 to 40.0 of its unit in steps of 0.1"},
        {W.lblSpeed, "Speed of the true wind, in the chosen unit"},
        {W.txtSpeed,
         "Speed of the true wind, 0.0 and above, in the chosen unit; typed speeds may exceed the 40.0 of "
         "the bar"},
        {W.lblSpeedUnit, "Unit of all speeds of this window and of MWV"},
        {W.cmbUnits, "Unit of all speeds of this window and of MWV: knots, m/s or km/h"},
        {W.lblUnit[0], Unit},
        {W.lblUnit[1], Unit},
        {W.chkNoise, "Adds a random error to angle and speed of MWV, for each sentence anew"},
        {W.lblMaxNoise[0], Direction_Noise},
        {W.cmbNoise[0], Direction_Noise},
        {W.lblMaxNoise[1], Speed_Noise},
        {W.cmbNoise[1], Speed_Noise},
        {W.chkInvalid, "Sends MWV with the status V instead of A"},
    };
    Show_Tips(Tips);
}

void Set_Result_Tips(frmWind& W) {
    const Tip_Row Tips[] = {
        {W.frmRelativeWind, "The wind as it is felt on board, worked out every 2 s"},
        {W.lblRelativeDir, "Where the relative wind comes from, degrees from the bow, clockwise"},
        {W.lblRelativeSpeed, "Speed of the relative wind, in the chosen unit"},
        {W.lblRelativeWind, "Sensors from which the relative wind is worked out"},
        {W.frmCurrentValue, "What left with the last MWV"},
        {W.lblWindAngle, "Angle last sent, noise included, degrees"},
        {W.lblWindSpeed, "Speed last sent, noise included, in the chosen unit"},
        {*W.optRef.Buttons[0], "MWV gives the relative wind, degrees from the bow"},
        {*W.optRef.Buttons[1], "MWV gives the true wind, degrees true"},
        {W.lblMagDev,
         "Magnetic variation, degrees, east positive: magnetic direction of MWD less the true one"},
        {W.lblShipSetup, "The magnetic variation, degrees, is set in Ship Setup"},
    };
    Show_Tips(Tips);
}

} // namespace

void Set_Tool_Tips(frmWind& W) {
    Set_Wind_Tips(W);
    Set_Result_Tips(W);
}

} // namespace brinewright
