#pragma once

#include "links/setup_file/setup_field.hpp"
#include "links/setup_file/setup_file.hpp"

#include <string_view>
#include <vector>

namespace brinewright {

// The choices of the sentences in a setup file: enabled and interval of each, in the lines that the rows of
// the sentences name. They stand behind the other lines of their section.

void Read_Sentences(Setup_Reader& Reader, Simulator_State& State, Window_Span Windows,
                    std::string_view Section);
void Write_Sentences(Setup_Writer& Writer, Simulator_State& State, Window_Span Windows,
                     std::string_view Section);

// Every section that a sentence names, each once.
std::vector<std::string_view> Sections_Of_Sentences(Window_Span Windows);

// Gives every sentence the interval that a new setup starts with.
void Load_Default_Intervals(Simulator_State& State, Window_Span Windows);

} // namespace brinewright
