#pragma once

#include "sentences/compose_dtm.hpp"
#include "sentences/compose_gga.hpp"
#include "sentences/compose_gll.hpp"
#include "sentences/compose_gns.hpp"
#include "sentences/compose_gsa.hpp"
#include "sentences/compose_gst.hpp"
#include "sentences/compose_gsv.hpp"
#include "sentences/compose_rmc.hpp"
#include "sentences/compose_vtg.hpp"
#include "sentences/compose_zda.hpp"
#include "shell/kit/sensor_form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

extern const Window_Class GNSS_Windows;

// The window of one positioning sensor, GNSS 1 or GNSS 2. Instance, 1 or 2, is at once its form index, its
// Tag and its element of all per-sensor tables. What is chosen of fix, satellites and statistics is written
// to the records at once and not kept over a restart.
struct frmPosition : Sensor_Form {
    static constexpr const char* Class_Name = "frmPosition";

    frmPosition(Desktop& Windows, int Its_Instance);

    // What the sentences are composed from. The ticks refresh what changes; all else stays as the controls
    // left it.
    brinewright::GGA_Record GGA_Record;
    brinewright::GLL_Record GLL_Record;
    brinewright::RMC_Record RMC_Record;
    brinewright::GNS_Record GNS_Record;
    brinewright::VTG_Record VTG_Record;
    brinewright::ZDA_Record ZDA_Record;
    brinewright::DTM_Record DTM_Record;
    brinewright::GSA_Record GSA_Record;
    brinewright::GSA_Record GSA2_Record; // GLONASS; nothing gives it a satellite, so it never leaves
    brinewright::GSV_Record GSV_Record;
    brinewright::GST_Record GST_Record;

    float Offset_North = 0; // metres from GNSS 1, held while chkFixOffset is checked
    float Offset_East = 0;
    bool Sats_Changing = false;          // cmbSats is setting the boxes of the satellites
    bool Sv_Click_Guard = false;         // the boxes of the satellites are setting cmbSats
    Table<std::int16_t, 0, 5> Mode_Item; // last ListIndex of each cmbGLLRMVVTG_Mode

    // frmGGA is all but the other three, which stand to its right and show when the window is wide enough.
    Frame frmGGA{*this, "frmGGA", "", "Position, simulator and sentences of this sensor"};
    Frame frmGSA{*this, "frmGSA", "GSA data", "Satellites in use"};
    Frame frmGSV{*this, "frmGSV", "GSV data", "Satellites in view"};
    Frame frmGST{*this, "frmGST", "GST Data", "Error statistics of the position"};
    Label lblShipControl{*this, "lblShipControl", "Lat/Lon and SOG/COG control by Ship",
                         "In Ship mode the ship moves this sensor"};

