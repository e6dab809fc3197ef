#include "ownship/setup/frm_ship_setup.hpp"
#include "shell/kit/layout.hpp"

namespace brinewright {

namespace {

Layout Start_Box(frmShipSetup& W) {
    constexpr int Position_Width = 150;
    return Box(W.frameStartPosition,
               Fields({{W.lblStartLat, Place(W.txtStartLat).Least_Width(Position_Width)},
                       {W.lblStartLon, Place(W.txtStartLon).Least_Width(Position_Width)}}));
}

Layout Limits_Box(frmShipSetup& W) {
    return Box("Ship and environment",
               Fields({{W.lblMaxSpeedAhead, W.cmbMaxSpeedAhead, &W.lblMaxSpeedAheadUnit},
                       {W.lblMaxSpeedAstern, W.cmbMaxSpeedAstern, &W.lblMaxSpeedAsternUnit},
                       {W.lblMaxRudder, W.cmbMaxRudder, &W.lblMaxRudderUnit},
                       {W.lblMagneticDeviation, W.cmbMagneticDeviation, &W.lblMagneticDeviationUnit}}));
}

Layout Offsets_Box(frmShipSetup& W) {
    const auto Offset = [](Text_Box& Typed) { return Place(Typed).Least_Width(92); };
    return Box("Gyro and log", Fields({{W.lblGyro1Offset, Offset(W.txtGyroOffset[0]), &W.lblFromCOG[0]},
                                       {W.lblGyro2Offset, Offset(W.txtGyroOffset[1]), &W.lblFromCOG[1]},
                                       {W.lblLog1Offset, Offset(W.txtLogOffset[0]), &W.lblFromSOG[0]},
                                       {W.lblLog2Offset, Offset(W.txtLogOffset[1]), &W.lblFromSOG[1]}}));
}

Layout Time_Box(frmShipSetup& W) {
    return Box("Time", Cells({At(0, 0, W.chkUseUTC), At(0, 1, Dim(W.lblGNSS1)), At(0, 2, Dim(W.lblGNSS2)),
                              At(1, 0, Dim(W.lblZoneHours).Right()), At(2, 0, Dim(W.lblZoneMinutes).Right()),
                              At(1, 1, W.cmbUTCOffsetHours[0]), At(2, 1, W.cmbUTCOffsetMinutes[0]),
                              At(1, 2, W.cmbUTCOffsetHours[1]), At(2, 2, W.cmbUTCOffsetMinutes[1]),
                              At(3, 0, Dim(W.lblGNSS2Offset).Right(), 1, 2),
                              At(3, 2, W.cmbGNSS2OffsetSeconds), At(3, 3, Dim(W.lblGNSS2OffsetUnit))},
                             {.Across = rhythm::Gap, .Down = rhythm::Base + 2, .Wide_Column = 4}));
}

} // namespace

Layout Lay_Out_Ship_Setup(Simulator&, Form& Shown) {
    auto& W = static_cast<frmShipSetup&>(Shown);
    const auto Position_2 =
        Box(W.framePosOffset, Fields({{W.lblNorthing, W.txtLatOffset}, {W.lblEasting, W.txtLonOffset}}));
    return Dialog({Cells({At(0, 0, Start_Box(W)), At(0, 1, Position_2), At(1, 0, Limits_Box(W)),
                          At(1, 1, Offsets_Box(W)), At(2, 0, Time_Box(W), 1, 2)},
                         {.Across = rhythm::Gap, .Down = rhythm::Gap}),
                   Buttons({W.cmdOK, W.cmdApply, W.cmdCancel})});
}

} // namespace brinewright
