#include "gnss/position/position_tips.hpp"

#include "gnss/position/frm_position.hpp"
#include "platform/tool_tips.hpp"

namespace brinewright {

namespace {

void Set_Fix_Tips(frmPosition& W) {
    constexpr const char* HDOP = "Horizontal dilution of precision in GGA, GNS and GSA, 1.0 to 13.6 or typed";
    constexpr const char* PDOP = "Position dilution of precision in GSA, 1.0 to 13.6 or typed";
    constexpr const char* VDOP = "Vertical dilution of precision in GSA, 1.0 to 13.6 or typed";
    constexpr const char* Age = "Age of the differential corrections in GGA and GNS, 0 to 63 s or typed";
    constexpr const char* Station = "Differential reference station in GGA and GNS, 0 to 1023";
    constexpr const char* Altitude = "Antenna above mean sea level in GGA and GNS, m, below it negative";
    constexpr const char* Geoid = "Geoid above the ellipsoid in GGA and GNS, m, below it negative";
    constexpr const char* Quality = "Quality of GGA, 0 to 8; 0 also makes the fix of GSA 1, no fix";
    const Tip_Row Tips[] = {
        {W.lblQuality, Quality},
        {W.cmbQuality, Quality},
        {W.lblHdop, HDOP},
        {W.cmbHdop, HDOP},
        {W.lblPdop, PDOP},
        {W.cmbPdop, PDOP},
        {W.lblVdop, VDOP},
        {W.cmbVdop, VDOP},
        {W.lblAge, Age},
        {W.cmbAge, Age},
        {W.lblStnID, Station},
        {W.txtStnID, Station},
        {W.lblAlt, Altitude},
        {W.txtAlt, Altitude},
        {W.lblGeoidSep, Geoid},
        {W.txtGeoidSep, Geoid},
        {W.chkDifferential, "Set GGA/GNS/GLL/RMC/VTG to 'Differential mode'"},
        {W.frmMode3D2D, "Fix of GSA"},
        {*W.optMode3D2D.Buttons[0], "Fix 3 of GSA; 1 with quality 0"},
        {*W.optMode3D2D.Buttons[1], "Fix 2 of GSA; 1 with quality 0"},
        {W.frmModeAutMan, "How the receiver chooses between 2D and 3D"},
        {*W.optModeAutMan.Buttons[0], "Mode A of GSA"},
        {*W.optModeAutMan.Buttons[1], "Mode M of GSA"},
    };
    Show_Tips(Tips);
}

void Set_Mode_Tips(frmPosition& W) {
    constexpr const char* Which = "The letter to set: one of six in GNS, GLL, VTG and RMC";
    constexpr const char* Field = "Mode field of GNS, one letter a system";
    constexpr const char* Systems = "Systems behind the fix";
    constexpr const char* Talker = "Talker of GNS: GN unless exactly one system is in use";
    constexpr const char* Letters[] = {
        "Navigational status of GNS", "Status of GLL", "Mode of GLL", "Mode of VTG", "Mode of RMC",
        "Navigational status of RMC"};
    const Tip_Row Tips[] = {
        {W.frmModeIndicator, "Letters that tell how far the data can be trusted"},
        {W.lblModeIndicator, Which},
        {W.cmbModeIndicator, Which},
        {W.cmdGNSS, "Sets the systems behind the fix, and so mode and talker of GNS"},
        {W.lblModeIndicatorTitle, Field},
        {W.lblGNS_ModeIndicator, Field},
        {W.lblSystemsTitle, Systems},
        {W.lblGNSS, Systems},
        {W.lblTalkerTitle, Talker},
        {W.lblGNS_Talker, Talker},
    };
    Show_Tips(Tips);
    for (const auto& List : W.cmbGLLRMVVTG_Mode) List->Tool_Tip = std::string(Letters[List->Index]);
}

void Set_Datum_Tips(frmPosition& W) {
    const Tip_Row Tips[] = {
        {W.lblLocalDatum, "Datum of the position, in DTM"},
        {W.cmbDatum[0], "Datum of the position, in DTM"},
        {W.lblRefDatum, "Datum that the offset leads to, in DTM"},
        {W.cmbDatum[1], "Datum that the offset leads to, in DTM"},
        {W.lblOffset, "Offset of DTM: latitude and longitude in minutes, altitude in m"},
        {W.txtOffset[0], "Latitude offset of DTM, minutes, 0 and above; its direction stands beside it"},
        {W.cmbNS, "Direction of the latitude offset"},
        {W.txtOffset[1], "Longitude offset of DTM, minutes, 0 and above; its direction stands beside it"},
        {W.cmbEW, "Direction of the longitude offset"},
        {W.txtOffset[2], "Altitude offset of DTM, m, of either sign"},
    };
    Show_Tips(Tips);
}

// The boxes of SBAS have their own hints.
void Set_Satellite_Tips(frmPosition& W) {
    constexpr const char* In_Use =
        "Satellites in use, 0 to 63: checks the lowest free boxes or unchecks the last";
    constexpr const char* In_View = "Satellites in view, at least those in use, up to 63";
    const Tip_Row Tips[] = {
        {W.lblSats, In_Use},
        {W.cmbSats, In_Use},
        {W.lblGSAWarning, "GSA has places for 12 satellites: GPS first, then SBAS, then GLONASS"},
        {W.frmSvs, "GPS satellites 1 to 32"},
        {W.frmGlonassSvs, "GLONASS satellites 1 to 24"},
        {W.lblGLSvNote, "Number of a GLONASS satellite in GSA and GSV"},
        {W.frmSBAS, "Satellites of the augmentation systems"},
        {W.lblEGNOS, "Augmentation system of Europe"},
        {W.lblWAAS, "Augmentation system of North America"},
        {W.lblMSAS, "Augmentation system of Japan"},
        {W.lblGAGAN, "Augmentation system of India"},
        {W.lblWAASSvNote, "Identifier of an SBAS satellite; GSA and GSV report its own number"},
        {W.lblInView, In_View},
        {W.cmbInView, In_View},
        {W.hfgGSV, "Elevation and azimuth in degrees, SNR in dB; in use black, others red; new each minute"},
    };
    Show_Tips(Tips);
    for (const auto& Box : W.chkSv)
        Box->Tool_Tip = "GPS satellite " + std::to_string(Box->Index) + " is in use";
    for (const auto& Box : W.chkGLSv)
        Box->Tool_Tip = "GLONASS satellite " + std::to_string(Box->Index) + " is in use";
}

void Set_GST_Tips(frmPosition& W) {
    constexpr const char* Contents[] = {"RMS of the standard deviations of the ranges, m, 0 and above",
                                        "Standard deviation along the error ellipse, m, 0 and above",
                                        "Standard deviation across the error ellipse, m, 0 and above",
                                        "Direction of the error ellipse, degrees true, 0 to 359",
                                        "Standard deviation of the latitude, m, 0 and above",
                                        "Standard deviation of the longitude, m, 0 and above",
                                        "Standard deviation of the altitude, m, 0 and above"};
    for (const auto& Box : W.txtGST) {
        const std::string Content = Contents[Box->Index];
        Box->Tool_Tip = Content;
        W.lblGST[Box->Index].Tool_Tip = Content + "; a click steps by " + (Box->Index == 3 ? "1" : "0.1");
    }
    const Tip_Row Tips[] = {{W.lblGSTIncrease, "By 0.1 m or 1 degree"},
                            {W.lblGSTDecrease, "By 0.1 m or 1 degree"}};
    Show_Tips(Tips);
}

} // namespace

void Set_Fix_Tool_Tips(frmPosition& W) {
    Set_Fix_Tips(W);
    Set_Mode_Tips(W);
    Set_Datum_Tips(W);
    Set_Satellite_Tips(W);
    Set_GST_Tips(W);
}

} // namespace brinewright
