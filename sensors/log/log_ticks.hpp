#pragma once

#include "shell/kit/sentence_family.hpp"

#include <span>

namespace brinewright {

struct frmLog;

// The sentences of a log window, in the order in which opening starts them.
std::span<const Sentence_Row> Log_Sentences();

// The ticks. Each refreshes what changes in its record, composes and sends. They count on Instance being 1 or
// 2, which Load_frmLog sees to.
void timer_VHW_Tick(Simulator& Sim, frmLog& W);
void timer_VBW_Tick(Simulator& Sim, frmLog& W);
void timer_VDR_Tick(Simulator& Sim, frmLog& W);
void timer_VLW_Tick(Simulator& Sim, frmLog& W);

} // namespace brinewright
