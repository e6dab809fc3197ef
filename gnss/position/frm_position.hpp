#pragma once

#include "gnss/position/gnss_ticks.hpp"
#include "platform/controls.hpp"
#include "platform/form.hpp"
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

#include <memory>
#include <string>

namespace brinewright {

struct Simulator;

// The window of one positioning sensor, GNSS 1 or GNSS 2. Instance, 1 or 2, is at once its form index, its
// Tag and its element of all per-sensor tables.
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

    // frmGGA holds all that is here; the other three stand to its right and show when the window is wide
    // enough.
    Frame frmGGA{*this, "frmGGA"};
    Frame frmGSA{*this, "frmGSA", "GSA data"};
    Frame frmGSV{*this, "frmGSV", "GSV data"};
    Frame frmGST{*this, "frmGST", "GST Data"};
    Label lblShipControl{*this, "lblShipControl", "Lat/Lon and SOG/COG control by Ship"};

    Frame frmSimulator{*this, "frmSimulator"};
    Label lblStartLat{*this, "lblStartLat", "Start Lat"};
    Text_Box txtLat{*this, "txtLat"};
    Label lblStartLon{*this, "lblStartLon", "Start Lon"};
    Text_Box txtLon{*this, "txtLon"};
    Check_Box chkFixOffset{*this, "chkFixOffset", "Fix Offset fr Pos1"};
    Label lblLatitude{*this, "lblLatitude", "Latitude"};
    Label lblLat{*this, "lblLat"};
    Label lblLongitude{*this, "lblLongitude", "Longitude"};
    Label lblLon{*this, "lblLon"};
    Frame frmSOG{*this, "frmSOG", "SOG"};
    Scroll_Bar scrSOG{*this, "scrSOG", 400, 0, 10}; // tenths of a knot
    Label lblSOG{*this, "lblSOG"};
    Text_Box txtSOG{*this, "txtSOG"};
    Label lblSOGUnit{*this, "lblSOGUnit", "knots"};
    Frame frmCOG{*this, "frmCOG", "COG"};
    Scroll_Bar scrCOG{*this, "scrCOG", -1, 3600, 10}; // tenths of a degree; both ends wrap
    Label lblCOG{*this, "lblCOG"};
    Text_Box txtCOG{*this, "txtCOG"};
    Label lblCOGUnit{*this, "lblCOGUnit", "degrees"};
    Check_Box chkNoise{*this, "chkNoise", "Random noise On"};
    Label lblMaxNoise{*this, "lblMaxNoise", "Max noise"};
    Combo_Box cmbNoise{*this, "cmbNoise"};
    Option_Group optAccumulatedNoise{*this, "optAccumulatedNoise", {"Not Accumulated", "Accumulated "}};

    Frame frmSimulatorControl{*this, "frmSimulatorControl", "Simulator Control"};
    Button cmdStart{*this, "cmdStart", "START"};
    Button cmdPause{*this, "cmdPause", "PAUSE"};
    Button cmdArrows{*this, "cmdArrows", "Control SOG/COG by keyboard Arrow keys"};
    Label lblArrows{*this, "lblArrows", "SOG/COG control by Arrow keys"};
    Text_Box txtDummy{*this, "txtDummy"}; // catches the keyboard for the arrow keys
    Timer timer_Simulator{*this, "timer_Simulator"};

    Sentence_Lines Lines{*this, GNSS_Sentences()};

    Label lblDecimals{*this, "lblDecimals", "No of decimals"};
    Label lblDecimalsPosition{*this, "lblDecimalsPosition", "Lat/Lon"};
    Combo_Box cmbDecimals{*this, "cmbDecimals"};
    Label lblDecimalsTime{*this, "lblDecimalsTime", "UTC, sec"};
    Combo_Box cmbDecimalsTime{*this, "cmbDecimalsTime"};

    // Rest of frmGGA: what the fix claims to be.
    Label lblQuality{*this, "lblQuality", " GGA Quality"};
    Combo_Box cmbQuality{*this, "cmbQuality"};
    Label lblSats{*this, "lblSats", "Svs"};
    Combo_Box cmbSats{*this, "cmbSats"};
    Label lblHdop{*this, "lblHdop", "Hdop"};
    Combo_Box cmbHdop{*this, "cmbHdop"};
    Label lblAge{*this, "lblAge", "Diff corr age"};
    Combo_Box cmbAge{*this, "cmbAge"};
    Label lblStnID{*this, "lblStnID", "Diff. Stn ID"};
    Text_Box txtStnID{*this, "txtStnID", "100"};
    Label lblAlt{*this, "lblAlt", "Altit AMSL"};
    Text_Box txtAlt{*this, "txtAlt", "0.0 m"};
    Label lblGeoidSep{*this, "lblGeoidSep", "Geoide Sep"};
    Text_Box txtGeoidSep{*this, "txtGeoidSep", "0.0 m"};
    Check_Box chkDifferential{*this, "chkDifferential", "Differential GNSS"};

