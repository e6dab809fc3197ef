#include "sentences/compose_rot.hpp"

#include "sentences/gyro_pattern.hpp"
#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_ROT(const ROT_Record& Record, std::int16_t Decimals, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "ROT");
    Add_Number(Out, Record.Rate, Gyro_Pattern(Decimals));
    Add_Letter(Out, Record.Status);
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
