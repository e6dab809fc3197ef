#include "sentences/compose_vlw.hpp"

#include "sentences/sentence_frame.hpp"

#include <cmath>
#include <utility>

namespace brinewright {

namespace {

void Advance(float& Counter_nm, float Step_nm) {
    const float Sum_nm = Counter_nm + Step_nm;
    if (std::isfinite(Sum_nm)) Counter_nm = Sum_nm;
}

void Advance_Counters(Log_State& Counters, const Log_Speeds& Speeds, int Log) {
    constexpr float Seconds_Per_Hour = 3600;
    const float Period_s = Counters.Log_VLW_Seconds[Log];
    const float Water_nm = Period_s * Speeds.Water_kn / Seconds_Per_Hour;
    const float Ground_nm = Period_s * Speeds.Ground_kn / Seconds_Per_Hour;
    Advance(Counters.Log_Total_Water[Log], Water_nm);
    Advance(Counters.Log_Trip_Water[Log], Water_nm);
    Advance(Counters.Log_Total_Ground[Log], Ground_nm);
    Advance(Counters.Log_Trip_Ground[Log], Ground_nm);
}

void Add_Distances(std::string& Out, float Total_nm, float Trip_nm) {
    Add_Number(Out, Total_nm, "0.0000"_Pattern);
    Add_Letter(Out, 'N');
    Add_Number(Out, Trip_nm, "0.0#"_Pattern);
    Add_Letter(Out, 'N');
}

} // namespace

std::string Compose_VLW(Log_State& Counters, const Log_Speeds& Speeds, VLW_Record& Record,
                        std::int16_t Instance, bool No_Checksum) {
    Advance_Counters(Counters, Speeds, Instance);
    Record.Total_Water = Counters.Log_Total_Water[Instance];
    Record.Trip_Water = Counters.Log_Trip_Water[Instance];
    Record.Total_Ground = Counters.Log_Total_Ground[Instance];
    Record.Trip_Ground = Counters.Log_Trip_Ground[Instance];
    std::string Out = Begin_Sentence(Record.Talker, "VLW");
    Add_Distances(Out, Record.Total_Water, Record.Trip_Water);
    Add_Distances(Out, Record.Total_Ground, Record.Trip_Ground);
    Add_Text(Out, ""); // the comma behind the last unit is required
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
