#include "sentences/compose_vtg.hpp"

#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_VTG(const VTG_Record& Record, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "VTG");
    Add_Number(Out, Record.COG_True, "000.0#"_Pattern);
    Add_Letter(Out, 'T');
    Add_Number(Out, Record.COG_Magnetic, "000.0#"_Pattern);
    Add_Letter(Out, 'M');
    Add_Number(Out, Record.SOG_Knots, "0.0#"_Pattern);
    Add_Letter(Out, 'N');
    Add_Number(Out, Record.SOG_Kmh, "000.0#"_Pattern);
    Add_Letter(Out, 'K');
    Add_Letter(Out, Record.Mode);
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
