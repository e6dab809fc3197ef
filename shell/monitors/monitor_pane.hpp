#pragma once

#include "platform/controls.hpp"

#include <string>
#include <string_view>

namespace brinewright {

struct Simulator;

// What the two monitors share.

// Captions of the freeze buttons.
namespace monitor_caption {
inline constexpr const char* Running = "Freeze";
inline constexpr const char* Frozen = "Cont.";
} // namespace monitor_caption

// What the monitors show of a text: with the UdPbC header on, its sixth character is the NUL of the header,
// which would end the text in the pane, and becomes a blank.
std::string Shown_Text(const Simulator& Sim, std::string_view Text);

// Adds More to a pane. A pane that is never emptied by count (merged messages, a window of no height) starts
// over at 64 KiB.
void Append_To_Pane(Text_Box& Pane, std::string_view More);

} // namespace brinewright
