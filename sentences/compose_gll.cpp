#include "sentences/compose_gll.hpp"

#include "sentences/position_block.hpp"
#include "sentences/sentence_clock.hpp"
#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_GLL(const Sentence_Time& Time, const GLL_Record& Record, std::int16_t Decimals_Position,
                        std::int16_t Decimals_Time, std::int16_t Instance, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "GLL");
    Add_Position(Out, Record.Lat, Record.Lon, Decimals_Position);
    Add_Time(Out, Time, Decimals_Time, Instance);
    Add_Letter(Out, Record.Status);
    Add_Letter(Out, Record.Mode);
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
