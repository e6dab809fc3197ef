#include "sentences/sentence_frame.hpp"

#include "sentences/checksum.hpp"

#include <cstddef>

namespace brinewright {

namespace {

std::string Begin_Frame() {
    constexpr std::size_t Usual_Size = 112; // of the longest, GGA with six decimals, with room to spare
    std::string Out;
    Out.reserve(Usual_Size);
    Out += '$';
    return Out;
}

} // namespace

std::string Begin_Sentence(std::string_view Talker, std::string_view Type) {
    std::string Out = Begin_Frame();
    Append_Talker(Out, Talker);
    Out += Type;
    return Out;
}

std::string Begin_Proprietary(std::string_view Address) {
    std::string Out = Begin_Frame();
    Out += Address;
    return Out;
}

void Append_Talker(std::string& Out, std::string_view Talker) {
    constexpr std::size_t Talker_Size = 2;
    const std::size_t End = Out.size() + Talker_Size;
    Out += Talker.substr(0, Talker_Size);
    Out.resize(End, ' ');
}

std::string Finish_Sentence(std::string Out, bool No_Checksum) {
    if (No_Checksum) return Out;
    const std::string Checksum = Add_Checksum(Out);
    Out += '*';
    return Out += Checksum;
}

} // namespace brinewright
