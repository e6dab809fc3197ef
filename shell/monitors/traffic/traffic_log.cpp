#include "shell/monitors/traffic/traffic_log.hpp"

#include "sentences/wire_text.hpp"

#include <algorithm>
#include <utility>

namespace brinewright {

namespace {

constexpr std::size_t Unknown_Type = 1;

std::size_t Type_Place(Traffic_Log& Log, std::string_view Text) {
    const auto Address = Address_Of(Bare_Sentence(Text));
    if (!Address) return Unknown_Type;
    const auto Found = std::find(Log.Types.begin() + 1, Log.Types.end(), Address->Type);
    if (Found != Log.Types.end()) return static_cast<std::size_t>(Found - Log.Types.begin());
    if (Log.Types.size() == Traffic_Log::Most_Types) return Unknown_Type;
    Log.Types.emplace_back(Address->Type);
    return Log.Types.size() - 1;
}

bool Passes(const Traffic_Filter& Filter, const Traffic_Record& R) {
    return (Filter.Port == 0 || Filter.Port == R.Port) && (Filter.Type == 0 || Filter.Type == R.Type) &&
           Contains(R.Text, Filter.Text);
}

char Capital(char C) { return C >= 'a' && C <= 'z' ? static_cast<char>(C - 'a' + 'A') : C; }

} // namespace

void Keep_Sentence(Traffic_Log& Log, std::int64_t Local_us, int Port, std::string_view Text) {
    if (Log.Ring.size() < Traffic_Log::Capacity && Log.Ring.size() == Log.Next % Traffic_Log::Capacity)
        Log.Ring.emplace_back();
    if (Log.Next - Log.Oldest == Traffic_Log::Capacity) {
        if (!Log.Shown.empty() && Log.Shown.front() == Log.Oldest) Log.Shown.pop_front();
        ++Log.Oldest;
    }
    Traffic_Record& R = Log.Ring[Log.Next % Traffic_Log::Capacity];
    R.Local_us = Local_us;
    R.Port = Port;
    R.Type = Type_Place(Log, Text);
    R.Length_bytes = Text.size();
    R.Text.assign(Text.substr(0, Traffic_Log::Longest_Kept));
    if (Passes(Log.Filter, R)) Log.Shown.push_back(Log.Next);
    ++Log.Next;
}

const Traffic_Record& Record_Of(const Traffic_Log& Log, std::uint64_t Number) {
    return Log.Ring[Number % Traffic_Log::Capacity];
}

void Clear_Log(Traffic_Log& Log) {
    Log.Shown.clear();
    Log.Oldest = Log.Next;
}

void Set_Filter(Traffic_Log& Log, Traffic_Filter Filter) {
    Log.Filter = std::move(Filter);
    Log.Shown.clear();
    for (std::uint64_t Number = Log.Oldest; Number < Log.Next; ++Number)
        if (Passes(Log.Filter, Record_Of(Log, Number))) Log.Shown.push_back(Number);
}

bool Contains(std::string_view Text, std::string_view Part) {
    return std::search(Text.begin(), Text.end(), Part.begin(), Part.end(),
                       [](char A, char B) { return Capital(A) == Capital(B); }) != Text.end() ||
           Part.empty();
}

} // namespace brinewright
