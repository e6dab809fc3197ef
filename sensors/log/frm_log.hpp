#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "sensors/log/log_ticks.hpp"
#include "sentences/compose_vbw.hpp"
#include "sentences/compose_vdr.hpp"
#include "sentences/compose_vhw.hpp"
#include "sentences/compose_vlw.hpp"
#include "shell/kit/sensor_form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

struct Simulator;

// The window of one speed log, Log 1 or Log 2. Instance, 1 or 2, is its element of all per-sensor tables; its
// form index, 5 or 6, is its Tag.
struct frmLog : Sensor_Form {
    static constexpr const char* Class_Name = "frmLog";

    frmLog(Desktop& Windows, int Its_Instance);

    // What the sentences are composed from. The ticks refresh what changes; all else stays as the controls
    // left it.
    brinewright::VHW_Record VHW_Record;
    brinewright::VBW_Record VBW_Record;
    brinewright::VDR_Record VDR_Record;
    brinewright::VLW_Record VLW_Record;

    Label lblShipControl{*this, "lblShipControl", "Log control by Ship"};

    Frame frmSpeed{*this, "frmSpeed", "Speed"};
    Scroll_Bar scrSpeed{*this, "scrSpeed", 400, 0, 10}; // tenths of a knot, vertical
    Label lblSpeed{*this, "lblSpeed"};
    Text_Box txtSpeed{*this, "txtSpeed"};
    Label lblSpeedUnit{*this, "lblSpeedUnit", "knots"};

    Check_Box chkNoise{*this, "chkNoise", "Random noise On"};
    Label lblMaxNoise{*this, "lblMaxNoise", "Max noise"};
    Combo_Box cmbNoise{*this, "cmbNoise"};
    Check_Box chkInvalid{*this, "chkInvalid", "Flag as invalid"};

    Sentence_Lines Lines{*this, Log_Sentences()};
    Button cmdResetVLW{*this, "cmdResetVLW", "Reset VLW"};
    Label lblVLW{*this, "lblVLW"}; // two lines

    Label lblCurrentTitle{*this, "lblCurrentTitle", "Current value"};
    Label lblCurrentSpeed{*this, "lblCurrentSpeed"};
};

Layout Lay_Out_Log(Simulator& Sim, Form& Shown);

extern const Window_Class Log_Windows;

} // namespace brinewright
