#include "sentences/compose_vhw.hpp"

#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_VHW(const VHW_Record& Record, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "VHW");
    Add_Number(Out, Record.Heading_True, "000.0#"_Pattern);
    Add_Letter(Out, 'T');
    Add_Number(Out, Record.Heading_Magnetic, "000.0#"_Pattern);
    Add_Letter(Out, 'M');
    Add_Number(Out, Record.Speed_Knots, "0.0#"_Pattern);
    Add_Letter(Out, 'N');
    Add_Number(Out, Record.Speed_Kmh, "0.0#"_Pattern);
    Add_Letter(Out, 'K');
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
