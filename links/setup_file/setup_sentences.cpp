#include "links/setup_file/setup_sentences.hpp"

#include "radar/radar_state.hpp"
#include "shell/kit/sentence_family.hpp"

#include <algorithm>

namespace brinewright {

namespace {

// The radar has no window yet; the files keep its sentences all the same.
template <bool Radar_State::*Enabled, std::int16_t Radar_State::*Interval>
Kept_Sentence Radar_Choice(Simulator_State& S, Setup_Place Place) {
    Radar_State& R = S.Of<Radar_State>();
    return {Place, &(R.*Enabled), &(R.*Interval), 0};
}

template <class Walker>
bool Walk(Walker& W, const std::vector<Kept_Sentence>& All, std::string_view Section) {
    bool Any = false;
    for (const Kept_Sentence& Kept : All) {
        if (!Kept.Place.Section || Section != Kept.Place.Section) continue;
        Any = true;
        Field(W, *Kept.Enabled);
        Field(W, *Kept.Interval);
        End_Line(W);
    }
    return Any;
}

} // namespace

std::vector<Kept_Sentence> Kept_Sentences(Simulator_State& S, Window_Span Windows) {
    std::vector<Kept_Sentence> All{
        Radar_Choice<&Radar_State::TTM_Enabled, &Radar_State::TTM_Interval>(S, {"REM Active messages", 30}),
        Radar_Choice<&Radar_State::TTD_Enabled, &Radar_State::TTD_Interval>(S, {"REM TTD messages", 1}),
        Radar_Choice<&Radar_State::TLB_Enabled, &Radar_State::TLB_Interval>(S, {"REM TLB messages", 1})};
    for (const Window_Class* Class : Windows)
        for (const Sentence_Row& Row : Class->Sentences)
            for (int I = 1; I <= Class->Count; ++I) {
                const Sentence_Setting Its = Row.Setting(S, I);
                All.push_back({Row.Kept[I - 1], &Its.Enabled, &Its.Interval, Row.New_Setup_Interval});
            }
    std::stable_sort(All.begin(), All.end(), [](const Kept_Sentence& A, const Kept_Sentence& B) {
        return A.Place.Line < B.Place.Line;
    });
    return All;
}

bool Read_Sentences(Setup_Reader& Reader, const std::vector<Kept_Sentence>& All, std::string_view Section) {
    return Walk(Reader, All, Section);
}

void Write_Sentences(Setup_Writer& Writer, const std::vector<Kept_Sentence>& All, std::string_view Section) {
    Walk(Writer, All, Section);
}

std::vector<std::string_view> Sections_Of(const std::vector<Kept_Sentence>& All) {
    std::vector<std::string_view> Sections;
    for (const Kept_Sentence& Kept : All)
        if (Kept.Place.Section &&
            std::find(Sections.begin(), Sections.end(), Kept.Place.Section) == Sections.end())
            Sections.emplace_back(Kept.Place.Section);
    return Sections;
}

void Load_Default_Intervals(Simulator_State& State, Window_Span Windows) {
    for (const Kept_Sentence& Kept : Kept_Sentences(State, Windows)) *Kept.Interval = Kept.New_Setup_Interval;
}

} // namespace brinewright
