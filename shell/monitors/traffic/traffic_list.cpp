#include "shell/monitors/traffic/traffic_list.hpp"

#include "platform/clock.hpp"
#include "sentences/wire_text.hpp"

#include <algorithm>
#include <utility>

namespace brinewright {

namespace {

constexpr std::size_t Unknown_Type = 1;
constexpr std::int64_t Counted_us = 10 * us_Per_Second;
constexpr std::int64_t Least_Counted_us = us_Per_Second / 2; // the lines of a first group tell no rate

Traffic_Note& Note_At(Traffic_List& List, std::uint64_t Number) {
    return List.Notes[Number % Sentence_Log::Capacity];
}

std::size_t Type_Place(Traffic_List& List, std::string_view Text) {
    const auto Address = Address_Of(Bare_Sentence(Text));
    if (!Address) return Unknown_Type;
    const auto Found = std::find(List.Types.begin() + 1, List.Types.end(), Address->Type);
    if (Found != List.Types.end()) return static_cast<std::size_t>(Found - List.Types.begin());
    if (List.Types.size() == Traffic_List::Most_Types) return Unknown_Type;
    List.Types.emplace_back(Address->Type);
    return List.Types.size() - 1;
}

// What has no window as its source has its link.
std::uint32_t Kind_Of(const Logged_Sentence& Entry, std::size_t Type) {
    const auto Port = static_cast<std::uint32_t>(Entry.Port),
               Sender = static_cast<std::uint32_t>(Entry.Sender);
    return static_cast<std::uint32_t>(Type) << 16 | Sender << 8 |
           (Entry.Sender != 0 ? 0 : Port | (Entry.Received ? 0x80U : 0));
}

// The first that is counted becomes the one that is counted from.
void Count_One_Less(Traffic_List& List, Traffic_Kind& Kind) {
    const Traffic_Note& First = Note_At(List, Kind.First_Counted);
    Kind.Counted_From_us = First.Wide_us;
    Kind.First_Counted = First.Next_Of_Kind;
    --Kind.Count;
}

void Count_In(Traffic_List& List, Traffic_Note& New, std::uint64_t Number) {
    const auto [Place, Is_First] = List.Kinds.try_emplace(New.Kind);
    Traffic_Kind& Kind = Place->second;
    if (Is_First) {
        Kind.Counted_From_us = New.Wide_us;
    } else {
        New.Since_us = New.Wide_us - Kind.Last_us;
        if (Kind.Last != 0) Note_At(List, Kind.Last).Next_Of_Kind = Number;
        if (Kind.Count++ == 0) Kind.First_Counted = Number;
        while (Kind.Count > 1 && Note_At(List, Kind.First_Counted).Wide_us <= New.Wide_us - Counted_us)
            Count_One_Less(List, Kind);
        const std::int64_t Counted_For_us = New.Wide_us - Kind.Counted_From_us;
        if (Counted_For_us >= Least_Counted_us)
            New.Rate_per_s =
                static_cast<double>(Kind.Count * us_Per_Second) / static_cast<double>(Counted_For_us);
    }
    Kind.Last = Number;
    Kind.Last_us = New.Wide_us;
}

void Forget(Traffic_List& List, std::uint64_t Number) {
    Traffic_Kind& Kind = List.Kinds.at(Note_At(List, Number).Kind);
    if (Kind.First_Counted == Number && Kind.Count > 0) Count_One_Less(List, Kind);
    if (Kind.Last == Number) Kind.Last = 0;
    if (List.Shown.empty() || List.Shown.front() != Number) return;
    List.Shown.pop_front();
    ++List.Gone;
}

void Show_If_It_Passes(Traffic_List& List, const Sentence_Log& Log, std::uint64_t Number) {
    const Traffic_Filter& Filter = List.Filter;
    const Traffic_Note& Note = Note_Of(List, Number);
    const Logged_Sentence& Entry = Entry_Of(Log, Number);
    const std::string_view Text = Text_Of(Log, Number);
    if ((Filter.Port != 0 && Filter.Port != Entry.Port) || (Filter.Type != 0 && Filter.Type != Note.Type) ||
        (Filter.Sender && Filter.Sender != Entry.Sender) ||
        (Filter.Verdict && Filter.Verdict != Note.Verdict) || !Contains(Text, Filter.Text))
        return;
    List.Shown.push_back(Number);
    List.Longest_Shown = std::max(List.Longest_Shown, Without_Line_End(Text).size());
}

char Capital(char C) { return C >= 'a' && C <= 'z' ? static_cast<char>(C - 'a' + 'A') : C; }

} // namespace

void Follow_Log(Traffic_List& List, const Sentence_Log& Log) {
    List.Gone = 0;
    for (; List.Oldest < std::min(List.Next, Log.Oldest); ++List.Oldest) Forget(List, List.Oldest);
    List.Oldest = Log.Oldest;
    if (List.Next < Log.Oldest) List.Next = Log.Oldest;
    for (; List.Next < Log.Next; ++List.Next) {
        if (List.Notes.size() < Sentence_Log::Capacity) List.Notes.resize(Sentence_Log::Capacity);
        const Logged_Sentence& Entry = Entry_Of(Log, List.Next);
        const std::string_view Text = Text_Of(Log, List.Next);
        Traffic_Note& New = Note_At(List, List.Next) = {};
        New.Type = Type_Place(List, Text);
        New.Verdict = Verdict_Of(Text);
        New.Wide_us = Entry.Wide_us;
        New.Kind = Kind_Of(Entry, New.Type);
        Count_In(List, New, List.Next);
        Show_If_It_Passes(List, Log, List.Next);
    }
}

const Traffic_Note& Note_Of(const Traffic_List& List, std::uint64_t Number) {
    return List.Notes[Number % Sentence_Log::Capacity];
}

void Set_Filter(Traffic_List& List, const Sentence_Log& Log, Traffic_Filter Filter) {
    List.Filter = std::move(Filter);
    List.Shown.clear();
    List.Longest_Shown = 0;
    for (std::uint64_t Number = List.Oldest; Number < List.Next; ++Number)
        Show_If_It_Passes(List, Log, Number);
}

bool Contains(std::string_view Text, std::string_view Part) {
    return std::search(Text.begin(), Text.end(), Part.begin(), Part.end(),
                       [](char A, char B) { return Capital(A) == Capital(B); }) != Text.end() ||
           Part.empty();
}

} // namespace brinewright
