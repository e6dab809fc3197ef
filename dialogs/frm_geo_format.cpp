#include "dialogs/frm_geo_format.hpp"

#include "ownship/format_position.hpp"
#include "ownship/latin1.hpp"
#include "shell/open_once.hpp"
#include "shell/simulator.hpp"

namespace brinewright {

namespace {

constexpr std::int16_t Minute_Decimals = 4;
constexpr std::int16_t Second_Decimals = 3;

void Show_Example(const Simulator& Sim, frmGeoFormat& F, int Format, std::int16_t Decimals) {
    const double Lat = Sim.State.Nav_Lat;
    F.lblExample.Caption =
        Format == 0 ? Format_DM(Lat, "LAT", "Form", Decimals) : Format_DMS_Wide(Lat, "LAT", "Form", Decimals);
}

void cmdOk_Click(Simulator& Sim, frmGeoFormat& F) {
    Sim.State.LatLon_Format = 0;
    if (F.optFormat.Selected() == 1) Sim.State.LatLon_Format = 1;
    Sim.Windows.Unload(F);
}

void frmGeoFormat_Load(Simulator& Sim, frmGeoFormat& F) {
    F.optFormat.Click = [&Sim, &F](int Format) {
        Show_Example(Sim, F, Format, Format == 0 ? Minute_Decimals : Second_Decimals);
    };
    F.cmbDecimals.Click = [&Sim, &F] {
        Show_Example(Sim, F, F.optFormat.Selected(), static_cast<std::int16_t>(F.cmbDecimals.List_Index()));
    };
    F.optFormat.Buttons[0]->Tool_Tip = std::string("Positions in degrees and minutes, 4 decimals");
    F.optFormat.Buttons[1]->Tool_Tip = std::string("Positions in degrees, minutes and seconds, 3 decimals");
    F.cmbDecimals.Tool_Tip = std::string("Decimals of the example");
    F.cmdOk.Tool_Tip = std::string("Shows all positions in this format");
    F.cmdCancel.Tool_Tip = std::string("Leaves the format as it was");
    F.cmdOk.Click = [&Sim, &F] { cmdOk_Click(Sim, F); };
    F.cmdCancel.Click = [&Sim, &F] { Sim.Windows.Unload(F); };
    // A setup may hold any number; whatever is not 0 shows positions in degrees, minutes and seconds.
    F.optFormat.Select(Sim.State.LatLon_Format == 0 ? 0 : 1);
}

std::vector<std::string> Format_Captions() {
    const std::string Degree(1, '\xB0');
    return {" DD" + Degree + " MM.mmmm N", " DD" + Degree + " MM' SS.sss\" N"};
}

} // namespace

frmGeoFormat::frmGeoFormat(Desktop& Its_Windows)
    : Form(Its_Windows, "frmGeoFormat", 0, Form_Kind::Dialog),
      optFormat(*this, "optFormat", Format_Captions()) {
    Caption = "Geographic Co-ordinates Format Selection";
}

void mnuSetupLatLonFormat_Click(Simulator& Sim) { Open_Once(Sim, Sim.GeoFormat, frmGeoFormat_Load); }

} // namespace brinewright
