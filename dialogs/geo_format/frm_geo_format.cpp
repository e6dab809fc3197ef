#include "dialogs/geo_format/frm_geo_format.hpp"

#include "ownship/geodesy/format_position.hpp"
#include "ownship/navdata_state.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/simulator.hpp"

namespace brinewright {

namespace {

constexpr int Minute_Decimals = 4;
constexpr int Second_Decimals = 3;

void Show_Example(const Simulator& Sim, frmGeoFormat& F, int Decimals) {
    const auto Format = F.optFormat.Selected() == 0 ? Format_DM : Format_DMS_Wide;
    F.lblExample.Caption =
        Format(Sim.State.Of<Navdata_State>().Nav_Lat, "LAT", "Form", static_cast<std::int16_t>(Decimals));
}

void frmGeoFormat_Load(Simulator& Sim, Form& Opened) {
    auto& F = static_cast<frmGeoFormat&>(Opened);
    auto& Format = Sim.State.Of<Shell_State>().LatLon_Format;
    F.optFormat.Click = [&](int Chosen) {
        Show_Example(Sim, F, Chosen == 0 ? Minute_Decimals : Second_Decimals);
    };
    F.cmbDecimals.Click = [&] { Show_Example(Sim, F, F.cmbDecimals.List_Index()); };
    F.cmdOk.Click = [&] {
        Format = F.optFormat.Selected() == 1 ? 1 : 0;
        Sim.Windows.Unload(F);
    };
    F.cmdCancel.Click = [&] { Sim.Windows.Unload(F); };
    // A setup may hold any number; whatever is not 0 shows positions in degrees, minutes and seconds.
    F.optFormat.Select(Format == 0 ? 0 : 1);
}

} // namespace

frmGeoFormat::frmGeoFormat(Desktop& Its_Windows) : Form(Its_Windows, Class_Name, 0, Form_Kind::Dialog) {
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
