#include "sentences/take_apart.hpp"

#include "sentences/checksum.hpp"
#include "sentences/checksum_verdict.hpp"
#include "sentences/field_descriptions.hpp"
#include "sentences/wire_text.hpp"

#include <algorithm>
#include <array>

namespace brinewright {

namespace {

constexpr std::size_t Most_Parts = 500;

struct Tag_Meaning {
    char Letter;
    const char* Name;
    const char* Unit;
};
constexpr std::array<Tag_Meaning, 6> Tag_Meanings{{
    {'s', "s: source", ""},
    {'d', "d: destination", ""},
    {'n', "n: line count", "1 to 999"},
    {'g', "g: group", "line-lines-group"},
    {'c', "c: time", "s since 1970"},
    {'t', "t: text", ""},
}};

struct Parts {
    const char* Text_Begin;
    std::vector<Field_Value> All;
};

// Value is a piece of the text.
void Add(Parts& Out, std::string Name, std::string_view Value, std::string Unit = {}) {
    if (Out.All.size() < Most_Parts)
        Out.All.push_back({std::move(Name), std::string(Value), std::move(Unit),
                           static_cast<std::size_t>(Value.data() - Out.Text_Begin)});
}

// Calls Each(index, piece) for what stands between the commas.
template <class Work>
void For_Each_Field(std::string_view Text, Work Each) {
    for (std::size_t Which = 0;; ++Which) {
        const auto Comma = Text.find(',');
        Each(Which, Text.substr(0, Comma));
        if (Comma == std::string_view::npos) return;
        Text.remove_prefix(Comma + 1);
    }
}

void Add_Checksum_Part(Parts& Out, const char* Name, std::string_view Framed, Checksum_Verdict Verdict,
                       const std::string& Right) {
    const auto Star = Framed.find('*');
    if (Star == std::string_view::npos) return;
    Add(Out, Name, Framed.substr(Star + 1),
        Verdict == Checksum_Verdict::Ok ? "ok" : "wrong: " + Right + " is right");
}

void Take_Tags(Parts& Out, std::string_view Block) {
    const std::string_view Tags = Block.substr(0, Block.find('*'));
    if (!Tags.empty())
        For_Each_Field(Tags, [&](std::size_t, std::string_view Tag) {
            const auto Known =
                std::find_if(Tag_Meanings.begin(), Tag_Meanings.end(), [&](const Tag_Meaning& M) {
                    return Tag.size() >= 2 && Tag[0] == M.Letter && Tag[1] == ':';
                });
            if (Known == Tag_Meanings.end())
                Add(Out, "Unknown tag", Tag);
            else
                Add(Out, Known->Name, Tag.substr(2), Known->Unit);
        });
    Add_Checksum_Part(Out, "Checksum of the tags", Block, Tag_Block_Verdict(Block),
                      Add_Checksum("\\" + std::string(Block)));
}

void Take_Sentence(Parts& Out, std::string_view Sentence) {
    const auto Address = Address_Of(Sentence);
    const std::string_view Body = Sentence.substr(0, Sentence.find('*'));
    const Sentence_Description* Described = Address ? Find_Description(Address->Type) : nullptr;
    For_Each_Field(Body, [&](std::size_t Which, std::string_view Value) {
        if (Which > 0) {
            const bool Known = Described && Which <= Described->Field_Count();
            Add(Out, Known ? Described->Name(Which - 1) : "Field " + std::to_string(Which), Value,
                Known ? Described->Unit(Which - 1) : "");
        } else if (!Address) {
            Add(Out, "Unreadable address", Value);
        } else {
            if (!Address->Talker.empty()) Add(Out, "Talker", Address->Talker);
            Add(Out, "Type", Address->Type, Described ? Described->Meaning : "");
        }
    });
    Add_Checksum_Part(Out, "Checksum", Sentence, Sentence_Verdict(Sentence), Add_Checksum(Sentence));
}

// Where the next sentence, tag block or header begins, behind the first character.
std::size_t Next_Start(std::string_view Text) {
    return std::min({Text.size(), Text.find_first_of("$!\\\r\n", 1), Text.find("UdPbC", 1)});
}

} // namespace

std::vector<Field_Value> Take_Apart(std::string_view Wire_Text) {
    Parts Out{Wire_Text.data(), {}};
    for (std::string_view Rest = Wire_Text; !Rest.empty() && Out.All.size() < Most_Parts;) {
        if (Rest[0] == '\r' || Rest[0] == '\n') {
            Rest.remove_prefix(1);
        } else if (const std::string_view Header = Rest.substr(0, 5); Take_UdPbC_Header(Rest)) {
            Add(Out, "UdPbC header", Header);
        } else if (const auto Block = Take_Tag_Block(Rest)) {
            Take_Tags(Out, Without_Line_End(*Block));
        } else {
            const std::string_view Piece = Rest.substr(0, Next_Start(Rest));
            if (Piece[0] == '$' || Piece[0] == '!')
                Take_Sentence(Out, Piece);
            else
                Add(Out, "Unreadable", Piece);
            Rest.remove_prefix(Piece.size());
        }
    }
    return std::move(Out.All);
}

} // namespace brinewright