    // Bars count in tenths of a knot or a degree; both ends of the course wrap.
    Frame frmSimulator{*this, "frmSimulator", "", "Where this sensor is and how it moves"};
    Label lblStartLat{frmSimulator, "lblStartLat", "Start Lat",
                      "True latitude, or metres north of GNSS 1 while a fixed offset is held"};
    Text_Box txtLat{
        frmSimulator, "txtLat", "",
        "True latitude, degrees and minutes, 90 S to 90 N; with a fixed offset, metres north of GNSS 1"};
    Label lblStartLon{frmSimulator, "lblStartLon", "Start Lon",
                      "True longitude, or metres east of GNSS 1 while a fixed offset is held"};
    Text_Box txtLon{
        frmSimulator, "txtLon", "",
        "True longitude, degrees and minutes, 180 W to 180 E; with a fixed offset, metres east of GNSS 1"};
    Check_Box chkFixOffset{
        frmSimulator, "chkFixOffset", "Fix Offset fr Pos1",
        "Keeps this sensor at a fixed distance, in metres, from the true position of GNSS 1"};
    Label lblLatitude{frmSimulator, "lblLatitude", "Latitude", "Reported latitude, degrees"};
    Label lblLat{frmSimulator, "lblLat", "",
                 "Reported latitude, noise included, degrees; new each second while running"};
    Label lblLongitude{frmSimulator, "lblLongitude", "Longitude", "Reported longitude, degrees"};
    Label lblLon{frmSimulator, "lblLon", "",
                 "Reported longitude, noise included, degrees; new each second while running"};
    Frame frmSOG{frmSimulator, "frmSOG", "SOG", "Speed over ground, knots"};
    Scroll_Bar scrSOG{frmSOG, "scrSOG", 400, 0, 10, "Speed over ground, 0.0 to 40.0 knots in steps of 0.1"};
    Label lblSOG{frmSOG, "lblSOG", "", "Speed over ground, knots"};
    Text_Box txtSOG{frmSOG, "txtSOG", "",
                    "Speed over ground, knots, 0.0 and above; typed speeds may exceed the 40.0 of the bar"};
    Label lblSOGUnit{frmSOG, "lblSOGUnit", "knots", "Unit of the speed"};
    Frame frmCOG{frmSimulator, "frmCOG", "COG", "Course over ground, degrees true"};
    Scroll_Bar scrCOG{frmCOG, "scrCOG", -1,
                      3600,   10,       "Course over ground, 0.0 to 359.9 degrees true in steps of 0.1"};
    Label lblCOG{frmCOG, "lblCOG", "", "Course over ground, degrees true"};
    Text_Box txtCOG{frmCOG, "txtCOG", "", "Course over ground, 0.0 to 359.9 degrees true"};
    Label lblCOGUnit{frmCOG, "lblCOGUnit", "degrees", "Unit of the course"};
    Check_Box chkNoise{frmSimulator, "chkNoise", "Random noise On",
                       "Adds a random error to the reported position, each second anew"};
    Label lblMaxNoise{frmSimulator, "lblMaxNoise", "Max noise", "Largest error, 0 to 100 m"};
    Combo_Box cmbNoise{frmSimulator, "cmbNoise", "", lblMaxNoise.Tool_Tip};
    Option_Group optAccumulatedNoise{
        frmSimulator,
        "optAccumulatedNoise",
        {{"Not Accumulated", "The error, in metres, leaves the true position alone"},
         {"Accumulated ", "The error, in metres, moves the true position too: a random walk"}}};

    Frame frmSimulatorControl{*this, "frmSimulatorControl", "Simulator Control",
                              "Starts and stops the motion"};
    Button cmdStart{frmSimulatorControl, "cmdStart", "START",
                    "Moves the position once a second and starts the ticked sentences anew"};
    Button cmdPause{frmSimulatorControl, "cmdPause", "PAUSE",
                    "Stops the motion, GGA, GLL, RMC and VTG; the other sentences go on"};
    Button cmdArrows{frmSimulatorControl, "cmdArrows", "Control SOG/COG by keyboard Arrow keys",
                     "Left and right turn by 0.1 degrees, up and down change the speed by 0.1 knots"};
    Label lblArrows{frmSimulatorControl, "lblArrows", "SOG/COG control by Arrow keys",
                    "The arrow keys change course and speed until another control is chosen"};
    Text_Box txtDummy{frmSimulatorControl, "txtDummy", "",
                      "Takes the arrow keys: 0.1 degrees or 0.1 knots each"};
    Timer timer_Simulator{*this, "timer_Simulator"};

    Sentence_Lines Lines{*this, GNSS_Windows.Sentences};

    Label lblDecimals{*this, "lblDecimals", "No of decimals", "Digits behind the point in sentences"};
    Label lblDecimalsPosition{*this, "lblDecimalsPosition", "Lat/Lon",
                              "Decimals of the minutes of latitude and longitude, 3 to 6"};
    Combo_Box cmbDecimals{*this, "cmbDecimals", "", lblDecimalsPosition.Tool_Tip};
    Label lblDecimalsTime{*this, "lblDecimalsTime", "UTC, sec", "Decimals of the seconds of time, 0 to 2"};
    Combo_Box cmbDecimalsTime{*this, "cmbDecimalsTime", "", lblDecimalsTime.Tool_Tip};

