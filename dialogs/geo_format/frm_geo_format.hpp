#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

struct Simulator;

// "Geographic Co-ordinates Format Selection": how positions show in text boxes.
struct frmGeoFormat : Form {
    static constexpr const char* Class_Name = "frmGeoFormat";

    explicit frmGeoFormat(Desktop& Windows);

    Option_Group optFormat;
    Label lblExample{*this, "lblExample"};
    // A list without entries: a choice of decimals that is offered nowhere yet.
    Combo_Box cmbDecimals{*this, "cmbDecimals"};
    Label lblDecimals{*this, "lblDecimals", "No of decimals : "};
    Button cmdOk{*this, "cmdOk", "OK"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};
};

Layout Lay_Out_Geo_Format(Simulator& Sim, Form& Shown);

extern const Window_Class Geo_Format_Window;

} // namespace brinewright
