#include "links/setup_file/setup_sentences.hpp"

#include "radar/radar_state.hpp"
#include "shell/kit/sentence_family.hpp"

#include <algorithm>

namespace brinewright {

namespace {

struct Choice {
    Setup_Place Place;
    bool* Enabled;
    std::int16_t* Interval;
    std::int16_t New_Setup_Interval;
};

// The radar has no window yet; the files keep its sentences all the same.
template <bool Radar_State::*Enabled, std::int16_t Radar_State::*Interval>
Choice Radar_Choice(Simulator_State& S, Setup_Place Place) {
    Radar_State& R = S.Of<Radar_State>();
    return {Place, &(R.*Enabled), &(R.*Interval), 0};
}

std::vector<Choice> All_Choices(Simulator_State& S, Window_Span Windows) {
    std::vector<Choice> All{
        Radar_Choice<&Radar_State::TTM_Enabled, &Radar_State::TTM_Interval>(S, {"REM Active messages", 30}),
        Radar_Choice<&Radar_State::TTD_Enabled, &Radar_State::TTD_Interval>(S, {"REM TTD messages", 1}),
        Radar_Choice<&Radar_State::TLB_Enabled, &Radar_State::TLB_Interval>(S, {"REM TLB messages", 1})};
    for (const Window_Class* Class : Windows)
        for (const Sentence_Row& Row : Class->Sentences)
            for (int I = 1; I <= Class->Count; ++I) {
                const Sentence_Setting Its = Row.Setting(S, I);
                All.push_back({Row.Kept[I - 1], &Its.Enabled, &Its.Interval, Row.New_Setup_Interval});
            }
    std::stable_sort(All.begin(), All.end(),
                     [](const Choice& A, const Choice& B) { return A.Place.Line < B.Place.Line; });
    return All;
}

template <class Walker>
void Walk(Walker& W, Simulator_State& State, Window_Span Windows, std::string_view Section) {
    for (const Choice& C : All_Choices(State, Windows)) {
        if (!C.Place.Section || Section != C.Place.Section) continue;
        Field(W, *C.Enabled);
        Field(W, *C.Interval);
        End_Line(W);
    }
}

} // namespace

void Read_Sentences(Setup_Reader& Reader, Simulator_State& State, Window_Span Windows,
                    std::string_view Section) {
    Walk(Reader, State, Windows, Section);
}

void Write_Sentences(Setup_Writer& Writer, Simulator_State& State, Window_Span Windows,
                     std::string_view Section) {
    Walk(Writer, State, Windows, Section);
}

std::vector<std::string_view> Sections_Of_Sentences(Window_Span Windows) {
    Simulator_State Any;
    std::vector<std::string_view> Sections;
    for (const Choice& C : All_Choices(Any, Windows))
        if (C.Place.Section && std::find(Sections.begin(), Sections.end(), C.Place.Section) == Sections.end())
            Sections.emplace_back(C.Place.Section);
    return Sections;
}

void Load_Default_Intervals(Simulator_State& State, Window_Span Windows) {
    for (const Choice& C : All_Choices(State, Windows)) *C.Interval = C.New_Setup_Interval;
}

} // namespace brinewright
