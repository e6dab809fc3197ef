#include "sentences/compose_rmc.hpp"

#include "sentences/position_block.hpp"
#include "sentences/sentence_clock.hpp"
#include "sentences/sentence_frame.hpp"

#include <utility>

namespace brinewright {

std::string Compose_RMC(const Sentence_Time& Time, const RMC_Record& Record, std::int16_t Decimals_Position,
                        std::int16_t Decimals_Time, std::int16_t Instance, bool No_Checksum) {
    std::string Out = Begin_Sentence(Record.Talker, "RMC");
    Add_Time(Out, Time, Decimals_Time, Instance);
    Add_Text(Out, Record.Status);
    Add_Position(Out, Record.Lat, Record.Lon, Decimals_Position);
    Add_Number(Out, Record.SOG, "0.0"_Pattern);
    Add_Number(Out, Record.COG, "000.0"_Pattern);
    Add_Text(Out, {});
    Append_Dot(Out, Split_Time(Time.Machine_Clock.Local_us()), "ddmmyy"); // required without offset
    Add_Number(Out, Record.Mag_Var, "000.0"_Pattern);
    Add_Letter(Out, Record.Mag_Dir);
    Add_Letter(Out, Record.Mode);
    Add_Letter(Out, Record.Nav_Status);
    return Finish_Sentence(std::move(Out), No_Checksum);
}

} // namespace brinewright
