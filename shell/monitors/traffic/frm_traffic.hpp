#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/monitors/traffic/traffic_log.hpp"
#include "shell/state/window_class.hpp"

#include <cstdint>
#include <optional>

namespace brinewright {

// "Traffic": the last 10,000 sentences of all ports since the window was opened, and what the chosen one
// says.
struct frmTraffic : Form {
    static constexpr const char* Class_Name = "frmTraffic";

    explicit frmTraffic(Desktop& Windows);

    Combo_Box cmbPort{*this, "cmbPort", "", "Shows only what left here"};
    Combo_Box cmbType{*this, "cmbType", "",
                      "Shows only sentences of this type; ? is what begins with no sentence"};
    Label lblFilter{*this, "lblFilter", "Containing"};
    Text_Box txtFilter{*this, "txtFilter", "", "Shows only sentences that contain this text"};
    Button cmdPause{*this, "cmdPause", "Pause", "Keeps no more sentences until Continue; they go on leaving"};
    Text_Box txtSearch{*this, "txtSearch", "", "Text to find in the sentences shown"};
    Button cmdFind{*this, "cmdFind", "Find next",
                   "Chooses the next sentence that contains the text, round the end"};
    Button cmdClear{*this, "cmdClear", "Clear", "Forgets the sentences kept"};
    Button cmdExport{*this, "cmdExport", "Export", "Writes the sentences shown to a recording"};
    Label lblCount{*this, "lblCount"};
    Grid hfgTraffic{*this,
                    "hfgTraffic",
                    {"Time", "Port", "Type", "Length", "Checksum", "Sentence"},
                    "The last 10,000 sentences; a chosen one shows its fields below"};
    Grid hfgFields{
        *this, "hfgFields", {"Name", "Value", "Unit"}, "The fields of the chosen sentence with their units"};

    Traffic_Log Log;
    std::optional<std::uint64_t> Chosen; // number of the sentence whose fields are shown, while it is kept
    std::uint64_t Passed_By = 0;         // sentences that left while paused
};

Layout Lay_Out_Traffic(Simulator& Sim, Form& Shown);

extern const Window_Class Traffic_Window;

} // namespace brinewright
