#pragma once

#include "links/setup_file/setup_field.hpp"
#include "links/setup_file/setup_file.hpp"
#include "shell/kit/sentence_family.hpp"

#include <string_view>
#include <vector>

namespace brinewright {

// The choices of the sentences in a setup file: enabled and interval of each, in the lines that the rows of
// the sentences name. They stand behind the other lines of their section.

// What is chosen for one instance of a sentence, and where it stands in the file.
struct Kept_Sentence {
    Setup_Place Place;
    bool* Enabled;
    std::int16_t* Interval;
    std::int16_t New_Setup_Interval;
};

// Of all sentences, in the order of their lines; made once for a whole file.
std::vector<Kept_Sentence> Kept_Sentences(Simulator_State& State, Window_Span Windows);

// As with the table of windows, for one who reads many files into the same state.
Setup_Reading Read_Setup(std::string_view Bytes, Simulator_State& State,
                         const std::vector<Kept_Sentence>& Sentences);

// False when no sentence stands in this section.
bool Read_Sentences(Setup_Reader& Reader, const std::vector<Kept_Sentence>& All, std::string_view Section);
void Write_Sentences(Setup_Writer& Writer, const std::vector<Kept_Sentence>& All, std::string_view Section);

// Every section that a sentence names, each once.
std::vector<std::string_view> Sections_Of(const std::vector<Kept_Sentence>& All);

// Gives every sentence the interval that a new setup starts with.
void Load_Default_Intervals(Simulator_State& State, Window_Span Windows);

} // namespace brinewright
