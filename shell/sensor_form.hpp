#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/sentence_family.hpp"

#include <functional>
#include <string>

namespace brinewright {

struct Simulator;

// The numbers by which menus, slots of Sensor_Table and setup files know the sensor windows.
namespace form_index {
inline constexpr int GNSS_1 = 1, Gyro_1 = 3, Log_1 = 5, Echosounder_1 = 7, Wind_1 = 9, ARPA = 11;
} // namespace form_index

// What every sensor window has: its sentences, where they go and who talks.
struct Sensor_Form : Form {
    Sensor_Form(Desktop& Windows, std::string Class_Name, int Its_Instance, int First_Form_Index,
                std::string Default_Talker);

    const int Form_Index; // 1 to 11; the window's Tag is its text
    Sentence_Family Sentences;

    Frame frameNMEAMessages{*this, "frameNMEAMessages", "NMEA Messages"};
    Text_Box txtTalker;
    Combo_Box cmbComPort{*this, "cmbComPort"};
};

// Fills cmbComPort with the links that are in use now and selects the window's own, if it is among them.
void Rebuild_Port_List(Simulator& Sim, Sensor_Form& W);

// Fills and shows port list and talker. The port list writes the window's slot; the talker box follows the
// talker rule, and Write_Records gets every talker, the stored one at once.
void Wire_Routing(Simulator& Sim, Sensor_Form& W, std::string& Stored_Talker,
                  std::function<void(const std::string& Talker)> Write_Records);

// What follows the closing of a sensor window; Forget drops the simulator's hold on it.
void Unload_Sensor_Form(Simulator& Sim, const Sensor_Form& W, const std::function<void()>& Forget);

} // namespace brinewright
