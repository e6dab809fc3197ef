#include "sentences/compose_att.hpp"

#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_ATT(const ATT_Record& Record, bool No_Checksum) {
    std::string Out = Begin_Proprietary("PFEC");
    Out += ',';
    Append_Talker(Out, Record.Talker);
    Out += "att";
    Add_Number(Out, Record.Heading, "000.0#"_Pattern);
    Add_Number(Out, Record.Pitch, "000.0#"_Pattern);
    Add_Number(Out, Record.Roll, "000.0#"_Pattern);
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
