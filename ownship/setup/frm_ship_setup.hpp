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

    Frame frameStartPosition{*this, "frameStartPosition", "Start position", "Where the ship starts, degrees"};
    Label lblStartLat{frameStartPosition, "lblStartLat", "Lat",
                      "Latitude where the ship starts, 90 S to 90 N"};
    Text_Box txtStartLat{frameStartPosition, "txtStartLat", "",
                         "Latitude, 90 S to 90 N; a new one moves the ship there with Apply"};
    Label lblStartLon{frameStartPosition, "lblStartLon", "Lon",
                      "Longitude where the ship starts, 180 W to 180 E"};
    Text_Box txtStartLon{frameStartPosition, "txtStartLon", "",
                         "Longitude, 180 W to 180 E; a new one moves the ship there with Apply"};

    Label lblMaxSpeedAhead{*this, "lblMaxSpeedAhead", "Max speed ahead",
                           "Speed at 100 % ahead, 5 to 100 knots"};
    Combo_Box cmbMaxSpeedAhead{
        *this, "cmbMaxSpeedAhead", "",
        "Speed at 100 % ahead, 5 to 100 knots; the ship keeps its speed until the throttle moves"};
    Label lblMaxSpeedAheadUnit{*this, "lblMaxSpeedAheadUnit", "knop", "Knots"};
    Label lblMaxSpeedAstern{*this, "lblMaxSpeedAstern", "Max speed astern",
                            "Speed at 100 % astern, 1 to 20 knots"};
    Combo_Box cmbMaxSpeedAstern{
        *this, "cmbMaxSpeedAstern", "",
        "Speed at 100 % astern, 1 to 20 knots; the ship keeps its speed until the throttle moves"};
    Label lblMaxSpeedAsternUnit{*this, "lblMaxSpeedAsternUnit", "knop", "Knots"};
    Label lblMaxRudder{*this, "lblMaxRudder", "Max rate of turn ",
                       "Greatest rate of turn, 5 to 360 degrees per minute"};
    Combo_Box cmbMaxRudder{*this, "cmbMaxRudder", "", "Greatest rate of turn, 5 to 360 degrees per minute"};
    Label lblMaxRudderUnit{*this, "lblMaxRudderUnit", "deg/min", "Degrees per minute"};
    Label lblMagneticDeviation{*this, "lblMagneticDeviation", "Magnetic deviation",
                               "Between true and magnetic north, -10 to 10 degrees"};
    Combo_Box cmbMagneticDeviation{
        *this, "cmbMagneticDeviation", "",
        "Between true and magnetic north, -10 to 10 degrees, for the magnetic fields of sentences"};
    Label lblMagneticDeviationUnit{*this, "lblMagneticDeviationUnit", "degrees", "Unit of the deviation"};

    Frame framePosOffset{*this, "framePosOffset", "Pos2 offset from Pos1 ",
                         "Where position 2 stands from position 1, metres"};
    Label lblNorthing{framePosOffset, "lblNorthing", "Northing",
                      "Metres to the north, negative to the south"};
    Text_Box txtLatOffset{framePosOffset, "txtLatOffset", "", "Metres to the north, negative to the south"};
    Label lblEasting{framePosOffset, "lblEasting", "Easting", "Metres to the east, negative to the west"};
    Text_Box txtLonOffset{framePosOffset, "txtLonOffset", "", "Metres to the east, negative to the west"};

    Label lblGyro1Offset{*this, "lblGyro1Offset", "Gyro 1 offset ",
                         "Degrees that gyro 1 shows more than the heading"};
    Label lblGyro2Offset{*this, "lblGyro2Offset", "Gyro 2  offset",
                         "Degrees that gyro 2 shows more than the heading"};
    Control_Array<Text_Box, 0, 1> txtGyroOffset{*this, "txtGyroOffset", "",
                                                "Degrees that this gyro shows more than the heading"};
    Control_Array<Label, 0, 1> lblFromCOG{*this, "lblFromCOG", "from COG", "Degrees"};
    Label lblLog1Offset{*this, "lblLog1Offset", "Log 1 offset",
                        "Knots that log 1 shows more than the speed over ground"};
    Label lblLog2Offset{*this, "lblLog2Offset", "Log 2 offset",
                        "Knots that log 2 shows more than the speed over ground"};
    Control_Array<Text_Box, 0, 1> txtLogOffset{*this, "txtLogOffset", "",
                                               "Knots that this log shows more than the speed over ground"};
    Control_Array<Label, 0, 1> lblFromSOG{*this, "lblFromSOG", "from SOG", "Knots"};

    Check_Box chkUseUTC{
        *this, "chkUseUTC", "Use UTC time",
        "Times in sentences, hours to seconds, become UTC; otherwise the clock of the machine"};
    Label lblGNSS1{*this, "lblGNSS1", "GNSS 1",
                   "Offset of all clocks but that of GNSS 2, minutes to hours"}; // over elements 0
    Label lblGNSS2{*this, "lblGNSS2", "GNSS 2",
                   "Offset of the clock of GNSS 2, seconds to hours"}; // over elements 1
    static constexpr const char* Zone_Hours_Tip = "Hours from the clock of the machine to UTC, -13 to 13";
    Label lblZoneHours{*this, "lblZoneHours", "Local zone hours", Zone_Hours_Tip};
    Control_Array<Combo_Box, 0, 1> cmbUTCOffsetHours{*this, "cmbUTCOffsetHours", "", Zone_Hours_Tip};
    static constexpr const char* Zone_Minutes_Tip = "Minutes that go with the hours, 0 to 59";
    Label lblZoneMinutes{*this, "lblZoneMinutes", "Local zone minutes", Zone_Minutes_Tip};
    Control_Array<Combo_Box, 0, 1> cmbUTCOffsetMinutes{*this, "cmbUTCOffsetMinutes", "", Zone_Minutes_Tip};
    Label lblGNSS2Offset{*this, "lblGNSS2Offset", "GNSS2 offset from GNSS 1",
                         "Seconds that GNSS 2 goes ahead, 0 to 59"};
    Combo_Box cmbGNSS2OffsetSeconds{*this, "cmbGNSS2OffsetSeconds", "",
                                    "Seconds that GNSS 2 goes ahead, 0 to 59"};
    Label lblGNSS2OffsetUnit{*this, "lblGNSS2OffsetUnit", "sec", "Seconds"};

    Button cmdOK{*this, "cmdOK", "OK", "Takes the settings over and closes"};
    Button cmdApply{*this, "cmdApply", "Apply", "Takes the settings over"};
    Button cmdCancel{*this, "cmdCancel", "Cancel", "Closes; the settings stay as they were"};
};

Layout Lay_Out_Ship_Setup(Simulator& Sim, Form& Shown);

extern const Window_Class Ship_Setup_Window;

} // namespace brinewright
