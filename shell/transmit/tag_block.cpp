#include "shell/transmit/tag_block.hpp"

#include "sentences/checksum.hpp"
#include "sentences/utc_state.hpp"
#include "shell/state/iec450_state.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/simulator.hpp"

#include <algorithm>
#include <charconv>

namespace brinewright {

namespace {

void Append_Number(std::string& Out, std::int64_t Number) {
    char Digits[24];
    const auto End = std::to_chars(Digits, Digits + sizeof Digits, Number).ptr;
    Out.append(Digits, End);
}

void Append_Text_Tag(std::string& Out, char Letter, const std::string& Text) {
    Out += Letter;
    Out += ':';
    Out += Text;
    Out += ',';
}

// Counters run from 1 to Last and then from 1 again.
std::int16_t Count_On(std::int16_t& Counter, std::int16_t Last) {
    Counter = static_cast<std::int16_t>(Counter >= Last ? 1 : Counter + 1);
    return Counter;
}

std::int64_t Tag_Time_s(Simulator& Sim) {
    // Required as it stands: the offset is added in the sense of the sentence times, and the sum is counted
    // from 1970 in local time.
    const std::int64_t Shifted_us =
        Sim.Services.Time().Local_us() + Sim.State.Of<UTC_State>().UTC_Offset_Hours * 60 * us_Per_Second;
    return Shifted_us / us_Per_Second;
}

} // namespace

void Make_UdPbC_Header(Simulator& Sim, std::string& Sentence, std::int16_t Port, std::int16_t Line,
                       std::int16_t Lines) {
    const Simulator_State& S = Sim.State;
    Transmit_Record& Counters = Sim.State.Of<Link_State>().Transmit;
    std::string Header;
    Header.reserve(Sentence.size() + 96);
    if (S.Of<IEC450_State>().UdPbC_Header_Enabled) {
        Header += "UdPbC";
        Header += '\0';
    }
    const std::size_t Block_Start = Header.size();
    Header += '\\';
    if (S.Of<IEC450_State>().Use_s_Tag) Append_Text_Tag(Header, 's', S.Of<IEC450_State>().s_Tag);
    if (S.Of<IEC450_State>().Use_d_Tag) Append_Text_Tag(Header, 'd', S.Of<IEC450_State>().d_Tag);
    if (S.Of<IEC450_State>().Use_d2_Tag) Append_Text_Tag(Header, 'd', S.Of<IEC450_State>().d2_Tag);
    if (S.Of<IEC450_State>().Use_n_Tag) {
        Header += "n:";
        Append_Number(Header, Count_On(Counters.UdPbC_Sequence[Port], 999));
        Header += ',';
    }
    if (S.Of<IEC450_State>().Use_g_Tag && Lines >= 2) {
        std::int16_t& Group = Counters.UdPbC_Group[Port];
        if (Line == 1) Count_On(Group, 99);
        Header += "g:";
        Append_Number(Header, Line);
        Header += '-';
        Append_Number(Header, Lines);
        Header += '-';
        Append_Number(Header, Group);
        Header += ',';
    }
    if (S.Of<IEC450_State>().Use_c_Tag) {
        Header += "c:";
        Append_Number(Header, Tag_Time_s(Sim));
        Header += ',';
    }
    if (S.Of<IEC450_State>().Use_t_Tag) Append_Text_Tag(Header, 't', S.Of<IEC450_State>().t_Tag);

    // Takes the last comma away or, with no tag on, the opening backslash; that too is required.
    Header.pop_back();
    const std::string Block = Header.substr(std::min(Block_Start, Header.size()));
    // Without a tag there is nothing to sum: the checksum of nothing, "XX", stands in the block then.
    const std::string Sum = Add_Checksum(Block);
    Header += '*';
    Header += Sum;
    Header += '\\';
    Header += Sentence;
    Sentence.swap(Header);
}

} // namespace brinewright
