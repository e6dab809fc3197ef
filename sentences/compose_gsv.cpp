#include "sentences/compose_gsv.hpp"

#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_GSV(const GSV_Record& Record, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "GSV");
    Add_Number(Out, Record.Total, "0"_Pattern);
    Add_Number(Out, Record.Number, "0"_Pattern);
    Add_Number(Out, Record.In_View, "0"_Pattern);
    for (int I = Record.PRN.First_Index; I <= Record.PRN.Last_Index; ++I) {
        if (Record.PRN[I] == 0) {
            Out += ",,,,";
            continue;
        }
        for (const auto* Column : {&Record.PRN, &Record.Elevation, &Record.Azimuth, &Record.SNR})
            Add_Number(Out, (*Column)[I], "0"_Pattern);
    }
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