    // What the fix claims to be.
    Label lblQuality{*this, "lblQuality", " GGA Quality",
                     "Quality of GGA, 0 to 8; 0 also makes the fix of GSA 1, no fix"};
    Combo_Box cmbQuality{*this, "cmbQuality", "", lblQuality.Tool_Tip};
    Label lblSats{*this, "lblSats", "Svs",
                  "Satellites in use, 0 to 63: checks the lowest free boxes or unchecks the last"};
    Combo_Box cmbSats{*this, "cmbSats", "", lblSats.Tool_Tip};
    Label lblHdop{*this, "lblHdop", "Hdop",
                  "Horizontal dilution of precision in GGA, GNS and GSA, 1.0 to 13.6 or typed"};
    Combo_Box cmbHdop{*this, "cmbHdop", "", lblHdop.Tool_Tip};
    Label lblAge{*this, "lblAge", "Diff corr age",
                 "Age of the differential corrections in GGA and GNS, 0 to 63 s or typed"};
    Combo_Box cmbAge{*this, "cmbAge", "", lblAge.Tool_Tip};
    Label lblStnID{*this, "lblStnID", "Diff. Stn ID",
                   "Differential reference station in GGA and GNS, 0 to 1023"};
    Text_Box txtStnID{*this, "txtStnID", "100", lblStnID.Tool_Tip};
    Label lblAlt{*this, "lblAlt", "Altit AMSL",
                 "Antenna above mean sea level in GGA and GNS, m, below it negative"};
    Text_Box txtAlt{*this, "txtAlt", "0.0 m", lblAlt.Tool_Tip};
    Label lblGeoidSep{*this, "lblGeoidSep", "Geoide Sep",
                      "Geoid above the ellipsoid in GGA and GNS, m, below it negative"};
    Text_Box txtGeoidSep{*this, "txtGeoidSep", "0.0 m", lblGeoidSep.Tool_Tip};
    Check_Box chkDifferential{*this, "chkDifferential", "Differential GNSS",
                              "Set GGA/GNS/GLL/RMC/VTG to 'Differential mode'"};

    Frame frmModeIndicator{*this, "frmModeIndicator", "Mode and Status indicators for GNS, GLL, RMC and VTG ",
                           "Letters that tell how far the data can be trusted"};
    Label lblModeIndicator{frmModeIndicator, "lblModeIndicator", "Type",
                           "The letter to set: one of six in GNS, GLL, VTG and RMC"};
    Combo_Box cmbModeIndicator{frmModeIndicator, "cmbModeIndicator", "", lblModeIndicator.Tool_Tip};
    // One place for all six: only the one that cmbModeIndicator names is visible.
    Control_Array<Combo_Box, 0, 5> cmbGLLRMVVTG_Mode{frmModeIndicator,
                                                     "cmbGLLRMVVTG_Mode",
                                                     {{"", "Navigational status of GNS"},
                                                      {"", "Status of GLL"},
                                                      {"", "Mode of GLL"},
                                                      {"", "Mode of VTG"},
                                                      {"", "Mode of RMC"},
                                                      {"", "Navigational status of RMC"}}};

