#include "dialogs/geo_format/frm_geo_format.hpp"

#include "ownship/geodesy/format_position.hpp"
#include "ownship/geodesy/latin1.hpp"
#include "ownship/navdata_state.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

namespace brinewright {

namespace {

constexpr std::int16_t Minute_Decimals = 4;
constexpr std::int16_t Second_Decimals = 3;

void Show_Example(const Simulator& Sim, frmGeoFormat& F, int Format, std::int16_t Decimals) {
    const double Lat = Sim.State.Of<Navdata_State>().Nav_Lat;
    F.lblExample.Caption =
        Format == 0 ? Format_DM(Lat, "LAT", "Form", Decimals) : Format_DMS_Wide(Lat, "LAT", "Form", Decimals);
}

void cmdOk_Click(Simulator& Sim, frmGeoFormat& F) {
    Sim.State.Of<Shell_State>().LatLon_Format = 0;
    if (F.optFormat.Selected() == 1) Sim.State.Of<Shell_State>().LatLon_Format = 1;
    Sim.Windows.Unload(F);
}

void frmGeoFormat_Load(Simulator& Sim, Form& Opened) {
    auto& F = static_cast<frmGeoFormat&>(Opened);
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
    F.optFormat.Select(Sim.State.Of<Shell_State>().LatLon_Format == 0 ? 0 : 1);
}

std::vector<std::string> Format_Captions() {
    const std::string Degree(1, '\xB0');
    return {" DD" + Degree + " MM.mmmm N", " DD" + Degree + " MM' SS.sss\" N"};
}

} // namespace

frmGeoFormat::frmGeoFormat(Desktop& Its_Windows)
    : Form(Its_Windows, Class_Name, 0, Form_Kind::Dialog), optFormat(*this, "optFormat", Format_Captions()) {
    Caption = "Geographic Co-ordinates Format Selection";
}

const Window_Class Geo_Format_Window{.Name = frmGeoFormat::Class_Name,
                                     .Entry = {.Name = "mnuSetupLatLonFormat",
                                               .Menu = "Setup",
                                               .Text = "Lat/Lon format",
                                               .Place = 4,
                                               .Checked_While_Open = false},
                                     .Make = Make_Single<frmGeoFormat>,
                                     .Load = frmGeoFormat_Load,
                                     .Lay_Out = Lay_Out_Geo_Format};

} // namespace brinewright
