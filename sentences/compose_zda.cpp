#include "sentences/compose_zda.hpp"

#include "sentences/sentence_clock.hpp"
#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_ZDA(const Sentence_Time& Time, const ZDA_Record& Record, std::int16_t Decimals_Time,
                        std::int16_t Instance, bool No_Checksum) {
    const UTC_State& UTC = Time.UTC;
    const std::int16_t Sensor = Instance == 1 ? 1 : 2;
    std::string Out = Begin_Sentence(Record.Talker, "ZDA");
    Add_Text(Out, {});
    Append_UTC(Out, Time, Decimals_Time, Sensor, true);

    const std::int64_t Offset_us = std::int64_t{UTC_Offset_min(UTC, Sensor)} * 60 * us_Per_Second;
    const Calendar_Time Date = Split_Time(Time.Machine_Clock.Local_us() + Offset_us);
    Add_Number(Out, Date.Day, "00"_Pattern);
    Add_Number(Out, Date.Month, "00"_Pattern);
    Add_Number(Out, Date.Year, "0000"_Pattern);
    Add_Number(Out, UTC.UTC_Offset_Hours / 60, "00"_Pattern); // of GNSS 1 on purpose
    Add_Number(Out, Sensor == 1 ? UTC.UTC_Offset_Minutes : UTC.GNSS2_UTC_Offset_Minutes, "00"_Pattern);
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