    Label lblLocalDatum{*this, "lblLocalDatum", "Local datum", "Datum of the position, in DTM"};
    Label lblRefDatum{*this, "lblRefDatum", "Ref datum", "Datum that the offset leads to, in DTM"};
    Control_Array<Combo_Box, 0, 1> cmbDatum{
        *this,
        "cmbDatum",
        {{"", "Datum of the position, in DTM"}, {"", "Datum that the offset leads to, in DTM"}}};
    Label lblOffset{*this, "lblOffset", "Lat/Lon/Alt offset",
                    "Offset of DTM: latitude and longitude in minutes, altitude in m"};
    Control_Array<Text_Box, 0, 2> txtOffset{
        *this,
        "txtOffset",
        {{"0.0000'", "Latitude offset of DTM, minutes, 0 and above; its direction stands beside it"},
         {"0.0000'", "Longitude offset of DTM, minutes, 0 and above; its direction stands beside it"},
         {"0.0 m", "Altitude offset of DTM, m, of either sign"}}};
    Combo_Box cmbNS{*this, "cmbNS", "", "Direction of the latitude offset"};
    Combo_Box cmbEW{*this, "cmbEW", "", "Direction of the longitude offset"};

    Button cmdGNSS{*this, "cmdGNSS", "Configure GNSS",
                   "Sets the systems behind the fix, and so mode and talker of GNS"};
    Label lblModeIndicatorTitle{*this, "lblModeIndicatorTitle",
                                "GNS Mode Indicator : ", "Mode field of GNS, one letter a system"};
    Label lblGNS_ModeIndicator{*this, "lblGNS_ModeIndicator", "", lblModeIndicatorTitle.Tool_Tip};
    Label lblSystemsTitle{*this, "lblSystemsTitle", "GNSS Systems in use :", "Systems behind the fix"};
    Label lblGNSS{*this, "lblGNSS", "", lblSystemsTitle.Tool_Tip};
    Label lblTalkerTitle{*this, "lblTalkerTitle",
                         "GNS Talker : ", "Talker of GNS: GN unless exactly one system is in use"};
    Label lblGNS_Talker{*this, "lblGNS_Talker", "", lblTalkerTitle.Tool_Tip};

    Frame frmMode3D2D{frmGSA, "frmMode3D2D", "     3D/2D", "Fix of GSA"};
    Option_Group optMode3D2D{
        frmMode3D2D,
        "optMode3D2D",
        {{"3D", "Fix 3 of GSA; 1 with quality 0"}, {"2D", "Fix 2 of GSA; 1 with quality 0"}}};
    Frame frmModeAutMan{frmGSA, "frmModeAutMan", "mode", "How the receiver chooses between 2D and 3D"};
    Option_Group optModeAutMan{
        frmModeAutMan, "optModeAutMan", {{"Auto", "Mode A of GSA"}, {"Manual", "Mode M of GSA"}}};
    Label lblPdop{frmGSA, "lblPdop", "Pdop", "Position dilution of precision in GSA, 1.0 to 13.6 or typed"};
    Combo_Box cmbPdop{frmGSA, "cmbPdop", "", lblPdop.Tool_Tip};
    Label lblVdop{frmGSA, "lblVdop", "Vdop", "Vertical dilution of precision in GSA, 1.0 to 13.6 or typed"};
    Combo_Box cmbVdop{frmGSA, "cmbVdop", "", lblVdop.Tool_Tip};
    Label lblGSAWarning{frmGSA, "lblGSAWarning", "NB! Only 12 first svs will be included in GSA",
                        "GSA has places for 12 satellites: GPS first, then SBAS, then GLONASS"};
    Frame frmSvs{frmGSA, "frmSvs", "GPS Sv's in use", "GPS satellites 1 to 32"};
    Control_Array<Check_Box, 1, 32> chkSv{frmSvs, "chkSv"};
    Frame frmGlonassSvs{frmGSA, "frmGlonassSvs", "GLONASS Sv's in use", "GLONASS satellites 1 to 24"};
    Control_Array<Check_Box, 1, 24> chkGLSv{frmGlonassSvs, "chkGLSv"};
    Label lblGLSvNote{frmGlonassSvs, "lblGLSvNote", "NMEA index 65-88 (Sv No. + 64)",
                      "Number of a GLONASS satellite in GSA and GSV"};
    Frame frmSBAS{frmGSA, "frmSBAS", "SBAS Sv's in use", "Satellites of the augmentation systems"};
    Label lblEGNOS{frmSBAS, "lblEGNOS", "EGNOS", "Augmentation system of Europe"};
    Label lblWAAS{frmSBAS, "lblWAAS", "WAAS", "Augmentation system of North America"};
    Label lblMSAS{frmSBAS, "lblMSAS", "MSAS", "Augmentation system of Japan"};
    Label lblGAGAN{frmSBAS, "lblGAGAN", "GAGAN", "Augmentation system of India"};
    // The caption is the number that counts; the last one has none yet, and nothing reads it.
    Control_Array<Check_Box, 0, 7> chkWAASSv{frmSBAS,
                                             "chkWAASSv",
                                             {{"120 ", "120 (EGNOS AOR-E) NMEA Index 33"},
                                              {"124 ", "124 (EGNOS Artemis) NMEA Index 37"},
                                              {"131", "131 (EGNOS IOR-E) NMEA Index 44"},
                                              {"135", "135 (WAAS PanAm) NMEA Index 48"},
                                              {"138", "138 (WAAS Anik) NMEA Index 51"},
                                              {"129", "129 (MTSAT-1) NMEA Index 42"},
                                              {"137", "137 (MTSAT-2) NMEA Index 50"},
                                              {"x", "xxx (GSAT-4,082E) NMEA Index xx"}}};
    Label lblWAASSvNote{frmSBAS, "lblWAASSvNote", "NMEA index 33-64 (Sv No. - 87)",
                        "Identifier of an SBAS satellite; GSA and GSV report its own number"};

