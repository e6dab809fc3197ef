#include "sentences/checksum_verdict.hpp"

#include "sentences/wire_text.hpp"

#include <algorithm>

namespace brinewright {

namespace {

int Hex_Value(char C) {
    if (C >= '0' && C <= '9') return C - '0';
    if (C >= 'A' && C <= 'F') return C - 'A' + 10;
    if (C >= 'a' && C <= 'f') return C - 'a' + 10;
    return -1;
}

// Summed are the characters from First on up to the "*".
Checksum_Verdict Verdict_From(std::string_view Text, std::size_t First) {
    const auto Star = Text.find('*');
    if (Star == std::string_view::npos) return Checksum_Verdict::None;
    const std::string_view Digits = Text.substr(Star + 1);
    if (Digits.size() != 2 || Star < First) return Checksum_Verdict::Wrong;
    int Sum = 0;
    for (const char C : Text.substr(First, Star - First)) Sum ^= static_cast<unsigned char>(C);
    const int High = Hex_Value(Digits[0]);
    const int Low = Hex_Value(Digits[1]);
    return High >= 0 && Low >= 0 && High * 16 + Low == Sum ? Checksum_Verdict::Ok : Checksum_Verdict::Wrong;
}

} // namespace

Checksum_Verdict Sentence_Verdict(std::string_view Sentence) { return Verdict_From(Sentence, 1); }

Checksum_Verdict Tag_Block_Verdict(std::string_view Block) { return Verdict_From(Block, 0); }

Checksum_Verdict Verdict_Of(std::string_view Wire_Text) {
    std::string_view Rest = Without_Line_End(Wire_Text);
    Take_UdPbC_Header(Rest);
    const auto Block = Take_Tag_Block(Rest);
    const Checksum_Verdict Of_Sentence = Sentence_Verdict(Rest);
    return Block && Tag_Block_Verdict(*Block) != Checksum_Verdict::Ok ? Checksum_Verdict::Wrong : Of_Sentence;
}

const char* Verdict_Text(Checksum_Verdict Verdict) {
    switch (Verdict) {
    case Checksum_Verdict::Ok: return "ok";
    case Checksum_Verdict::Wrong: return "wrong";
    case Checksum_Verdict::None: break;
    }
    return "none";
}

std::vector<Shown_Line> Lines_With_Verdict(std::string_view Pane_Text) {
    std::vector<Shown_Line> Lines;
    while (!Pane_Text.empty()) {
        const auto Feed = std::min(Pane_Text.find('\n'), Pane_Text.size());
        const std::string_view Line = Without_Line_End(Pane_Text.substr(0, Feed));
        Lines.push_back({std::string(Line), Verdict_Of(Line)});
        Pane_Text.remove_prefix(std::min(Feed + 1, Pane_Text.size()));
    }
    return Lines;
}

} // namespace brinewright
