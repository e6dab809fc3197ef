#include "sentences/compose_vdr.hpp"

#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_VDR(const VDR_Record& Record, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "VDR");
    Add_Number(Out, Record.Set_True, "000.0"_Pattern);
    Add_Letter(Out, 'T');
    Add_Number(Out, Record.Set_Magnetic, "000.0"_Pattern);
    Add_Letter(Out, 'M');
    Add_Number(Out, Record.Drift, "0.0"_Pattern);
    Add_Letter(Out, 'N');
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
