#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

struct Simulator;

// "Set SOG/COG": speed and heading of the own ship by number.
struct frmSetSOG : Form {
    static constexpr const char* Class_Name = "frmSetSOG";

    explicit frmSetSOG(Desktop& Windows);

    Label lblSOG{*this, "lblSOG", "Set SOG "};
    Text_Box txtSOG{*this, "txtSOG", "0.00"};
    Label lblSOGUnit{*this, "lblSOGUnit", "knots"};
    Label lblCOG{*this, "lblCOG", "Set COG "};
    Text_Box txtCOG{*this, "txtCOG", "000.00"};
    Label lblCOGUnit{*this, "lblCOGUnit", "deg"};
    Button cmdOK{*this, "cmdOK", "OK"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};
};

Layout Lay_Out_Set_SOG(Simulator& Sim, Form& Shown);

extern const Window_Class Set_SOG_Window;

} // namespace brinewright
