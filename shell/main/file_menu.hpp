#pragma once

#include <string>

namespace brinewright {

struct Simulator;

// The setup file of this instance, or the one that the user named at the start.
std::string Setup_File_Name(const Simulator& Sim);

// Reads File into the state. A failure is told in a box and the defaults are loaded over what had been read.
void Load_Setup(Simulator& Sim, const std::string& File);

// Replaces File by the state. False when it could not be written; the box has told why, and the old file is
// whole.
bool Save_Setup(Simulator& Sim, const std::string& File);

// The save at the end of the program. A setup that could not be read at the start is left alone: the
// session's own goes beside it.
void Save_Setup_At_End(Simulator& Sim);

void mnuFileOpen_Click(Simulator& Sim);
void mnuFileSave_Click(Simulator& Sim);
void mnuFileSaveAs_Click(Simulator& Sim);

// What mnuFileOpen does with the chosen file.
void Open_Setup(Simulator& Sim, const std::string& File);

} // namespace brinewright
