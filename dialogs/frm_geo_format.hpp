#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"

namespace brinewright {

struct Simulator;

// "Geographic Co-ordinates Format Selection": how positions show in text boxes.
struct frmGeoFormat : Form {
    explicit frmGeoFormat(Desktop& Windows);

    Option_Group optFormat;
    Label lblExample{*this, "lblExample"};
    // A list without entries: a choice of decimals that is offered nowhere yet.
    Combo_Box cmbDecimals{*this, "cmbDecimals"};
    Label lblDecimals{*this, "lblDecimals", "No of decimals : "};
    Button cmdOk{*this, "cmdOk", "OK"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};
};

void mnuSetupLatLonFormat_Click(Simulator& Sim); // opens the dialog or gives it the focus

} // namespace brinewright
