#pragma once

#include "sentences/compose_dbt.hpp"
#include "sentences/compose_dpt.hpp"
#include "shell/kit/sensor_form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

extern const Window_Class Echosounder_Windows;

// The window of one echo sounder. Instance, 1 or 2, is its element of all per-sensor tables. The depth is set
// by hand in both modes of the simulator.
struct frmEchosounder : Sensor_Form {
    static constexpr const char* Class_Name = "frmEchosounder";
    static constexpr const char* Offset_Tip =
        "Transducer offset. Positive means transducer to waterline, negative means transducer to keel";

    frmEchosounder(Desktop& Windows, int Its_Instance);

    // What the sentences are composed from. The ticks refresh what changes.
    brinewright::DBT_Record DBT_Record;
    brinewright::DPT_Record DPT_Record;

    float Depth_Value = 0;       // metres below the transducer, without noise
    float Transducer_Offset = 0; // metres; positive to the waterline, negative to the keel

    Label lblEchosounder{*this, "lblEchosounder", "ECHOSOUNDER",
                         "Depth sounder; its depth is set by hand in both modes"};

    Frame frmDepth{*this, "frmDepth", "Depth", "Depth below the transducer, metres"};
    Scroll_Bar scrDepth{frmDepth, "scrDepth",
                        0,        4000, // the surface at the top
                        10,       "Depth below the transducer, 0.0 to 400.0 m in steps of 0.1"};
    Label lblDepth{frmDepth, "lblDepth", "", "Depth below the transducer, metres"};
    Text_Box txtDepth{frmDepth, "txtDepth", "",
                      "Depth below the transducer, metres, 0.0 and above; typed depths may exceed the 400.0 "
                      "of the bar"};
    Label lblDepthUnit{frmDepth, "lblDepthUnit", "meter", "Unit of the depth"};

    Label lblTransducer{*this, "lblTransducer", "Transducer", Offset_Tip}; // two lines of one caption
    Label lblOffset{*this, "lblOffset", "offset", Offset_Tip};
    Combo_Box cmbOffset{*this, "cmbOffset", "", Offset_Tip};

    Check_Box chkNoise{*this, "chkNoise", "Random noise On",
                       "Adds a random error to the depth, for each sentence anew"};
    Label lblMaxNoise{*this, "lblMaxNoise", "Max noise", "Largest error to either side, 0 to 20 m"};
    Combo_Box cmbNoise{*this, "cmbNoise", "", "Largest error to either side, 0 to 20 m"};

    Frame frmCurrentValue{*this, "frmCurrentValue", "Current value", "What left with the last sentence"};
    Label lblCurrentDepth{frmCurrentValue, "lblCurrentDepth", "", "Depth last sent, noise included, metres"};

    Sentence_Lines Lines{*this, Echosounder_Windows.Sentences};
};

Layout Lay_Out_Echosounder(Simulator& Sim, Form& Shown);
Layout Lay_Out_Small_Echosounder(Simulator& Sim, Form& Shown);

} // namespace brinewright
