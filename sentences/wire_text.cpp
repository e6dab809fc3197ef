#include "sentences/wire_text.hpp"

#include <algorithm>

namespace brinewright {

namespace {

constexpr std::string_view Header = "UdPbC";
constexpr std::string_view Empty_Block = "*XX\\"; // the checksum of nothing

bool Is_Address_Character(char C) { return (C >= 'A' && C <= 'Z') || (C >= '0' && C <= '9'); }

} // namespace

bool Take_UdPbC_Header(std::string_view& Text) {
    if (!Text.starts_with(Header) || Text.size() == Header.size()) return false;
    const char Behind = Text[Header.size()];
    if (Behind != '\0' && Behind != ' ') return false;
    Text.remove_prefix(Header.size() + 1);
    return true;
}

std::optional<std::string_view> Take_Tag_Block(std::string_view& Text) {
    if (Text.starts_with('\\'))
        Text.remove_prefix(1);
    else if (!Text.starts_with(Empty_Block))
        return std::nullopt;
    const auto End = std::min(Text.find('\\'), Text.size());
    const std::string_view Block = Text.substr(0, End);
    Text.remove_prefix(std::min(End + 1, Text.size()));
    return Block;
}

std::string_view Without_Line_End(std::string_view Text) {
    while (!Text.empty() && (Text.back() == '\r' || Text.back() == '\n')) Text.remove_suffix(1);
    return Text;
}

std::string_view Bare_Sentence(std::string_view Text) {
    Take_UdPbC_Header(Text);
    Take_Tag_Block(Text);
    return Without_Line_End(Text);
}

std::optional<Sentence_Address> Address_Of(std::string_view Sentence) {
    constexpr std::size_t Talker_Size = 2, Address_Size = 5, Shortest_Proprietary = 4;
    if (Sentence.empty() || (Sentence[0] != '$' && Sentence[0] != '!')) return std::nullopt;
    const std::string_view Address = Sentence.substr(1, Sentence.find_first_of(",*", 1) - 1);
    if (!std::all_of(Address.begin(), Address.end(), Is_Address_Character)) return std::nullopt;
    if (Address.starts_with('P') && Address.size() >= Shortest_Proprietary)
        return Sentence_Address{{}, Address};
    if (Address.size() != Address_Size) return std::nullopt;
    return Sentence_Address{Address.substr(0, Talker_Size), Address.substr(Talker_Size)};
}

} // namespace brinewright
