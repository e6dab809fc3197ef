#include "sensors/gyro/gyro_tips.hpp"

#include "platform/tool_tips.hpp"
#include "sensors/gyro/frm_gyro.hpp"

namespace brinewright {

void Set_Tool_Tips(frmGyro& W) {
    const Tip_Row Tips[] = {
        {W.lblShipControl, "In Ship mode the ship sets heading and rate of turn of this gyro"},
        {W.frmSimulator, "Heading, turn and attitude of this gyro, set by hand"},
        {W.frmHDG, "Heading, degrees true"},
        {W.scrHDG, "Heading, 0.0 to 359.9 degrees true in steps of 0.1; both ends lead past north"},
        {W.txtHDG, "Heading, 0.0 to 360.0 degrees true"},
        {W.frmROT, "Rate of turn, degrees per minute, to starboard positive"},
        {W.scrROT, "Rate of turn, -30.0 to 30.0 degrees per minute in steps of 0.1, to starboard positive"},
        {W.txtROT, "Rate of turn, -30.0 to 30.0 degrees per minute, to starboard positive"},
        {W.lblROTUnit, "Unit of the rate of turn: degrees per minute"},
        {W.frmRoll, "Roll, degrees"},
        {W.scrRoll, "Roll, -15.0 to 15.0 degrees in steps of 0.1"},
        {W.txtRoll, "Roll, -15.0 to 15.0 degrees"},
        {W.frmPitch, "Pitch, degrees"},
        {W.scrPitch, "Pitch, -15.0 to 15.0 degrees in steps of 0.1"},
        {W.txtPitch, "Pitch, -15.0 to 15.0 degrees"},
        {W.chkNoise, "Adds a random error to what is reported: heading at each step of the simulator, the "
                     "others in each sentence"},
        {*W.optAccumulatedNoise.Buttons[0], "The error, in degrees, leaves the heading that is set alone"},
        {*W.optAccumulatedNoise.Buttons[1],
         "The error, in degrees, moves the heading that is set too: a random walk"},
        {W.lblMaxNoise, "Largest error to either side, degrees"},
        {W.frmSimulatorControl, "Starts and stops the simulator and the sentences"},
        {W.cmdStart, "Steps heading and noise every 0.4 s and starts the ticked sentences anew"},
        {W.cmdPause, "Stops the steps and all sentences of this gyro"},
        {W.frameNMEAMessages, "The sentences of this sensor and the seconds between them"},
        {W.txtTalker, "Talker of all sentences but PRDID, two characters"},
        {W.cmbComPort, "Link on which the sentences leave: serial port 1 to 16, TCP/IP or UDP"},
        {W.lblModeIndicator, "Mode that THS reports: A, E, M, S or V"},
        {W.cmbModeIndicator, "Mode that THS reports: A, E, M, S or V"},
        {W.lblDecimals, "Digits behind the point in HDT, THS and ROT, 0 to 3"},
        {W.cmbDecimals, "Digits behind the point in HDT, THS and ROT, 0 to 3"},
        {W.frmCurrent, "The values that were sent last"},
        {W.lblHdgTitle, "Heading last sent, degrees true"},
        {W.lblCurrentHdg, "Heading last sent, degrees true"},
        {W.lblRotTitle, "Rate of turn last sent, degrees per minute"},
        {W.lblCurrentRot, "Rate of turn last sent, degrees per minute"},
        {W.lblRollTitle, "Roll last sent, degrees"},
        {W.lblCurrentRoll, "Roll last sent, degrees"},
        {W.lblPitchTitle, "Pitch last sent, degrees"},
        {W.lblCurrentPitch, "Pitch last sent, degrees"},
    };
    Show_Tips(Tips);
    constexpr const char* Noise_Tips[] = {"Largest error of the heading, 0.0 to 10.0 degrees",
                                          "Largest error of the rate of turn, 0.0 to 10.0 deg/min",
                                          "Largest error of the roll, 0.0 to 10.0 degrees",
                                          "Largest error of the pitch, 0.0 to 10.0 degrees"};
    for (const auto& List : W.cmbNoise) {
        List->Tool_Tip = Noise_Tips[List->Index] + std::string("; others, -360 to 360, can be typed");
        W.lblNoise[List->Index].Tool_Tip = std::string(Noise_Tips[List->Index]);
    }
}

} // namespace brinewright
