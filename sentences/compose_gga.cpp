#include "sentences/compose_gga.hpp"

#include "sentences/position_block.hpp"
#include "sentences/sentence_clock.hpp"
#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_GGA(const Sentence_Time& Time, const GGA_Record& Record, std::int16_t Decimals_Position,
                        std::int16_t Decimals_Time, std::int16_t Instance, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "GGA");
    Add_Time(Out, Time, Decimals_Time, Instance);
    Add_Position(Out, Record.Lat, Record.Lon, Decimals_Position);
    Add_Number(Out, Record.Quality, "0"_Pattern);
    Add_Number(Out, Record.Sats, "0"_Pattern);
    Add_Number(Out, Record.HDOP, "0.0"_Pattern);
    Add_Number(Out, Record.Alt, "0.0"_Pattern);
    Add_Letter(Out, Record.Alt_Unit);
    Add_Number(Out, Record.Geoid_Sep, "0.0"_Pattern);
    Add_Letter(Out, Record.Geoid_Unit);
    Add_Number(Out, Record.Age, "0.0"_Pattern);
    Add_Number(Out, Record.Station_ID, "0000"_Pattern);
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
