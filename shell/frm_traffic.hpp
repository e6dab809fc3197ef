#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"
#include "shell/traffic_log.hpp"

#include <cstdint>
#include <optional>

namespace brinewright {

struct Simulator;

// "Traffic": the last 10,000 sentences of all ports since the window was opened, and what the chosen one
// says.
struct frmTraffic : Form {
    explicit frmTraffic(Desktop& Windows);

    Combo_Box cmbPort{*this, "cmbPort"};
    Combo_Box cmbType{*this, "cmbType"};
    Label lblFilter{*this, "lblFilter", "Containing"};
    Text_Box txtFilter{*this, "txtFilter"};
    Button cmdPause{*this, "cmdPause", "Pause"};
    Text_Box txtSearch{*this, "txtSearch"};
    Button cmdFind{*this, "cmdFind", "Find next"};
    Button cmdClear{*this, "cmdClear", "Clear"};
    Button cmdExport{*this, "cmdExport", "Export"};
    Label lblCount{*this, "lblCount"};
    Grid hfgTraffic{*this, "hfgTraffic", {"Time", "Port", "Type", "Length", "Checksum", "Sentence"}};
    Grid hfgFields{*this, "hfgFields", {"Name", "Value", "Unit"}};

    Traffic_Log Log;
    std::optional<std::uint64_t> Chosen; // number of the sentence whose fields are shown, while it is kept
    std::uint64_t Passed_By = 0;         // sentences that left while paused
};

void mnuTraffic_Click(Simulator& Sim); // opens the window or gives it the focus

// Names the links anew after a change of the ports and adds those in use.
void Rebuild_Port_List(Simulator& Sim, frmTraffic& F);

} // namespace brinewright
