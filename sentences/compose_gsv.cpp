#include "sentences/compose_gsv.hpp"

#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_GSV(const GSV_Record& Record, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "GSV");
    Add_Whole_Numbers(Out, {Record.Total, Record.Number, Record.In_View});
    for (int I = Record.PRN.First_Index; I <= Record.PRN.Last_Index; ++I) {
        if (Record.PRN[I] == 0) {
            Out += ",,,,";
            continue;
        }
        Add_Whole_Numbers(Out, {Record.PRN[I], Record.Elevation[I], Record.Azimuth[I], Record.SNR[I]});
    }
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
