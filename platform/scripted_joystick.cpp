#include "platform/scripted_joystick.hpp"

#include "platform/run_time_error.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <utility>

namespace brinewright {

namespace {

constexpr double Longest_Script_s = 1e9;
constexpr std::int32_t Last_Position = 65535, Last_Button_Mask = 65535;

// Cuts the next word off Rest; empty at the end.
std::string_view Next_Word(std::string_view& Rest) {
    constexpr std::string_view Blanks = " \t\r";
    Rest.remove_prefix(std::min(Rest.find_first_not_of(Blanks), Rest.size()));
    const std::string_view Word = Rest.substr(0, Rest.find_first_of(Blanks));
    Rest.remove_prefix(Word.size());
    return Word;
}

std::int64_t Read_Seconds_us(std::string_view Word, std::int64_t Previous_us) {
    double Time_s = 0;
    const auto [End, Failure] =
        std::from_chars(Word.data(), Word.data() + Word.size(), Time_s, std::chars_format::fixed);
    if (Failure != std::errc() || End != Word.data() + Word.size() ||
        !(Time_s >= 0 && Time_s <= Longest_Script_s))
        throw Run_Time_Error("a time in seconds is wanted at the start, as 12.5");
    const std::int64_t Time_us = std::llround(Time_s * 1e6);
    if (Time_us < Previous_us) throw Run_Time_Error("the time is before that of the line before");
    return Time_us;
}

std::int32_t Read_Whole(std::string_view Word, const char* Name, std::int32_t Most) {
    std::int32_t Value = -1;
    const auto [End, Failure] = std::from_chars(Word.data(), Word.data() + Word.size(), Value);
    if (Failure != std::errc() || End != Word.data() + Word.size() || Value < 0 || Value > Most)
        throw Run_Time_Error(std::string(Name) + " must be a whole number from 0 to " + std::to_string(Most));
    return Value;
}

std::optional<Joystick_Reading> Read_Position(std::string_view& Rest) {
    const std::string_view X = Next_Word(Rest);
    if (X == "gone") return std::nullopt;
    Joystick_Reading Reading;
    Reading.X = Read_Whole(X, "x", Last_Position);
    Reading.Y = Read_Whole(Next_Word(Rest), "y", Last_Position);
    Reading.Buttons =
        static_cast<std::uint32_t>(Read_Whole(Next_Word(Rest), "the button mask", Last_Button_Mask));
    return Reading;
}

} // namespace

std::vector<Joystick_Script_Line> Read_Joystick_Script(std::string_view Text) {
    std::vector<Joystick_Script_Line> Lines;
    std::int64_t Previous_us = 0;
    for (int Line_Number = 1; !Text.empty(); ++Line_Number) {
        std::string_view Line = Text.substr(0, Text.find('\n'));
        Text.remove_prefix(std::min(Line.size() + 1, Text.size()));
        const std::string_view First = Next_Word(Line);
        if (First.empty() || First.front() == '#') continue;
        try {
            Previous_us = Read_Seconds_us(First, Previous_us);
            Lines.push_back({Previous_us, Read_Position(Line)});
            if (!Next_Word(Line).empty()) throw Run_Time_Error("there is more in it than is wanted");
        } catch (const Run_Time_Error& Wrong) {
            throw Run_Time_Error("line " + std::to_string(Line_Number) + ": " + Wrong.what());
        }
    }
    return Lines;
}

Scripted_Joystick::Scripted_Joystick(std::vector<Joystick_Script_Line> Script, Clock& Its_Clock)
    : Lines(std::move(Script)), Time(Its_Clock), Started_us(Time.Wide_us()) {}

std::optional<Joystick_Reading> Scripted_Joystick::Read() {
    const std::int64_t Played_us = Time.Wide_us() - Started_us;
    while (Passed < Lines.size() && Lines[Passed].Due_us <= Played_us) ++Passed;
    return Passed == 0 ? std::nullopt : Lines[Passed - 1].Reading;
}

} // namespace brinewright
