#include "sentences/compose_dpt.hpp"

#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_DPT(const DPT_Record& Record, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "DPT");
    Add_Number(Out, Record.Depth, "0.0"_Pattern);
    Add_Number(Out, Record.Offset, "0.0"_Pattern);
    Add_Number(Out, Record.Range, "0.0#"_Pattern);
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
