#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace brinewright {

// One sentence as it left or came. Its text stands in the room of the log.
struct Logged_Sentence {
    std::int64_t Local_us;
    std::int64_t Wide_us;
    std::uint64_t Text_Start; // counted from the start of the program
    std::size_t Length_bytes; // of the whole text, also when less of it is kept
    std::uint16_t Kept_bytes; // at most Sentence_Log::Longest_Kept
    std::int16_t Port;
    std::int16_t Sender; // see Sent_Sentence
    bool Received;
};

// The last sentences of all links since the start of the program: so many, and so many bytes of them. Memory
// is bounded, and a new one costs the same whatever is kept. They are numbered from 1 on; one that is
// less than Oldest is gone.
struct Sentence_Log {
    static constexpr std::size_t Capacity = 10'000;
    static constexpr std::size_t Longest_Kept = 4096;
    static constexpr std::size_t Text_Room_bytes = 1'600'000;

    // Neither is touched before it is written, so that it takes no memory before.
    std::unique_ptr<Logged_Sentence[]> Ring;
    std::unique_ptr<char[]> Text_Room;
    std::uint64_t Text_Next = 0;
    std::uint64_t Oldest = 1;
    std::uint64_t Next = 1;
    bool Held = false;           // keeps no more
    std::uint64_t Passed_By = 0; // meanwhile
};

// What of a Logged_Sentence is known before it is kept.
struct Sentence_Stamp {
    std::int64_t Local_us = 0;
    std::int64_t Wide_us = 0;
    std::int16_t Port = 0;
    std::int16_t Sender = 0;
    bool Received = false;
};

void Keep_Sentence(Sentence_Log& Log, const Sentence_Stamp& Stamp, std::string_view Text);
const Logged_Sentence& Entry_Of(const Sentence_Log& Log, std::uint64_t Number); // Oldest to below Next
std::string_view Text_Of(const Sentence_Log& Log, std::uint64_t Number);
void Clear_Log(Sentence_Log& Log);

} // namespace brinewright