    Frame frmModeIndicator{*this, "frmModeIndicator",
                           "Mode and Status indicators for GNS, GLL, RMC and VTG "};
    Label lblModeIndicator{*this, "lblModeIndicator", "Type"};
    Combo_Box cmbModeIndicator{*this, "cmbModeIndicator"};
    // One place for all six: only the one that cmbModeIndicator names is visible.
    Control_Array<Combo_Box, 0, 5> cmbGLLRMVVTG_Mode{*this, "cmbGLLRMVVTG_Mode", ""};

    Label lblLocalDatum{*this, "lblLocalDatum", "Local datum"};
    Label lblRefDatum{*this, "lblRefDatum", "Ref datum"};
    Control_Array<Combo_Box, 0, 1> cmbDatum{*this, "cmbDatum", ""};
    Label lblOffset{*this, "lblOffset", "Lat/Lon/Alt offset"};
    Control_Array<Text_Box, 0, 2> txtOffset{*this, "txtOffset", ""};
    Combo_Box cmbNS{*this, "cmbNS"}; // beside txtOffset(0)
    Combo_Box cmbEW{*this, "cmbEW"}; // beside txtOffset(1)

    Button cmdGNSS{*this, "cmdGNSS", "Configure GNSS"};
    Label lblModeIndicatorTitle{*this, "lblModeIndicatorTitle", "GNS Mode Indicator : "};
    Label lblGNS_ModeIndicator{*this, "lblGNS_ModeIndicator"};
    Label lblSystemsTitle{*this, "lblSystemsTitle", "GNSS Systems in use :"};
    Label lblGNSS{*this, "lblGNSS"};
    Label lblTalkerTitle{*this, "lblTalkerTitle", "GNS Talker : "};
    Label lblGNS_Talker{*this, "lblGNS_Talker"};

    // In frmGSA.
    Frame frmMode3D2D{*this, "frmMode3D2D", "     3D/2D"};
    Option_Group optMode3D2D{*this, "optMode3D2D", {"3D", "2D"}};
    Frame frmModeAutMan{*this, "frmModeAutMan", "mode"};
    Option_Group optModeAutMan{*this, "optModeAutMan", {"Auto", "Manual"}};
    Label lblPdop{*this, "lblPdop", "Pdop"};
    Combo_Box cmbPdop{*this, "cmbPdop"};
    Label lblVdop{*this, "lblVdop", "Vdop"};
    Combo_Box cmbVdop{*this, "cmbVdop"};
    Label lblGSAWarning{*this, "lblGSAWarning", "NB! Only 12 first svs will be included in GSA"};
    Frame frmSvs{*this, "frmSvs", "GPS Sv's in use"};
    Control_Array<Check_Box, 1, 32> chkSv{*this, "chkSv", ""};
    Frame frmGlonassSvs{*this, "frmGlonassSvs", "GLONASS Sv's in use"};
    Control_Array<Check_Box, 1, 24> chkGLSv{*this, "chkGLSv", ""};
    Label lblGLSvNote{*this, "lblGLSvNote", "NMEA index 65-88 (Sv No. + 64)"};
    Frame frmSBAS{*this, "frmSBAS", "SBAS Sv's in use"};
    Label lblEGNOS{*this, "lblEGNOS", "EGNOS"}; // boxes 0 to 2
    Label lblWAAS{*this, "lblWAAS", "WAAS"};    // 3 and 4
    Label lblMSAS{*this, "lblMSAS", "MSAS"};    // 5 and 6
    Label lblGAGAN{*this, "lblGAGAN", "GAGAN"}; // 7
    Control_Array<Check_Box, 0, 7> chkWAASSv{*this, "chkWAASSv", ""};
    Label lblWAASSvNote{*this, "lblWAASSvNote", "NMEA index 33-64 (Sv No. - 87)"};

    // In frmGSV. The titles of the table are no row of it, so that it has a row for each satellite in view.
    // Its columns are 500 wide; it is as high as its rows up to 19 satellites and scrolls from 20 on.
    Label lblInView{*this, "lblInView", "Svs in view"};
    Combo_Box cmbInView{*this, "cmbInView"};
    Grid hfgGSV{*this, "hfgGSV", {"PRN", "El", "Az", "SNR"}};
    Timer timer_GSVUpdate{*this, "timer_GSVUpdate"};

    // In frmGST.
    Control_Array<Label, 0, 6> lblGST{*this, "lblGST", ""};
    Control_Array<Text_Box, 0, 6> txtGST{*this, "txtGST", ""};
    Label lblGSTIncrease{*this, "lblGSTIncrease", " Left click on label to increase"};
    Label lblGSTDecrease{*this, "lblGSTDecrease", "Right click on label to decrease"};
};

Layout Lay_Out_Position(Simulator& Sim, Form& Shown);

extern const Window_Class GNSS_Windows;

// The width that shows frmGGA and, left to right, as far as the last of GSA, GSV and GST that is enabled.
void Fit_Width(Simulator& Sim, frmPosition& W);

void cmdStart_Click(Simulator& Sim, frmPosition& W);
void cmdPause_Click(Simulator& Sim, frmPosition& W);
void cmbDecimals_Click(Simulator& Sim, frmPosition& W);
void cmbDecimalsTime_Click(Simulator& Sim, frmPosition& W);

} // namespace brinewright
