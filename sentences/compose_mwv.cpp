#include "sentences/compose_mwv.hpp"

#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_MWV(const MWV_Record& Record, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "MWV");
    Add_Number(Out, Record.Angle, "000.0#"_Pattern);
    Add_Letter(Out, Record.Reference);
    Add_Number(Out, Record.Speed, "000.0#"_Pattern);
    Add_Letter(Out, Record.Speed_Unit);
    Add_Letter(Out, Record.Status);
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
