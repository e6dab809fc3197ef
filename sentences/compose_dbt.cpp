#include "sentences/compose_dbt.hpp"

#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_DBT(const DBT_Record& Record, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "DBT");
    Add_Number(Out, Record.Depth_Feet, "0.0#"_Pattern);
    Add_Letter(Out, 'f');
    Add_Number(Out, Record.Depth_Metres, "0.0#"_Pattern);
    Add_Letter(Out, 'M');
    Add_Number(Out, Record.Depth_Fathoms, "0.0#"_Pattern);
    Add_Letter(Out, 'F');
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
