#include "sentences/compose_dtm.hpp"

#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_DTM(const DTM_Record& Record, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "DTM");
    Add_Text(Out, Record.Local_Datum);
    Add_Letter(Out, Record.Sub_Division);
    Add_Number(Out, Record.Lat_Offset, ""_Pattern);
    Add_Letter(Out, Record.Lat_Dir);
    Add_Number(Out, Record.Lon_Offset, ""_Pattern);
    Add_Letter(Out, Record.Lon_Dir);
    Add_Number(Out, Record.Alt_Offset, ""_Pattern);
    Add_Text(Out, Record.Ref_Datum);
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
