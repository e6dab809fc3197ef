#pragma once

#include "shell/kit/sentence_family.hpp"

#include <span>

namespace brinewright {

struct frmWind;

// The sentences of a wind gauge, in the order in which opening starts them.
std::span<const Sentence_Row> Wind_Sentences();

// Each refreshes its record, composes and sends. Noise reaches MWV only.
void timer_MWV_Tick(Simulator& Sim, frmWind& W);
void timer_MWD_Tick(Simulator& Sim, frmWind& W);

// The variation in effect beside MWD.
void Show_Variation(const Simulator& Sim, frmWind& W);

} // namespace brinewright
