#include "sentences/compose_vbw.hpp"

#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_VBW(const VBW_Record& Record, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "VBW");
    Add_Number(Out, Record.Water_Long, "0.0#"_Pattern);
    Add_Number(Out, Record.Water_Trans, "0.0#"_Pattern);
    Add_Letter(Out, Record.Water_Status);
    Add_Number(Out, Record.Ground_Long, "0.0#"_Pattern);
    Add_Number(Out, Record.Ground_Trans, "0.0#"_Pattern);
    Add_Letter(Out, Record.Ground_Status);
    Add_Number(Out, Record.Stern_Water, "0.0#"_Pattern);
    Add_Letter(Out, Record.Stern_Water_Status);
    Add_Number(Out, Record.Stern_Ground, "0.0#"_Pattern);
    Add_Letter(Out, Record.Stern_Ground_Status);
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
