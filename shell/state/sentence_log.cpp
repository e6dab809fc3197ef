#include "shell/state/sentence_log.hpp"

#include <algorithm>

namespace brinewright {

namespace {

// The place of so many bytes in one piece. What stood there goes.
char* Make_Room(Sentence_Log& Log, std::size_t Size) {
    constexpr std::uint64_t Room = Sentence_Log::Text_Room_bytes;
    if (!Log.Text_Room) {
        Log.Text_Room = std::make_unique_for_overwrite<char[]>(Room);
        Log.Ring = std::make_unique_for_overwrite<Logged_Sentence[]>(Sentence_Log::Capacity);
    }
    const std::uint64_t Place = Log.Text_Next % Room;
    if (Place + Size > Room) Log.Text_Next += Room - Place;
    const std::uint64_t End = Log.Text_Next + Size;
    while (Log.Oldest < Log.Next && Entry_Of(Log, Log.Oldest).Text_Start + Room < End) ++Log.Oldest;
    return &Log.Text_Room[Log.Text_Next % Room];
}

} // namespace

void Keep_Sentence(Sentence_Log& Log, const Sentence_Stamp& Stamp, std::string_view Text) {
    if (Log.Held) {
        ++Log.Passed_By;
        return;
    }
    const std::string_view Kept = Text.substr(0, Sentence_Log::Longest_Kept);
    std::copy(Kept.begin(), Kept.end(), Make_Room(Log, Kept.size()));
    if (Log.Next - Log.Oldest == Sentence_Log::Capacity) ++Log.Oldest;
    Log.Ring[Log.Next % Sentence_Log::Capacity] = {
        Stamp.Local_us, Stamp.Wide_us, Log.Text_Next, Text.size(), static_cast<std::uint16_t>(Kept.size()),
        Stamp.Port,     Stamp.Sender,  Stamp.Received};
    Log.Text_Next += Kept.size();
    ++Log.Next;
}

const Logged_Sentence& Entry_Of(const Sentence_Log& Log, std::uint64_t Number) {
    return Log.Ring[Number % Sentence_Log::Capacity];
}

std::string_view Text_Of(const Sentence_Log& Log, std::uint64_t Number) {
    const Logged_Sentence& Entry = Entry_Of(Log, Number);
    return {&Log.Text_Room[Entry.Text_Start % Sentence_Log::Text_Room_bytes], Entry.Kept_bytes};
}

void Clear_Log(Sentence_Log& Log) {
    Log.Oldest = Log.Next;
    Log.Passed_By = 0;
}

} // namespace brinewright
