#pragma once

#include "shell/kit/sentence_family.hpp"

#include <span>

namespace brinewright {

struct frmEchosounder;

// The sentences of an echo sounder, in the order in which opening starts them.
std::span<const Sentence_Row> Echo_Sentences();

// What no tick and no control changes: the scale of DPT, and DBT's fathoms, which are never given.
void Preset_Echo_Records(frmEchosounder& W);

// Each refreshes its record, composes and sends. Each draws noise of its own, so that DBT and DPT of one
// period differ.
void timer_DBT_Tick(Simulator& Sim, frmEchosounder& W);
void timer_DPT_Tick(Simulator& Sim, frmEchosounder& W);

} // namespace brinewright
