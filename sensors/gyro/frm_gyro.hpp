#pragma once

#include "sentences/compose_att.hpp"
#include "sentences/compose_hdt.hpp"
#include "sentences/compose_prdid.hpp"
#include "sentences/compose_rot.hpp"
#include "sentences/compose_ths.hpp"
#include "shell/kit/sensor_form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

extern const Window_Class Gyro_Windows;

// The window of one gyro compass with attitude output. Instance, 1 or 2, is its element of all per-sensor
// tables.
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

    Label lblShipControl{*this, "lblShipControl", "Hdg and ROT control by Ship",
                         "In Ship mode the ship sets heading and rate of turn of this gyro"};

    // Bars count in tenths of a degree, or of a degree per minute.
    Frame frmSimulator{*this, "frmSimulator", "", "Heading, turn and attitude of this gyro, set by hand"};
    Frame frmHDG{frmSimulator, "frmHDG", "Heading", "Heading, degrees true"};
    Scroll_Bar scrHDG{
        frmHDG, "scrHDG", -1,
        3600,   10,       "Heading, 0.0 to 359.9 degrees true in steps of 0.1; both ends lead past north"};
    Text_Box txtHDG{frmHDG, "txtHDG", "", "Heading, 0.0 to 360.0 degrees true"};
    Frame frmROT{frmSimulator, "frmROT", "Rate Of Turn",
                 "Rate of turn, degrees per minute, to starboard positive"};
    Scroll_Bar scrROT{
        frmROT, "scrROT",
        -300,   300,
        10,     "Rate of turn, -30.0 to 30.0 degrees per minute in steps of 0.1, to starboard positive"};
    Text_Box txtROT{frmROT, "txtROT", "",
                    "Rate of turn, -30.0 to 30.0 degrees per minute, to starboard positive"};
    Label lblROTUnit{frmROT, "lblROTUnit", "deg/min", "Unit of the rate of turn: degrees per minute"};
    Frame frmRoll{*this, "frmRoll", "Roll ", "Roll, degrees"};
    Scroll_Bar scrRoll{frmRoll, "scrRoll", -150, 150, 10, "Roll, -15.0 to 15.0 degrees in steps of 0.1"};
    Text_Box txtRoll{frmRoll, "txtRoll", "", "Roll, -15.0 to 15.0 degrees"};
    Frame frmPitch{*this, "frmPitch", "Pitch", "Pitch, degrees"};
    Scroll_Bar scrPitch{frmPitch,
                        "scrPitch",
                        150,
                        -150,
                        10, // bow up at the top
                        "Pitch, -15.0 to 15.0 degrees in steps of 0.1"};
    Text_Box txtPitch{frmPitch, "txtPitch", "", "Pitch, -15.0 to 15.0 degrees"};

    Check_Box chkNoise{frmSimulator, "chkNoise", "Random noise On",
                       "Adds a random error to what is reported: heading at each step of the simulator, the "
                       "others in each sentence"};
    Option_Group optAccumulatedNoise{
        frmSimulator,
        "optAccumulatedNoise",
        {{"Not Accumulated", "The error, in degrees, leaves the heading that is set alone"},
         {"Accumulated (Only Hdg)",
          "The error, in degrees, moves the heading that is set too: a random walk"}}};
    Label lblMaxNoise{frmSimulator, "lblMaxNoise", "Max noise", "Largest error to either side, degrees"};
    Control_Array<Label, 0, 3> lblNoise{
        frmSimulator,
        "lblNoise",
        {{"Heading", "Largest error of the heading, 0.0 to 10.0 degrees"},
         {"Rate Of Turn", "Largest error of the rate of turn, 0.0 to 10.0 deg/min"},
         {"Roll ", "Largest error of the roll, 0.0 to 10.0 degrees"},
         {"Pitch", "Largest error of the pitch, 0.0 to 10.0 degrees"}}};
    Control_Array<Combo_Box, 0, 3> cmbNoise{frmSimulator, "cmbNoise"};

    Frame frmSimulatorControl{*this, "frmSimulatorControl", "Simulator Control",
                              "Starts and stops the simulator and the sentences"};
    Button cmdStart{frmSimulatorControl, "cmdStart", "START",
                    "Steps heading and noise every 0.4 s and starts the ticked sentences anew"};
    Button cmdPause{frmSimulatorControl, "cmdPause", "PAUSE",
                    "Stops the steps and all sentences of this gyro"};
    Timer timer_Simulator{*this, "timer_Simulator"};

    Label lblModeIndicator{*this, "lblModeIndicator", "THS Mode Indicator",
                           "Mode that THS reports: A, E, M, S or V"};
    Combo_Box cmbModeIndicator{*this, "cmbModeIndicator", "", "Mode that THS reports: A, E, M, S or V"};
    Label lblDecimals{*this, "lblDecimals", "No of decimals",
                      "Digits behind the point in HDT, THS and ROT, 0 to 3"};
    Combo_Box cmbDecimals{*this, "cmbDecimals", "", "Digits behind the point in HDT, THS and ROT, 0 to 3"};

    Sentence_Lines Lines{*this, Gyro_Windows.Sentences};

    // The values last sent, with what they are in front.
    Frame frmCurrent{*this, "frmCurrent", "Current values", "The values that were sent last"};
    Label lblHdgTitle{frmCurrent, "lblHdgTitle", "Heading", "Heading last sent, degrees true"};
    Label lblCurrentHdg{frmCurrent, "lblCurrentHdg", "", "Heading last sent, degrees true"};
    Label lblRotTitle{frmCurrent, "lblRotTitle", "Rate Of Turn",
                      "Rate of turn last sent, degrees per minute"};
    Label lblCurrentRot{frmCurrent, "lblCurrentRot", "", "Rate of turn last sent, degrees per minute"};
    Label lblRollTitle{frmCurrent, "lblRollTitle", "Roll ", "Roll last sent, degrees"};
    Label lblCurrentRoll{frmCurrent, "lblCurrentRoll", "", "Roll last sent, degrees"};
    Label lblPitchTitle{frmCurrent, "lblPitchTitle", "Pitch", "Pitch last sent, degrees"};
    Label lblCurrentPitch{frmCurrent, "lblCurrentPitch", "", "Pitch last sent, degrees"};
};

Layout Lay_Out_Gyro(Simulator& Sim, Form& Shown);
Layout Lay_Out_Small_Gyro(Simulator& Sim, Form& Shown);

} // namespace brinewright
