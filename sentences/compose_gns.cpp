#include "sentences/compose_gns.hpp"

#include "sentences/position_block.hpp"
#include "sentences/sentence_clock.hpp"
#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_GNS(const Sentence_Time& Time, const GNS_Record& Record, std::int16_t Decimals_Position,
                        std::int16_t Decimals_Time, std::int16_t Instance, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "GNS");
    Add_Time(Out, Time, Decimals_Time, Instance);
    Add_Position(Out, Record.Lat, Record.Lon, Decimals_Position);
    Add_Text(Out, Record.Mode);
    Add_Number(Out, Record.Sats, "0"_Pattern);
    Add_Number(Out, Record.HDOP, "0.0"_Pattern);
    Add_Number(Out, Record.Alt, "0.0"_Pattern);
    Add_Number(Out, Record.Geoid_Sep, "0.0"_Pattern);
    Add_Number(Out, Record.Age, "0.0"_Pattern);
    Add_Number(Out, Record.Station_ID, ""_Pattern);
    Add_Letter(Out, Record.Status);
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