    // The titles of the table are no row of it, so that it has a row for each satellite in view. Its columns
    // are 500 wide; it is as high as its rows up to 19 satellites and scrolls from 20 on.
    Label lblInView{frmGSV, "lblInView", "Svs in view",
                    "Satellites in view, at least those in use, up to 63"};
    Combo_Box cmbInView{frmGSV, "cmbInView", "", lblInView.Tool_Tip};
    Grid hfgGSV{frmGSV,
                "hfgGSV",
                {"PRN", "El", "Az", "SNR"},
                "Elevation and azimuth in degrees, SNR in dB; in use black, others red; new each minute"};
    Timer timer_GSVUpdate{*this, "timer_GSVUpdate"};

    Control_Array<Label, 0, 6> lblGST{frmGST,
                                      "lblGST",
                                      {{"RMS pseudo ranges"},
                                       {"sd Semi Major Axis"},
                                       {"sd Semi Minor Axis"},
                                       {"dir Semi Major Axis"},
                                       {"sd Latitude error"},
                                       {"sd Longitude error"},
                                       {"sd Altitude error"}}};
    // At first with a decimal less than ever after, which is required.
    Control_Array<Text_Box, 0, 6> txtGST{
        frmGST,
        "txtGST",
        {{"0.0 m", "RMS of the standard deviations of the ranges, m, 0 and above"},
         {"0.0 m", "Standard deviation along the error ellipse, m, 0 and above"},
         {"0.0 m", "Standard deviation across the error ellipse, m, 0 and above"},
         {"000 deg", "Direction of the error ellipse, degrees true, 0 to 359"},
         {"0.0 m", "Standard deviation of the latitude, m, 0 and above"},
         {"0.0 m", "Standard deviation of the longitude, m, 0 and above"},
         {"0.0 m", "Standard deviation of the altitude, m, 0 and above"}}};
    Label lblGSTIncrease{frmGST, "lblGSTIncrease", " Left click on label to increase",
                         "By 0.1 m or 1 degree"};
    Label lblGSTDecrease{frmGST, "lblGSTDecrease", "Right click on label to decrease",
                         "By 0.1 m or 1 degree"};
};

Layout Lay_Out_Position(Simulator& Sim, Form& Shown);
Layout Lay_Out_Small_Position(Simulator& Sim, Form& Shown);

} // namespace brinewright
