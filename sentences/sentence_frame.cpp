#include "sentences/sentence_frame.hpp"

#include "sentences/checksum.hpp"

#include <cstddef>

namespace brinewright {

std::string Begin_Sentence(std::string_view Talker, std::string_view Type) {
    constexpr std::size_t Talker_Size = 2;
    constexpr std::size_t Usual_Size = 112; // of the longest, GGA with six decimals, with room to spare
    std::string Out;
    Out.reserve(Usual_Size);
    Out += '$';
    Out += Talker.substr(0, Talker_Size);
    Out.resize(1 + Talker_Size, ' ');
    return Out += Type;
}

std::string Finish_Sentence(std::string Out, bool No_Checksum) {
    if (No_Checksum) return Out;
    const std::string Checksum = Add_Checksum(Out);
    Out += '*';
    return Out += Checksum;
}

} // namespace brinewright
