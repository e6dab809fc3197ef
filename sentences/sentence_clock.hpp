#pragma once

#include "sentences/number_pattern.hpp"
#include "sentences/sentence_time.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace brinewright {

// A date and time of day, whole seconds.
struct Calendar_Time {
    int Year = 1970;
    int Month = 1; // 1 to 12
    int Day = 1;   // 1 to 31
    int Hour = 0;  // 0 to 23
    int Minute = 0;
    int Second = 0;
};

// Of a time as Clock::Local_us() counts it. Fractions of a second are cut off.
Calendar_Time Split_Time(std::int64_t Local_us);

// A date or time in a pattern of "yyyy", "yy", "mm", "dd", "hh", "nn" and "ss". "nn" are always minutes, "mm"
// only right behind the hours, as in "hhmmss" and "hh:mm"; otherwise they are the month. All else is copied.
void Append_Dot(std::string& Out, const Calendar_Time& Time, std::string_view Pattern);
std::string Format_Dot(const Calendar_Time& Time, std::string_view Pattern);

// What sensor Instance adds to the machine's clock to get UTC, in minutes: GNSS 2 has its own offset, all
// others have that of GNSS 1.
std::int16_t UTC_Offset_min(const UTC_State& UTC, std::int16_t Instance);

// The time field: "hhmmss" of the machine's clock at this moment, with Apply_Offset plus the offset of sensor
// Instance, then Decimals (1 to 3; any other value gives none) of the fraction of the second. The fraction
// comes from a reading of its own and may round up to a whole second: 1234561.0 is a time field of this
// system.
std::string Compose_UTC(const Sentence_Time& Time, std::int16_t Decimals, std::int16_t Instance,
                        bool Apply_Offset);
void Append_UTC(std::string& Out, const Sentence_Time& Time, std::int16_t Decimals, std::int16_t Instance,
                bool Apply_Offset);

// A comma and the time field of a sentence whose offset the user switches by Use_UTC.
inline void Add_Time(std::string& Out, const Sentence_Time& Time, std::int16_t Decimals,
                     std::int16_t Instance) {
    Out += ',';
    Append_UTC(Out, Time, Decimals, Instance, Time.UTC.Use_UTC);
}

} // namespace brinewright
