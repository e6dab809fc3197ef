#include "links/tx_time_text.hpp"

#include "ownship/geodesy/angles.hpp"
#include "sentences/number_pattern.hpp"
#include "sentences/sentence_clock.hpp"

namespace brinewright {

std::string Tx_Time_Text(Clock& Machine_Clock) {
    const std::int64_t Local_us = Machine_Clock.Local_us();
    std::string Text = Format_Dot(Split_Time(Local_us), "hh:nn:");
    Append_Dot(Text, Mod_Float(Time_Of_Day_s(Local_us), 60), "00.0"_Pattern);
    return Text;
}

std::string Date_Time_Text(std::int64_t Local_us) {
    return Format_Dot(Split_Time(Local_us), "dd.mm.yyyy hh:nn:ss");
}

} // namespace brinewright
