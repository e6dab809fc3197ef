#pragma once

#include "platform/controls.hpp"
#include "platform/form.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

struct Simulator;

// Captions of the freeze buttons; the transmit path and the receive events test them.
namespace monitor_caption {
inline constexpr const char* Running = "Freeze";
inline constexpr const char* Frozen = "Cont.";
} // namespace monitor_caption

// "Comport Monitor": one pane for each link in use, with what left. A quick look: a pane holds four sentences
// at most.
struct frmMonitor : Form {
    explicit frmMonitor(Desktop& Windows);

    Control_Array<Label, 1, 28> lblComport;
    Control_Array<Text_Box, 1, 28> txtCom;
    Control_Array<Button, 1, 28> cmdFreeze;
    Control_Array<Button, 1, 28> cmdClear;
};

void mnuMonitor_Click(Simulator& Sim); // opens the window or gives it the focus

// Shows Text, as it left, in the pane of Port (1 to 28). The caller has tested the freeze caption.
void Monitor_Tx(Simulator& Sim, const std::string& Text, std::int16_t Port);

// What the monitors show of a text: with the UdPbC header on, its sixth character is the NUL of the header,
// which would end the text in the pane, and becomes a blank.
std::string Shown_Text(const Simulator& Sim, const std::string& Text);

// Adds More to a pane. A pane that is never emptied by count (merged messages, a window of no height) starts
// over at 64 KiB.
void Append_To_Pane(Text_Box& Pane, std::string_view More);

} // namespace brinewright
