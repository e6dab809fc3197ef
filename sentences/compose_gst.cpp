#include "sentences/compose_gst.hpp"

#include "sentences/sentence_clock.hpp"
#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_GST(const Sentence_Time& Time, const GST_Record& Record, std::int16_t Decimals_Time,
                        std::int16_t Instance, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "GST");
    Add_Time(Out, Time, Decimals_Time, Instance);
    Add_Number(Out, Record.RMS, "0.00"_Pattern);
    Add_Number(Out, Record.Semi_Major, "0.00"_Pattern);
    Add_Number(Out, Record.Semi_Minor, "0.00"_Pattern);
    Add_Number(Out, Record.Orientation, "000"_Pattern);
    Add_Number(Out, Record.Sd_Lat, "0.00"_Pattern);
    Add_Number(Out, Record.Sd_Lon, "0.00"_Pattern);
    Add_Number(Out, Record.Sd_Alt, "0.00"_Pattern);
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
