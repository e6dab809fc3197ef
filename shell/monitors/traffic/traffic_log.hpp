#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace brinewright {

// One sentence as it left.
struct Traffic_Record {
    std::int64_t Local_us = 0;
    int Port = 0;
    std::size_t Type = 0;         // place in Traffic_Log::Types
    std::size_t Length_bytes = 0; // of the whole text, also when less of it is kept
    std::string Text;             // at most Traffic_Log::Longest_Kept bytes
};

// What is shown of the log; 0 and an empty text stand for all.
struct Traffic_Filter {
    int Port = 0;
    std::size_t Type = 0;
    std::string Text; // contained in the sentence, in capitals or not
};

// The last sentences of all ports in a ring: memory is bounded and a new sentence costs the same whatever is
// kept. They are numbered from the opening on; a number that is older than Oldest is gone.
struct Traffic_Log {
    static constexpr std::size_t Capacity = 10'000;
    static constexpr std::size_t Longest_Kept = 4096;
    static constexpr std::size_t Most_Types = 100; // mutilated sentences could make up any number of them

    std::vector<Traffic_Record> Ring;
    std::uint64_t Oldest = 0;
    std::uint64_t Next = 0;
    std::deque<std::uint64_t> Shown; // numbers of those that pass the filter, oldest first
    Traffic_Filter Filter;
    std::vector<std::string> Types{"All types",
                                   "?"}; // those seen; "?" is of texts that begin with no sentence
};

void Keep_Sentence(Traffic_Log& Log, std::int64_t Local_us, int Port, std::string_view Text);
const Traffic_Record& Record_Of(const Traffic_Log& Log, std::uint64_t Number); // Oldest to below Next
void Clear_Log(Traffic_Log& Log);                                              // keeps filter and types
void Set_Filter(Traffic_Log& Log, Traffic_Filter Filter);

// Whether Part is found in Text, in capitals or not. Only the letters of ASCII have both forms.
bool Contains(std::string_view Text, std::string_view Part);

} // namespace brinewright
