#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "platform/table.hpp"
#include "sensors/gyro/gyro_ticks.hpp"
#include "sentences/compose_att.hpp"
#include "sentences/compose_hdt.hpp"
#include "sentences/compose_prdid.hpp"
#include "sentences/compose_rot.hpp"
#include "sentences/compose_ths.hpp"
#include "shell/kit/sensor_form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

struct Simulator;

// The window of one gyro compass with attitude output, Gyro 1 or Gyro 2. Instance, 1 or 2, is its element of
// all per-sensor tables; its form index, 3 or 4, is its Tag.
struct frmGyro : Sensor_Form {
    static constexpr const char* Class_Name = "frmGyro";

    frmGyro(Desktop& Windows, int Its_Instance);

    // What the sentences are composed from. The ticks refresh what changes; all else stays as the controls
    // left it.
    brinewright::HDT_Record HDT_Record;
    brinewright::THS_Record THS_Record;
    brinewright::ROT_Record ROT_Record;
    brinewright::ATT_Record ATT_Record;
    brinewright::PRDID_Record PRDID_Record;

    float Noisy_HDG = 0;  // degrees: the heading that the last simulator tick made
    float Roll_Value = 0; // degrees, set by hand
    float Pitch_Value = 0;
    Table<float, 0, 3> Noise_Max; // of heading, rate of turn, roll, pitch: the numbers in cmbNoise

    Label lblShipControl{*this, "lblShipControl", "Hdg and ROT control by Ship"};

    Frame frmSimulator{*this, "frmSimulator"};
    Frame frmHDG{*this, "frmHDG", "Heading"};
    Scroll_Bar scrHDG{*this, "scrHDG", -1, 3600, 10}; // tenths of a degree; both ends wrap
    Text_Box txtHDG{*this, "txtHDG"};
    Frame frmROT{*this, "frmROT", "Rate Of Turn"};
    Scroll_Bar scrROT{*this, "scrROT", -300, 300, 10}; // tenths of a degree per minute
    Text_Box txtROT{*this, "txtROT"};
    Label lblROTUnit{*this, "lblROTUnit", "deg/min"};
    Frame frmRoll{*this, "frmRoll", "Roll "};
    Scroll_Bar scrRoll{*this, "scrRoll", -150, 150, 10}; // tenths of a degree
    Text_Box txtRoll{*this, "txtRoll"};
    Frame frmPitch{*this, "frmPitch", "Pitch"};
    Scroll_Bar scrPitch{*this, "scrPitch", 150, -150, 10}; // tenths of a degree, vertical, bow up at the top
    Text_Box txtPitch{*this, "txtPitch"};

    Check_Box chkNoise{*this, "chkNoise", "Random noise On"};
    Option_Group optAccumulatedNoise{
        *this, "optAccumulatedNoise", {"Not Accumulated", "Accumulated (Only Hdg)"}};
    Label lblMaxNoise{*this, "lblMaxNoise", "Max noise"};
    Control_Array<Label, 0, 3> lblNoise{*this, "lblNoise", ""}; // whose noise the list beside it is
    Control_Array<Combo_Box, 0, 3> cmbNoise{*this, "cmbNoise", ""};

    Frame frmSimulatorControl{*this, "frmSimulatorControl", "Simulator Control"};
    Button cmdStart{*this, "cmdStart", "START"};
    Button cmdPause{*this, "cmdPause", "PAUSE"};
    Timer timer_Simulator{*this, "timer_Simulator"};

    Label lblModeIndicator{*this, "lblModeIndicator", "THS Mode Indicator"};
    Combo_Box cmbModeIndicator{*this, "cmbModeIndicator"};
    Label lblDecimals{*this, "lblDecimals", "No of decimals"};
    Combo_Box cmbDecimals{*this, "cmbDecimals"};

    Sentence_Lines Lines{*this, Gyro_Sentences()};

    // The values last sent, with what they are in front.
    Frame frmCurrent{*this, "frmCurrent", "Current values"};
    Label lblHdgTitle{*this, "lblHdgTitle", "Heading"};
    Label lblCurrentHdg{*this, "lblCurrentHdg"};
    Label lblRotTitle{*this, "lblRotTitle", "Rate Of Turn"};
    Label lblCurrentRot{*this, "lblCurrentRot"};
    Label lblRollTitle{*this, "lblRollTitle", "Roll "};
    Label lblCurrentRoll{*this, "lblCurrentRoll"};
    Label lblPitchTitle{*this, "lblPitchTitle", "Pitch"};
    Label lblCurrentPitch{*this, "lblCurrentPitch"};
};

Layout Lay_Out_Gyro(Simulator& Sim, Form& Shown);

extern const Window_Class Gyro_Windows;

void cmdStart_Click(Simulator& Sim, frmGyro& W);
void cmdPause_Click(Simulator& Sim, frmGyro& W);

} // namespace brinewright
