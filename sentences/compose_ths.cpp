#include "sentences/compose_ths.hpp"

#include "sentences/gyro_pattern.hpp"
#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_THS(const THS_Record& Record, std::int16_t Decimals, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "THS");
    Add_Number(Out, Record.Heading, Gyro_Pattern(Decimals));
    Add_Letter(Out, Record.Mode);
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
