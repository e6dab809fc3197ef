#pragma once

#include "sentences/compose_mwd.hpp"
#include "sentences/compose_mwv.hpp"
#include "shell/kit/sensor_form.hpp"
#include "shell/state/window_class.hpp"

namespace brinewright {

extern const Window_Class Wind_Windows;

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

    // Bars count in tenths of a degree, or of the unit.
    Frame frmTrueWindDir{*this, "frmTrueWindDir", "True Wind Dir",
                         "Where the true wind comes from, degrees true"};
    Scroll_Bar scrHDG{frmTrueWindDir,
                      "scrHDG",
                      -1,
                      3600,
                      10,
                      "Where the true wind comes from, 0.0 to 359.9 degrees true in steps of 0.1; both ends "
                      "lead past north"};
    Text_Box txtHDG{frmTrueWindDir, "txtHDG", "",
                    "Where the true wind comes from, 0.0 to 360.0 degrees true"};
    Label lblHDGUnit{frmTrueWindDir, "lblHDGUnit", "degrees", "Unit of the direction"};

    Frame frmTrueWindSpd{*this, "frmTrueWindSpd", "True Wind Spd",
                         "Speed of the true wind, in the chosen unit"};
    Scroll_Bar scrSpeed{frmTrueWindSpd,
                        "scrSpeed",
                        400,
                        0,
                        10,
                        "Speed of the true wind, 0.0 to 40.0 of its unit in steps of 0.1"};
    Label lblSpeed{frmTrueWindSpd, "lblSpeed", "", "Speed of the true wind, in the chosen unit"};
    Text_Box txtSpeed{frmTrueWindSpd, "txtSpeed", "",
                      "Speed of the true wind, 0.0 and above, in the chosen unit; typed speeds may exceed "
                      "the 40.0 of the bar"};
    Label lblSpeedUnit{frmTrueWindSpd, "lblSpeedUnit", "Speed Unit",
                       "Unit of all speeds of this window and of MWV"};
    Combo_Box cmbUnits{frmTrueWindSpd, "cmbUnits", "",
                       "Unit of all speeds of this window and of MWV: knots, m/s or km/h"};
    // Beside the true and the relative speed.
    Control_Array<Label, 0, 1> lblUnit{*this, "lblUnit", "", "Unit of the speed"};

    Check_Box chkNoise{*this, "chkNoise", "Random noise On",
                       "Adds a random error to angle and speed of MWV, for each sentence anew"};
    static constexpr const char* Noise_Tips[] = {
        "Largest error of the direction to either side, 0 to 20 degrees",
        "Largest error of the speed to either side, 0 to 20 of its unit"};
    Control_Array<Label, 0, 1> lblMaxNoise{
        *this, "lblMaxNoise", {{"Max noise", Noise_Tips[0]}, {"Max noise", Noise_Tips[1]}}};
    Control_Array<Combo_Box, 0, 1> cmbNoise{*this, "cmbNoise", {{"", Noise_Tips[0]}, {"", Noise_Tips[1]}}};
    Check_Box chkInvalid{*this, "chkInvalid", "Flag as invalid", "Sends MWV with the status V instead of A"};

    Frame frmRelativeWind{*this, "frmRelativeWind", "Relative wind",
                          "The wind as it is felt on board, worked out every 2 s"};
    Label lblRelativeDir{frmRelativeWind, "lblRelativeDir", "",
                         "Where the relative wind comes from, degrees from the bow, clockwise"};
    Label lblRelativeSpeed{frmRelativeWind, "lblRelativeSpeed", "",
                           "Speed of the relative wind, in the chosen unit"};
    Label lblRelativeWind{frmRelativeWind, "lblRelativeWind", "",
                          "Sensors from which the relative wind is worked out"};
    Timer timerRelativeWind{*this, "timerRelativeWind"};

    Frame frmCurrentValue{*this, "frmCurrentValue", "Current value", "What left with the last MWV"};
    Label lblWindAngle{frmCurrentValue, "lblWindAngle", "", "Angle last sent, noise included, degrees"};
    Label lblWindSpeed{frmCurrentValue, "lblWindSpeed", "",
                       "Speed last sent, noise included, in the chosen unit"};

    Sentence_Lines MWV{*this, Wind_Windows.Sentences.first(1)};
    Option_Group optRef{*this,
                        "optRef", // of MWV
                        {{"Relative", "MWV gives the relative wind, degrees from the bow"},
                         {"True", "MWV gives the true wind, degrees true"}}};
    Sentence_Lines MWD{*this, Wind_Windows.Sentences.subspan(1)};
    Label lblMagDev{*this, "lblMagDev", "",
                    "Magnetic variation, degrees, east positive: magnetic direction of MWD less the true "
                    "one"};
    Label lblShipSetup{*this, "lblShipSetup", "(Ship Setup)",
                       "The magnetic variation, degrees, is set in Ship Setup"};
};

// Works out the relative wind of gauge k, which is W's, and shows it: Relative_Speed and Relative_Dir, from
// its true wind, Gyro_HDG and Log_Speed of k, and Nav_COG and Nav_SOG.
void CalculateRelativeWind(Simulator& Sim, frmWind& W, int k);

Layout Lay_Out_Wind(Simulator& Sim, Form& Shown);
Layout Lay_Out_Small_Wind(Simulator& Sim, Form& Shown);

} // namespace brinewright
