#pragma once

#include "shell/state/simulator_state.hpp"
#include "shell/state/window_class.hpp"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace brinewright {

// The setup file: all that the user sets and the place of every window, as sections of comma-separated
// fields. Each section opens with a marker, a text that begins with "REM". Versions only ever add sections,
// so a reader of any age finds what it knows and passes over the rest. These routines work on bytes; files
// and boxes are the caller's.

// The table of windows: it says where the choices of the sentences stand and what they start with.
using Window_Span = std::span<const Window_Class* const>;

struct Setup_Reading {
    bool Known = false;            // a section was known: otherwise this is no setup file
    std::vector<const void*> Lost; // variables of lines that were written with decimal commas
};

// Reads the sections of Bytes into State, in whatever order they stand. A section that is missing leaves its
// part of State alone, and bytes without a marker change nothing. Lines may end in CR LF, LF or CR. Throws
// Run_Time_Error: Type mismatch (a field of the wrong form, which is also a quotation mark that stays open
// and a last line without its end: the file was cut off), Overflow (a number too large for its variable),
// Input past end of file, or Subscript out of range (more windows than the list holds). What was read up to
// there stays in State. Values are not looked at beyond their form: see Repair_Values.
Setup_Reading Read_Setup(std::string_view Bytes, Simulator_State& State, Window_Span Windows);

// Gives each kept variable its default that is Lost or holds what neither a control nor the program could
// have given it, and comes back with their addresses. Zero and empty are always right.
std::vector<const void*> Repair_Values(Simulator_State& State, const std::vector<const void*>& Lost,
                                       Window_Span Windows);

// What of a setup the user sets, to be compared: without what moves while the simulator runs and without the
// places of windows.
std::string Settings_Text(Simulator_State& State, Window_Span Windows);

// The bytes of State as a setup file, all sections in their fixed order, lines ending in CR LF. Reading them
// gives back what is kept, with these exceptions: in a text a line break becomes a blank, and a quotation
// mark that stands before a comma an apostrophe; a number that is not finite becomes 0. Throws Run_Time_Error
// (Subscript out of range) when Open_Form_Count is not a count of Open_Form_List.
std::string Write_Setup(const Simulator_State& State, Window_Span Windows);

// Gives every talker that a setup left empty its default again, so that no sentence leaves without one.
void Repair_Talkers(Simulator_State& State);

// Sets the variables that have another default than zero, and nothing else.
void Load_Default_Data(Simulator_State& State, Window_Span Windows);

} // namespace brinewright
