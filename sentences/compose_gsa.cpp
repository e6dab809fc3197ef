#include "sentences/compose_gsa.hpp"

#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_GSA(const GSA_Record& Record, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "GSA");
    Add_Letter(Out, Record.Mode);
    Add_Number(Out, Record.Fix, "0"_Pattern);
    for (const std::int16_t PRN : Record.PRN) Add_Number(Out, PRN, "#"_Pattern); // which leaves 0 empty
    Add_Number(Out, Record.PDOP, "0.0"_Pattern);
    Add_Number(Out, Record.HDOP, "0.0"_Pattern);
    Add_Number(Out, Record.VDOP, "0.0"_Pattern);
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
