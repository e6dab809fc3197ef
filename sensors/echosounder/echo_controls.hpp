#pragma once

namespace brinewright {

struct frmEchosounder;
struct Simulator;

// Depth, transducer offset and noise of an echo sounder.

void Fill_Echo_Lists(frmEchosounder& W);

// Takes over the kept depth, from which both echo sounders start, and shows it. Writes nothing but the
// window's own value as long as the controls are not wired.
void Show_Kept_Depth(const Simulator& Sim, frmEchosounder& W);

void Wire_Echo_Controls(Simulator& Sim, frmEchosounder& W);

// Gives the noise controls what is kept. The transducer offset is not kept: it starts at 0.
void Restore_Echo_Settings(const Simulator& Sim, frmEchosounder& W);

void scrDepth_Change(Simulator& Sim, frmEchosounder& W);
void txtDepth_LostFocus(Simulator& Sim, frmEchosounder& W);
void cmbOffset_Change(frmEchosounder& W);
void cmbOffset_LostFocus(frmEchosounder& W);

} // namespace brinewright
