#include "sentences/sentence_clock.hpp"

#include <chrono>
#include <cmath>
#include <cstddef>

namespace brinewright {
namespace {

constexpr std::int16_t Second_GNSS = 2;

// GNSS 2 alone has an offset in seconds besides that in minutes.
std::int64_t UTC_Offset_s(const UTC_State& UTC, std::int16_t Instance) {
    const std::int64_t Offset_s = std::int64_t{UTC_Offset_min(UTC, Instance)} * 60;
    return Instance == Second_GNSS ? Offset_s + UTC.GNSS2_UTC_Offset_Seconds : Offset_s;
}

// How many letters at the start of Pattern belong together: "yyyy" is the only group of four.
std::size_t Group_Size(std::string_view Pattern) {
    if (Pattern.starts_with("yyyy")) return 4;
    return Pattern.size() > 1 && Pattern[1] == Pattern[0] ? 2 : 1;
}

// The part of the date that a group of Letter stands for; nullptr when it is text to be copied.
const int* Find_Part(const Calendar_Time& When, char Letter, bool Is_Behind_Hour) {
    switch (Letter) {
    case 'y': return &When.Year;
    case 'm': return Is_Behind_Hour ? &When.Minute : &When.Month;
    case 'd': return &When.Day;
    case 'h': return &When.Hour;
    case 'n': return &When.Minute;
    case 's': return &When.Second;
    default: return nullptr;
    }
}

} // namespace

Calendar_Time Split_Time(std::int64_t Local_us) {
    using namespace std::chrono;
    const sys_time<microseconds> Moment{microseconds{Local_us}};
    const auto Midnight = floor<days>(Moment);
    const year_month_day Date{Midnight};
    const hh_mm_ss<seconds> Day_Time{floor<seconds>(Moment - Midnight)};
    return {int{Date.year()},
            static_cast<int>(unsigned{Date.month()}),
            static_cast<int>(unsigned{Date.day()}),
            static_cast<int>(Day_Time.hours().count()),
            static_cast<int>(Day_Time.minutes().count()),
            static_cast<int>(Day_Time.seconds().count())};
}

void Append_Dot(std::string& Out, const Calendar_Time& Time, std::string_view Pattern) {
    bool Is_Behind_Hour = false;
    while (!Pattern.empty()) {
        const std::size_t Size = Group_Size(Pattern);
        const int* const Part = Size > 1 ? Find_Part(Time, Pattern[0], Is_Behind_Hour) : nullptr;
        if (Part == nullptr) {
            Out += Pattern[0] == ',' ? '.' : Pattern[0];
            Pattern.remove_prefix(1);
            continue;
        }
        Append_Dot(Out, Size == 2 ? *Part % 100 : *Part, Size == 2 ? "00"_Pattern : "0000"_Pattern);
        Is_Behind_Hour = Pattern[0] == 'h';
        Pattern.remove_prefix(Size);
    }
}

std::string Format_Dot(const Calendar_Time& Time, std::string_view Pattern) {
    std::string Text;
    Append_Dot(Text, Time, Pattern);
    return Text;
}

std::int16_t UTC_Offset_min(const UTC_State& UTC, std::int16_t Instance) {
    return Instance == Second_GNSS ? UTC.GNSS2_UTC_Offset_Hours : UTC.UTC_Offset_Hours;
}

void Append_UTC(std::string& Out, const Sentence_Time& Time, std::int16_t Decimals, std::int16_t Instance,
                bool Apply_Offset) {
    const std::int64_t Offset_s = Apply_Offset ? UTC_Offset_s(Time.UTC, Instance) : 0;
    const std::int64_t Whole_us = Time.Machine_Clock.Local_us() + Offset_s * us_Per_Second;
    Append_Dot(Out, Split_Time(Whole_us), "hhmmss");
    if (Decimals <= 0) return;

    // It is required that this is a second reading of the clock, and that the two are not reconciled: the
    // second may have changed in between, and a fraction that rounds up prints as "1.0" behind the old
    // second.
    const float Day_s = Time_Of_Day_s(Time.Machine_Clock.Local_us());
    const float Fraction = Day_s - std::floor(Day_s);
    switch (Decimals) {
    case 1: return Append_Dot(Out, Fraction, "#.0"_Pattern);
    case 2: return Append_Dot(Out, Fraction, "#.00"_Pattern);
    case 3: return Append_Dot(Out, Fraction, "#.000"_Pattern);
    default: return;
    }
}

std::string Compose_UTC(const Sentence_Time& Time, std::int16_t Decimals, std::int16_t Instance,
                        bool Apply_Offset) {
    std::string Text;
    Append_UTC(Text, Time, Decimals, Instance, Apply_Offset);
    return Text;
}

} // namespace brinewright
