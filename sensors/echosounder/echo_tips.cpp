#include "sensors/echosounder/echo_tips.hpp"

#include "platform/tool_tips.hpp"
#include "sensors/echosounder/frm_echosounder.hpp"

namespace brinewright {

void Set_Tool_Tips(frmEchosounder& W) {
    const char* const Offset =
        "Transducer offset. Positive means transducer to waterline, negative means transducer to keel";
    const Tip_Row Tips[] = {
        {W.lblEchosounder, "Depth sounder; its depth is set by hand in both modes"},
        {W.frmDepth, "Depth below the transducer, metres"},
        {W.scrDepth, "Depth below the transducer, 0.0 to 400.0 m in steps of 0.1"},
        {W.lblDepth, "Depth below the transducer, metres"},
        {W.txtDepth,
         "Depth below the transducer, metres, 0.0 and above; typed depths may exceed the 400.0 of "
         "the bar"},
        {W.lblDepthUnit, "Unit of the depth"},
        {W.lblTransducer, Offset},
        {W.lblOffset, Offset},
        {W.cmbOffset, Offset},
        {W.chkNoise, "Adds a random error to the depth, for each sentence anew"},
        {W.lblMaxNoise, "Largest error to either side, 0 to 20 m"},
        {W.cmbNoise, "Largest error to either side, 0 to 20 m"},
        {W.frmCurrentValue, "What left with the last sentence"},
        {W.lblCurrentDepth, "Depth last sent, noise included, metres"},
    };
    Show_Tips(Tips);
}

} // namespace brinewright
