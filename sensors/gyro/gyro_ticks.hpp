#pragma once

#include "shell/kit/sentence_family.hpp"

#include <span>

namespace brinewright {

struct frmGyro;

// The sentences of a gyro window, in the order in which opening starts them.
std::span<const Sentence_Row> Gyro_Sentences();

// The ticks. Each refreshes what changes in its record, composes and sends. They count on Instance being 1 or
// 2, which Load_frmGyro sees to.
void timer_HDT_Tick(Simulator& Sim, frmGyro& W);
void timer_THS_Tick(Simulator& Sim, frmGyro& W);
void timer_ROT_Tick(Simulator& Sim, frmGyro& W);
void timer_HDM_Tick(Simulator& Sim, frmGyro& W);
void timer_ATT_Tick(Simulator& Sim, frmGyro& W);
void timer_PRDID_Tick(Simulator& Sim, frmGyro& W);

// One step of the heading in Sensor mode: turn and noise. It runs between START and PAUSE only.
void timer_Simulator_Tick(Simulator& Sim, frmGyro& W);

} // namespace brinewright
