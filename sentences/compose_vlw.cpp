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

void Advance_Counters(const VLW_Counters& Counters, const Log_Speeds& Speeds) {
    constexpr float Seconds_Per_Hour = 3600;
    const float Period_s = Counters.Period_s;
    const float Water_nm = Period_s * Speeds.Water_kn / Seconds_Per_Hour;
    const float Ground_nm = Period_s * Speeds.Ground_kn / Seconds_Per_Hour;
    Advance(Counters.Total_Water, Water_nm);
    Advance(Counters.Trip_Water, Water_nm);
    Advance(Counters.Total_Ground, Ground_nm);
    Advance(Counters.Trip_Ground, Ground_nm);
}

void Add_Distances(std::string& Out, float Total_nm, float Trip_nm) {
    Add_Number(Out, Total_nm, "0.0000"_Pattern);
    Add_Letter(Out, 'N');
    Add_Number(Out, Trip_nm, "0.0#"_Pattern);
    Add_Letter(Out, 'N');
}

} // namespace

std::string Compose_VLW(const VLW_Counters& Counters, const Log_Speeds& Speeds, VLW_Record& Record,
                        bool No_Checksum) {
    Advance_Counters(Counters, Speeds);
    Record.Total_Water = Counters.Total_Water;
    Record.Trip_Water = Counters.Trip_Water;
    Record.Total_Ground = Counters.Total_Ground;
    Record.Trip_Ground = Counters.Trip_Ground;
    std::string Out = Begin_Sentence(Record.Talker, "VLW");
    Add_Distances(Out, Record.Total_Water, Record.Trip_Water);
    Add_Distances(Out, Record.Total_Ground, Record.Trip_Ground);
    Add_Text(Out, ""); // the comma behind the last unit is required
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
