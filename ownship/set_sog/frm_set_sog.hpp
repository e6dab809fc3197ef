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

    Label lblSOG{*this, "lblSOG", "Set SOG ", "Speed over ground, knots, negative astern"};
    Text_Box txtSOG{*this, "txtSOG", "0.00",
                    "Speed over ground, knots, negative astern; up to the limits of the ship setup"};
    Label lblSOGUnit{*this, "lblSOGUnit", "knots", "Unit of the speed"};
    Label lblCOG{*this, "lblCOG", "Set COG ", "Heading, 0 to under 360 degrees true"};
    Text_Box txtCOG{*this, "txtCOG", "000.00", "Heading, 0 to under 360 degrees true"};
    Label lblCOGUnit{*this, "lblCOGUnit", "deg", "Unit of the heading"};
    Button cmdOK{*this, "cmdOK", "OK",
                 "The ship takes this speed, to a whole percent of the throttle, and this heading"};
    Button cmdCancel{*this, "cmdCancel", "Cancel", "Speed and heading stay as they are"};
};

Layout Lay_Out_Set_SOG(Simulator& Sim, Form& Shown);

extern const Window_Class Set_SOG_Window;

} // namespace brinewright
