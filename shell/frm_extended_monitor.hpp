#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"

#include <string>

namespace brinewright {

struct Simulator;

// "Extended Comport Monitor": one link chosen by the user, sent and received, in two panes.
struct frmExtendedMonitor : Form {
    explicit frmExtendedMonitor(Desktop& Windows);

    Label lblSystem{*this, "lblSystem", "Comport"};
    Combo_Box cmbComPort{*this, "cmbComPort", "Select comport"};
    Button cmdFreeze{*this, "cmdFreeze", "Freeze"};
    Button cmdClear{*this, "cmdClear", "Clear"};
    Label lblOutput{*this, "lblOutput", "TX - Output"};
    Text_Box txtOutput{*this, "txtOutput"};
    Label lblInput{*this, "lblInput", "RX - Input"};
    Text_Box txtInput{*this, "txtInput"};
};

void mnuExtendedMonitor_Click(Simulator& Sim); // opens the window or gives it the focus

void Extended_Monitor_Tx(Simulator& Sim, const std::string& Text);

// Any received text counts as one line, whatever it holds.
void Extended_Monitor_Rx(Simulator& Sim, std::string Text);

// Whether received data of this port (1 to 28) is shown at all: the window is open on it and not frozen.
bool Extended_Monitor_Shows(const Simulator& Sim, int Port);

} // namespace brinewright
