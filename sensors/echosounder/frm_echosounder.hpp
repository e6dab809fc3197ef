#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "sensors/echosounder/echo_ticks.hpp"
#include "sentences/compose_dbt.hpp"
#include "sentences/compose_dpt.hpp"
#include "shell/kit/sensor_form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

struct Simulator;

// The window of one echo sounder. Instance, 1 or 2, is its element of all per-sensor tables. The depth is set
// by hand in both modes of the simulator.
struct frmEchosounder : Sensor_Form {
    static constexpr const char* Class_Name = "frmEchosounder";

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

    Sentence_Lines Lines{*this, Echo_Sentences()};
};

Layout Lay_Out_Echosounder(Simulator& Sim, Form& Shown);

extern const Window_Class Echosounder_Windows;

} // namespace brinewright
