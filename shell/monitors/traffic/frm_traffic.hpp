#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "platform/marked_text.hpp"
#include "sentences/take_apart.hpp"
#include "shell/monitors/traffic/own_sentence.hpp"
#include "shell/monitors/traffic/traffic_list.hpp"
#include "shell/state/window_class.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace brinewright {

// "Traffic": the last 10,000 sentences of all links since the start of the program, what the chosen one says,
// and sentences of the user's own.
struct frmTraffic : Form {
    static constexpr const char* Class_Name = "frmTraffic";

    explicit frmTraffic(Desktop& Windows);

    Combo_Box cmbSource{*this, "cmbSource", "", "Shows only the sentences of this window"};
    Combo_Box cmbPort{*this, "cmbPort", "", "Shows only what left or came here"};
    Combo_Box cmbType{*this, "cmbType", "",
                      "Shows only sentences of this type; ? is what begins with no sentence"};
    Combo_Box cmbVerdict{*this, "cmbVerdict", "", "Shows only sentences whose checksum is such"};
    Label lblFilter{*this, "lblFilter", "Containing"};
    Text_Box txtFilter{*this, "txtFilter", "", "Shows only sentences that contain this text"};
    Button cmdPause{*this, "cmdPause", "Pause", "Keeps no more sentences until Continue; they go on leaving"};
    Button cmdClear{*this, "cmdClear", "Clear", "Forgets the sentences kept"};
    Button cmdExport{*this, "cmdExport", "Export", "Writes the sentences shown to a recording"};
    Grid hfgTraffic{
        *this,
        "hfgTraffic",
        {"Time", "Link", "Direction", "Source", "Type", "Since last s", "Rate /s", "Verdict", "Sentence"},
        "The last 10,000 sentences since the start of the program; a chosen one shows its fields below. "
        "Since "
        "last and rate are those of its type and source"};
    Text_Box txtSearch{*this, "txtSearch", "", "Text to find in the sentences shown; Enter finds the next"};
    Button cmdFind{*this, "cmdFind", "Find next",
                   "Chooses the next sentence that contains the text, round the end"};
    Label lblCount{*this, "lblCount"};
    Marked_Text txtSentence{*this, "txtSentence",
                            "The chosen sentence; a click or the cursor in it chooses the field below"};
    Button cmdResend{*this, "cmdResend", "Send again", "Sends the chosen sentence once more on its link"};
    Button cmdEdit{*this, "cmdEdit", "Edit", "Takes the chosen sentence over as the own sentence below"};
    Grid hfgFields{*this,
                   "hfgFields",
                   {"Name", "Value", "Unit"},
                   "The fields of the chosen sentence with their units; a chosen one is marked in it"};
    Label lblOwn{*this, "lblOwn", "Own sentence"};
    Text_Box txtSend{*this, "txtSend", "",
                     "A sentence of your own, beginning with $ or !; it gets a checksum when it has none. "
                     "Enter sends it"};
    Combo_Box cmbSendPort{*this, "cmbSendPort", "", "Link on which the own sentence leaves"};
    Button cmdSend{*this, "cmdSend", "Send", "Sends the own sentence once"};
    Label lblEvery{*this, "lblEvery", "every"};
    Text_Box txtEvery{*this, "txtEvery", "1", "Time between two own sentences, 0.01 to 3600 s"};
    Label lblEveryUnit{*this, "lblEveryUnit", "s"};
    Button cmdRepeat{*this, "cmdRepeat", "Repeat", "Sends the own sentence again and again until Stop"};
    Label lblSend{*this, "lblSend"};
    Timer timer_Send{*this, "timer_Send"};

    Traffic_List List;
    std::optional<std::uint64_t> Chosen;   // number of the sentence whose fields are shown, while it is kept
    std::optional<Own_Sentence> Shown_One; // it, also when the log has it no more
    std::vector<Field_Value> Parts;        // of it
    Sending Own;
};

Layout Lay_Out_Traffic(Simulator& Sim, Form& Shown);

extern const Window_Class Traffic_Window;

} // namespace brinewright
