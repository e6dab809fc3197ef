#include "sensors/log/log_tips.hpp"

#include "platform/tool_tips.hpp"
#include "sensors/log/frm_log.hpp"

namespace brinewright {

void Set_Tool_Tips(frmLog& W) {
    const Tip_Row Tips[] = {
        {W.lblShipControl, "In Ship mode the ship sets the speed of this log"},
        {W.frmSpeed, "Speed through the water, knots"},
        {W.scrSpeed, "Speed through the water, 0.0 to 40.0 knots in steps of 0.1"},
        {W.lblSpeed, "Speed through the water, knots"},
        {W.txtSpeed,
         "Speed through the water, knots, 0.0 and above; typed speeds may exceed the 40.0 of the bar"},
        {W.lblSpeedUnit, "Unit of the speed"},
        {W.chkNoise, "Adds a random error to the speed through the water, in each sentence anew"},
        {W.lblMaxNoise, "Largest error to either side, 0.0 to 10 knots"},
        {W.cmbNoise, "Largest error to either side, 0.0 to 10 knots"},
        {W.chkInvalid, "Marks all speeds of VBW as not valid"},
        {W.cmdResetVLW, "Sets both trip distances of VLW to 0 nautical miles; the totals go on"},
        {W.lblVLW, "Where the distances of VLW, in nautical miles, take their speeds from"},
        {W.lblCurrentTitle, "Speed last sent in VHW or VBW, knots"},
        {W.lblCurrentSpeed, "Speed last sent in VHW or VBW, knots"},
    };
    Show_Tips(Tips);
}

} // namespace brinewright
