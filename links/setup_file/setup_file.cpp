#include "links/setup_file/setup_file.hpp"
#include "links/setup_file/setup_sections.hpp"
#include "links/setup_file/setup_sentences.hpp"
#include "platform/run_time_error.hpp"

#include <algorithm>
#include <utility>
#include <vector>

namespace brinewright {

namespace {

constexpr std::string_view UTF8_Mark = "\xEF\xBB\xBF"; // some editors put it in front of what they save

// The section of a sentence that has one of its own comes behind all others.
std::vector<std::string_view> Later_Sections(const std::vector<Kept_Sentence>& All) {
    std::vector<std::string_view> Later = Sections_Of(All);
    for (const Setup_Section& Section : Setup_Sections()) std::erase(Later, Section.Marker);
    return Later;
}

const Setup_Section* Find_Section(std::string_view Marker) {
    const auto Sections = Setup_Sections();
    const auto Found = std::find_if(Sections.begin(), Sections.end(),
                                    [&](const Setup_Section& Section) { return Section.Marker == Marker; });
    return Found == Sections.end() ? nullptr : &*Found;
}

void Write_Marker(Setup_Writer& Writer, std::string_view Marker) {
    Field(Writer, std::string(Marker));
    End_Line(Writer);
}

} // namespace

Setup_Reading Read_Setup(std::string_view Bytes, Simulator_State& State, Window_Span Windows) {
    return Read_Setup(Bytes, State, Kept_Sentences(State, Windows));
}

Setup_Reading Read_Setup(std::string_view Bytes, Simulator_State& State,
                         const std::vector<Kept_Sentence>& Sentences) {
    bool Known = false;
    bool Cut_Off = !Bytes.empty() && Bytes.back() != '\n' && Bytes.back() != '\r';
    Setup_Reader Reader{Bytes, 0, {}};
    if (Bytes.starts_with(UTF8_Mark)) Reader.Position = UTF8_Mark.size();
    while (!At_End(Reader)) {
        // Whatever is not a known marker is passed over field by field: unknown sections, junk, surplus
        // fields.
        const Raw_Field Next = Next_Field(Reader);
        Cut_Off |= !Next.Closed;
        if (!Next.Text.starts_with("REM")) continue;
        const Setup_Section* Section = Find_Section(Next.Text);
        if (Section) Section->Read(Reader, State);
        if (!Read_Sentences(Reader, Sentences, Next.Text) && !Section) continue;
        Known = true;
    }
    if (Known && Cut_Off) throw Run_Time_Error(error_text::Type_Mismatch);
    return {Known, std::move(Reader.Lost)};
}

std::string Write_Setup(const Simulator_State& State, Window_Span Windows) {
    Setup_Writer Writer;
    Simulator_State Copy = State; // the rows lead to variables, and those of State are not to be written to
    const auto Sentences = Kept_Sentences(Copy, Windows);
    for (const Setup_Section& Section : Setup_Sections()) {
        Write_Marker(Writer, Section.Marker);
        Section.Write(Writer, State);
        Write_Sentences(Writer, Sentences, Section.Marker);
    }
    for (const std::string_view Marker : Later_Sections(Sentences)) {
        Write_Marker(Writer, Marker);
        Write_Sentences(Writer, Sentences, Marker);
    }
    return std::move(Writer.Bytes);
}

} // namespace brinewright
