#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "sentences/compose_dbt.hpp"
#include "sentences/compose_dpt.hpp"
#include "shell/sensor_form.hpp"

#include <memory>

namespace brinewright {

struct Simulator;

// The window of one echo sounder. Instance, 1 or 2, is its element of all per-sensor tables. The depth is set
// by hand in both modes of the simulator.
struct frmEchosounder : Sensor_Form {
    frmEchosounder(Desktop& Windows, int Its_Instance);

    // What the sentences are composed from. The ticks refresh what changes.
    brinewright::DBT_Record DBT_Record;
    brinewright::DPT_Record DPT_Record;

    float Depth_Value = 0;       // metres below the transducer, without noise
    float Transducer_Offset = 0; // metres; positive to the waterline, negative to the keel

    Label lblEchosounder{*this, "lblEchosounder", "ECHOSOUNDER"};

    Frame frmDepth{*this, "frmDepth", "Depth"};
    Scroll_Bar scrDepth{*this, "scrDepth", 0, 4000, 10}; // tenths of a metre, the surface at the top
    Label lblDepth{*this, "lblDepth"};
    Text_Box txtDepth{*this, "txtDepth"};
    Label lblDepthUnit{*this, "lblDepthUnit", "meter"};

    Label lblTransducer{*this, "lblTransducer", "Transducer"}; // two lines of one caption
    Label lblOffset{*this, "lblOffset", "offset"};
    Combo_Box cmbOffset{*this, "cmbOffset"};

    Check_Box chkNoise{*this, "chkNoise", "Random noise On"};
    Label lblMaxNoise{*this, "lblMaxNoise", "Max noise"};
    Combo_Box cmbNoise{*this, "cmbNoise"};

    Frame frmCurrentValue{*this, "frmCurrentValue", "Current value"};
    Label lblCurrentDepth{*this, "lblCurrentDepth"};

    Check_Box chkDBT{*this, "chkDBT", "DBT"};
    Combo_Box cmbDBTInterval{*this, "cmbDBTInterval"};
    Timer timer_DBT{*this, "timer_DBT"};
    Check_Box chkDPT{*this, "chkDPT", "DPT"};
    Combo_Box cmbDPTInterval{*this, "cmbDPTInterval"};
    Timer timer_DPT{*this, "timer_DPT"};
};

// Opens the window of the echo sounder that Open_Form_Index names, 7 or 8, up to the point where it can be
// shown. Another index throws Run_Time_Error "Subscript out of range".
std::shared_ptr<Sensor_Form> Load_frmEchosounder(Simulator& Sim);

} // namespace brinewright
