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

Layout Lay_Out_Traffic(Simulator& Sim, Form& Shown);

extern const Window_Class Traffic_Window;

} // namespace brinewright
