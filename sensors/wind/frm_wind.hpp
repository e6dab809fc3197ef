#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "sensors/wind/wind_ticks.hpp"
#include "sentences/compose_mwd.hpp"
#include "sentences/compose_mwv.hpp"
#include "shell/kit/sensor_form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

struct Simulator;

// The window of one wind gauge. Instance, 1 or 2, is its element of all per-sensor tables; the relative wind
// comes from the gyro and the log of the same number. The user sets the true wind in both modes of the
// simulator.
struct frmWind : Sensor_Form {
    static constexpr const char* Class_Name = "frmWind";

    frmWind(Desktop& Windows, int Its_Instance);

    // What the sentences are composed from. The ticks refresh what changes; units, reference and status are
    // as the controls left them.
    brinewright::MWV_Record MWV_Record;
    brinewright::MWD_Record MWD_Record;

    float Relative_Speed = 0; // in the unit of cmbUnits
    float Relative_Dir = 0;   // degrees from the bow, clockwise, to where the wind comes from

    Frame frmTrueWindDir{*this, "frmTrueWindDir", "True Wind Dir"};
    Scroll_Bar scrHDG{*this, "scrHDG", -1, 3600, 10}; // tenths of a degree; both ends wrap
    Text_Box txtHDG{*this, "txtHDG"};
    Label lblHDGUnit{*this, "lblHDGUnit", "degrees"};

    Frame frmTrueWindSpd{*this, "frmTrueWindSpd", "True Wind Spd"};
    Scroll_Bar scrSpeed{*this, "scrSpeed", 400, 0, 10}; // tenths of the unit
    Label lblSpeed{*this, "lblSpeed"};
    Text_Box txtSpeed{*this, "txtSpeed"};
    Label lblSpeedUnit{*this, "lblSpeedUnit", "Speed Unit"};
    Combo_Box cmbUnits{*this, "cmbUnits"};
    Control_Array<Label, 0, 1> lblUnit{*this, "lblUnit", ""}; // beside the true and the relative speed

    Check_Box chkNoise{*this, "chkNoise", "Random noise On"};
    Control_Array<Label, 0, 1> lblMaxNoise{*this, "lblMaxNoise", "Max noise"};
    Control_Array<Combo_Box, 0, 1> cmbNoise{*this, "cmbNoise", ""}; // of direction and speed
    Check_Box chkInvalid{*this, "chkInvalid", "Flag as invalid"};

    Frame frmRelativeWind{*this, "frmRelativeWind", "Relative wind"};
    Label lblRelativeDir{*this, "lblRelativeDir"};
    Label lblRelativeSpeed{*this, "lblRelativeSpeed"};
    Label lblRelativeWind{*this, "lblRelativeWind"}; // the log and the gyro that it comes from
    Timer timerRelativeWind{*this, "timerRelativeWind"};

    Frame frmCurrentValue{*this, "frmCurrentValue", "Current value"};
    Label lblWindAngle{*this, "lblWindAngle"};
    Label lblWindSpeed{*this, "lblWindSpeed"};

    Sentence_Lines MWV{*this, Wind_Sentences().subspan(0, 1)};
    Option_Group optRef{*this, "optRef", {"Relative", "True"}}; // of MWV
    Sentence_Lines MWD{*this, Wind_Sentences().subspan(1, 1)};
    Label lblMagDev{*this, "lblMagDev"};                       // the variation in effect
    Label lblShipSetup{*this, "lblShipSetup", "(Ship Setup)"}; // where it is set
};

Layout Lay_Out_Wind(Simulator& Sim, Form& Shown);

extern const Window_Class Wind_Windows;

// Works out the relative wind of gauge k, which is W's, and shows it: Relative_Speed and Relative_Dir, from
// its true wind, Gyro_HDG and Log_Speed of k, and Nav_COG and Nav_SOG.
void CalculateRelativeWind(Simulator& Sim, frmWind& W, int k);

} // namespace brinewright
