#include "sentences/compose_mwd.hpp"

#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_MWD(const MWD_Record& Record, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "MWD");
    Add_Number(Out, Record.Dir_True, "000.0#"_Pattern);
    Add_Letter(Out, 'T');
    Add_Number(Out, Record.Dir_Magnetic, "000.0#"_Pattern);
    Add_Letter(Out, 'M');
    Add_Number(Out, Record.Speed_Knots, "000.0#"_Pattern);
    Add_Letter(Out, 'N');
    Add_Number(Out, Record.Speed_Ms, "000.0#"_Pattern);
    Add_Letter(Out, 'M');
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
