#include "sentences/compose_hdt.hpp"

#include "sentences/gyro_pattern.hpp"
#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_HDT(const HDT_Record& Record, std::int16_t Decimals, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "HDT");
    Add_Number(Out, Record.Heading, Gyro_Pattern(Decimals));
    Add_Letter(Out, 'T');
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
