#pragma once

#include "shell/kit/sentence_family.hpp"

#include <span>

namespace brinewright {

struct frmPosition;

// The sentences of a GNSS window, in the order in which opening starts them.
std::span<const Sentence_Row> GNSS_Sentences();

// The ticks. Each refreshes what changes in its record, composes and sends. They count on Instance being 1 or
// 2, which Load_frmPosition sees to.
void timer_GGA_Tick(Simulator& Sim, frmPosition& W);
void timer_VTG_Tick(Simulator& Sim, frmPosition& W);
void timer_GLL_Tick(Simulator& Sim, frmPosition& W);
void timer_RMC_Tick(Simulator& Sim, frmPosition& W);
void timer_ZDA_Tick(Simulator& Sim, frmPosition& W);
void timer_GNS_Tick(Simulator& Sim, frmPosition& W);
void timer_DTM_Tick(Simulator& Sim, frmPosition& W);
void timer_GSA_Tick(Simulator& Sim, frmPosition& W);
void timer_GST_Tick(Simulator& Sim, frmPosition& W);

} // namespace brinewright
