#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

extern const Window_Class Geo_Format_Window;

// "Geographic Co-ordinates Format Selection": how positions show in text boxes.
struct frmGeoFormat : Form {
    static constexpr const char* Class_Name = "frmGeoFormat";

    explicit frmGeoFormat(Desktop& Windows);

    // Code B0 is the degree sign.
    Option_Group optFormat{
        *this,
        "optFormat",
        {{" DD\xB0 MM.mmmm N", "Positions in degrees and minutes, 4 decimals"},
         {" DD\xB0 MM' SS.sss\" N", "Positions in degrees, minutes and seconds, 3 decimals"}}};
    Label lblExample{*this, "lblExample"};
    // A list without entries: a choice of decimals that is offered nowhere yet.
    Combo_Box cmbDecimals{*this, "cmbDecimals", "", "Decimals of the example"};
    Label lblDecimals{*this, "lblDecimals", "No of decimals : "};
    Button cmdOk{*this, "cmdOk", "OK", "Shows all positions in this format"};
    Button cmdCancel{*this, "cmdCancel", "Cancel", "Leaves the format as it was"};
};

Layout Lay_Out_Geo_Format(Simulator& Sim, Form& Shown);

} // namespace brinewright
