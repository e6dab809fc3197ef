#pragma once

#include "sentences/checksum_verdict.hpp"
#include "shell/state/sentence_log.hpp"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace brinewright {

// What is worked out for a sentence of the log while somebody looks at it.
struct Traffic_Note {
    std::size_t Type = 0; // place in Traffic_List::Types
    Checksum_Verdict Verdict = Checksum_Verdict::None;
    std::optional<std::int64_t> Since_us; // since the last of this type and source
    std::optional<double> Rate_per_s;     // of this type and source, over the last ten seconds
    std::int64_t Wide_us = 0;
    std::uint32_t Kind = 0;         // of its type and source
    std::uint64_t Next_Of_Kind = 0; // number; 0 while there is none
};

// Sentences of one type and source.
struct Traffic_Kind {
    std::int64_t Last_us = 0;
    std::uint64_t Last = 0; // number
    // The rate counts from the last one that is older than ten seconds, so that a period longer than that and
    // groups of sentences come out right.
    std::int64_t Counted_From_us = 0;
    std::uint64_t First_Counted = 0; // number; 0 while there is none
    std::int64_t Count = 0;
};

// What is shown of the log; an empty text stands for all.
struct Traffic_Filter {
    std::optional<int> Sender;
    int Port = 0;         // 0: all
    std::size_t Type = 0; // 0: all
    std::optional<Checksum_Verdict> Verdict;
    std::string Text; // contained in the sentence, in capitals or not
};

// The log as the window lists it: with notes, filtered.
struct Traffic_List {
    static constexpr std::size_t Most_Types = 100; // mutilated sentences could make up any number of them

    std::vector<Traffic_Note> Notes;    // by number modulo the capacity of the log
    std::uint64_t Oldest = 1, Next = 1; // those that have a note
    std::unordered_map<std::uint32_t, Traffic_Kind> Kinds;
    std::deque<std::uint64_t> Shown; // numbers of those that pass the filter, oldest first
    int Gone = 0;                    // from the head of Shown by the last Follow_Log
    std::size_t Longest_Shown = 0;   // characters; of those that were shown since the filter was set
    Traffic_Filter Filter;
    std::vector<std::string> Types{"All types",
                                   "?"}; // those seen; "?" is of texts that begin with no sentence
};

void Follow_Log(Traffic_List& List, const Sentence_Log& Log);
const Traffic_Note& Note_Of(const Traffic_List& List, std::uint64_t Number);
void Set_Filter(Traffic_List& List, const Sentence_Log& Log, Traffic_Filter Filter);

// Whether Part is found in Text, in capitals or not. Only the letters of ASCII have both forms.
bool Contains(std::string_view Text, std::string_view Part);

} // namespace brinewright
