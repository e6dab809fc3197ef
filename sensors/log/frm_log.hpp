#pragma once

#include "sentences/compose_vbw.hpp"
#include "sentences/compose_vdr.hpp"
#include "sentences/compose_vhw.hpp"
#include "sentences/compose_vlw.hpp"
#include "shell/kit/sensor_form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

extern const Window_Class Log_Windows;

// The window of one speed log. Instance, 1 or 2, is its element of all per-sensor tables.
struct frmLog : Sensor_Form {
    static constexpr const char* Class_Name = "frmLog";

    frmLog(Desktop& Windows, int Its_Instance);

    // What the sentences are composed from. The ticks refresh what changes; all else stays as the controls
    // left it.
    brinewright::VHW_Record VHW_Record;
    brinewright::VBW_Record VBW_Record;
    brinewright::VDR_Record VDR_Record;
    brinewright::VLW_Record VLW_Record;

    Label lblShipControl{*this, "lblShipControl", "Log control by Ship",
                         "In Ship mode the ship sets the speed of this log"};

    Frame frmSpeed{*this, "frmSpeed", "Speed", "Speed through the water, knots"};
    Scroll_Bar scrSpeed{frmSpeed, "scrSpeed",
                        400,      0, // fast at the top
                        10,       "Speed through the water, 0.0 to 40.0 knots in steps of 0.1"};
    Label lblSpeed{frmSpeed, "lblSpeed", "", "Speed through the water, knots"};
    Text_Box txtSpeed{
        frmSpeed, "txtSpeed", "",
        "Speed through the water, knots, 0.0 and above; typed speeds may exceed the 40.0 of the bar"};
    Label lblSpeedUnit{frmSpeed, "lblSpeedUnit", "knots", "Unit of the speed"};

    Check_Box chkNoise{*this, "chkNoise", "Random noise On",
                       "Adds a random error to the speed through the water, in each sentence anew"};
    Label lblMaxNoise{*this, "lblMaxNoise", "Max noise", "Largest error to either side, 0.0 to 10 knots"};
    Combo_Box cmbNoise{*this, "cmbNoise", "", "Largest error to either side, 0.0 to 10 knots"};
    Check_Box chkInvalid{*this, "chkInvalid", "Flag as invalid", "Marks all speeds of VBW as not valid"};

    Sentence_Lines Lines{*this, Log_Windows.Sentences};
    Button cmdResetVLW{*this, "cmdResetVLW", "Reset VLW",
                       "Sets both trip distances of VLW to 0 nautical miles; the totals go on"};
    Label lblVLW{*this, "lblVLW", "", // two lines, with the number of the log
                 "Where the distances of VLW, in nautical miles, take their speeds from"};

    Label lblCurrentTitle{*this, "lblCurrentTitle", "Current value", "Speed last sent in VHW or VBW, knots"};
    Label lblCurrentSpeed{*this, "lblCurrentSpeed", "", "Speed last sent in VHW or VBW, knots"};
};

Layout Lay_Out_Log(Simulator& Sim, Form& Shown);
Layout Lay_Out_Small_Log(Simulator& Sim, Form& Shown);

} // namespace brinewright
