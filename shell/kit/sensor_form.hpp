#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/kit/sentence_family.hpp"

#include <string>

namespace brinewright {

struct Simulator;

// What every sensor window has: its sentences, where they go and who talks.
struct Sensor_Form : Form {
    Sensor_Form(Desktop& Windows, std::string Class_Name, int Its_Instance, int First_Form_Index,
                std::string Default_Talker, std::string Talker_Tip);

    const int Form_Index; // 1 to 11; the window's Tag is its text
    Sentence_Family Sentences;

    Frame frameNMEAMessages{*this, "frameNMEAMessages", "NMEA Messages",
                            "The sentences of this sensor and the seconds between them"};
    Text_Box txtTalker;
    Combo_Box cmbComPort{*this, "cmbComPort", "",
                         "Link on which the sentences leave: serial port 1 to 16, TCP/IP or UDP"};
};

// Fills and shows port list and talker. The port list writes the window's slot and follows the links in use;
// the talker box follows the talker rule, and the records of all sentences get every talker, the stored one
// at once.
void Wire_Routing(Simulator& Sim, Sensor_Form& W, std::string& Stored_Talker);

// The opening of a sensor window for the table of windows: Fill runs with the mark that makes the sentences
// start one behind the other.
template <class Window, void (*Fill)(Simulator&, Window&)>
void Load_Sensor(Simulator& Sim, Form& Opened) {
    auto& W = static_cast<Window&>(Opened);
    W.Sentences.Is_Loading = true;
    Fill(Sim, W);
    W.Sentences.Is_Loading = false;
}

} // namespace brinewright
