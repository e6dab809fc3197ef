#pragma once

#include <string>

namespace brinewright {

struct Simulator;

// The setup file of this instance, or the one that the user named at the start.
std::string Setup_File_Name(const Simulator& Sim);

// Reads File into the state. A failure is told in a box and the defaults are loaded over what had been read.
// Values that cannot be become their defaults, which one box tells.
void Load_Setup(Simulator& Sim, const std::string& File);

// Whether what the user sets stands in Sim.Setup_File as it is. Reckoned anew with each call.
bool Setup_Is_Saved(Simulator& Sim);
// What the windows bring into line as they open does not make a setup that was just read unsaved.
void Settle_Setup(Simulator& Sim);

// Replaces File by the state. False when it could not be written; the box has told why, and the old file is
// whole.
bool Save_Setup(Simulator& Sim, const std::string& File);

// The save at the end of the program. A setup that could not be read at the start is left alone: the
// session's own goes beside it. Sim.Save_At_End_Failed tells how it went.
void Save_Setup_At_End(Simulator& Sim);

void mnuFileOpen_Click(Simulator& Sim);
void mnuFileSave_Click(Simulator& Sim);
void mnuFileSaveAs_Click(Simulator& Sim);

// What mnuFileOpen does with the chosen file.
void Open_Setup(Simulator& Sim, const std::string& File);

} // namespace brinewright
