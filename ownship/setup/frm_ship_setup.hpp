#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

struct Simulator;

// "Ship & Environment Setup": the limits of the ship, where its sensors stand, and the clock.
struct frmShipSetup : Form {
    static constexpr const char* Class_Name = "frmShipSetup";

    explicit frmShipSetup(Desktop& Windows);

    bool Start_Changed = false; // the start position has been edited since the last Apply

    Frame frameStartPosition{*this, "frameStartPosition", "Start position"};
    Label lblStartLat{*this, "lblStartLat", "Lat"};
    Text_Box txtStartLat{*this, "txtStartLat"};
    Label lblStartLon{*this, "lblStartLon", "Lon"};
    Text_Box txtStartLon{*this, "txtStartLon"};

    Label lblMaxSpeedAhead{*this, "lblMaxSpeedAhead", "Max speed ahead"};
    Combo_Box cmbMaxSpeedAhead{*this, "cmbMaxSpeedAhead"};
    Label lblMaxSpeedAheadUnit{*this, "lblMaxSpeedAheadUnit", "knop"};
    Label lblMaxSpeedAstern{*this, "lblMaxSpeedAstern", "Max speed astern"};
    Combo_Box cmbMaxSpeedAstern{*this, "cmbMaxSpeedAstern"};
    Label lblMaxSpeedAsternUnit{*this, "lblMaxSpeedAsternUnit", "knop"};
    Label lblMaxRudder{*this, "lblMaxRudder", "Max rate of turn "};
    Combo_Box cmbMaxRudder{*this, "cmbMaxRudder"};
    Label lblMaxRudderUnit{*this, "lblMaxRudderUnit", "deg/min"};
    Label lblMagneticDeviation{*this, "lblMagneticDeviation", "Magnetic deviation"};
    Combo_Box cmbMagneticDeviation{*this, "cmbMagneticDeviation"};
    Label lblMagneticDeviationUnit{*this, "lblMagneticDeviationUnit", "degrees"};

    Frame framePosOffset{*this, "framePosOffset", "Pos2 offset from Pos1 "};
    Label lblNorthing{*this, "lblNorthing", "Northing"};
    Text_Box txtLatOffset{*this, "txtLatOffset"};
    Label lblEasting{*this, "lblEasting", "Easting"};
    Text_Box txtLonOffset{*this, "txtLonOffset"};

    Label lblGyro1Offset{*this, "lblGyro1Offset", "Gyro 1 offset "};
    Label lblGyro2Offset{*this, "lblGyro2Offset", "Gyro 2  offset"};
    Control_Array<Text_Box, 0, 1> txtGyroOffset{*this, "txtGyroOffset", ""};
    Control_Array<Label, 0, 1> lblFromCOG{*this, "lblFromCOG", "from COG"};
    Label lblLog1Offset{*this, "lblLog1Offset", "Log 1 offset"};
    Label lblLog2Offset{*this, "lblLog2Offset", "Log 2 offset"};
    Control_Array<Text_Box, 0, 1> txtLogOffset{*this, "txtLogOffset", ""};
    Control_Array<Label, 0, 1> lblFromSOG{*this, "lblFromSOG", "from SOG"};

    Check_Box chkUseUTC{*this, "chkUseUTC", "Use UTC time"};
    Label lblGNSS1{*this, "lblGNSS1", "GNSS 1"}; // over elements 0
    Label lblGNSS2{*this, "lblGNSS2", "GNSS 2"}; // over elements 1
    Label lblZoneHours{*this, "lblZoneHours", "Local zone hours"};
    Control_Array<Combo_Box, 0, 1> cmbUTCOffsetHours{*this, "cmbUTCOffsetHours", ""};
    Label lblZoneMinutes{*this, "lblZoneMinutes", "Local zone minutes"};
    Control_Array<Combo_Box, 0, 1> cmbUTCOffsetMinutes{*this, "cmbUTCOffsetMinutes", ""};
    Label lblGNSS2Offset{*this, "lblGNSS2Offset", "GNSS2 offset from GNSS 1"};
    Combo_Box cmbGNSS2OffsetSeconds{*this, "cmbGNSS2OffsetSeconds"};
    Label lblGNSS2OffsetUnit{*this, "lblGNSS2OffsetUnit", "sec"};

    Button cmdOK{*this, "cmdOK", "OK"};
    Button cmdApply{*this, "cmdApply", "Apply"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};
};

Layout Lay_Out_Ship_Setup(Simulator& Sim, Form& Shown);

extern const Window_Class Ship_Setup_Window;

} // namespace brinewright
