#include "links/setup_file/setup_file.hpp"
#include "links/setup_file/setup_sections.hpp"
#include "links/setup_file/setup_sentences.hpp"

#include <algorithm>
#include <cmath>
#include <type_traits>
#include <utility>

namespace brinewright {

namespace {

constexpr double Rounding = 1e-9; // by which a position on its limit may pass it

bool Is_Talker_Character(char C) {
    return (C >= '0' && C <= '9') || (C >= 'A' && C <= 'Z') || (C >= 'a' && C <= 'z');
}

bool Is_Within(const std::string& Text, const Setup_Limits& Limits) {
    if (Text.empty()) return true;
    switch (Limits.Words) {
    case Setup_Words::Mode: return Text == "Ship" || Text == "Sensor";
    case Setup_Words::Talker:
        return Text.size() == 2 && std::all_of(Text.begin(), Text.end(), Is_Talker_Character);
    case Setup_Words::Printable: break;
    }
    return std::none_of(Text.begin(), Text.end(),
                        [](char C) { return static_cast<unsigned char>(C) < ' ' || C == '\x7F'; });
}

bool Is_Within(bool, const Setup_Limits&) { return true; }

template <class Number>
bool Is_Within(Number Value, const Setup_Limits& Limits) {
    const auto Wide = static_cast<double>(Value);
    return Wide >= Limits.Least - Rounding && Wide <= Limits.Greatest + Rounding;
}

const void* Address_Of(const Setup_Value& Value) {
    return std::visit([](const auto* Variable) { return static_cast<const void*>(Variable); },
                      Value.Variable);
}

// Of a record that the defaults do not have, that is of a kept window, all is zero.
void Take_Default(const Setup_Value& Value, const Setup_Value* Default) {
    std::visit(
        [&](auto* Variable) {
            using Pointer = decltype(Variable);
            *Variable = Default ? *std::get<Pointer>(Default->Variable) : std::remove_pointer_t<Pointer>{};
        },
        Value.Variable);
}

} // namespace

std::vector<const void*> Repair_Values(Simulator_State& State, const std::vector<const void*>& Lost,
                                       Window_Span Windows) {
    Simulator_State Defaults;
    Load_Default_Data(Defaults, Windows);
    std::vector<const void*> Repaired;
    for (const Setup_Section& Section : Setup_Sections()) {
        Setup_Values Found, Default;
        Section.List(Found, State);
        Section.List(Default, Defaults);
        for (std::size_t I = 0; I < Found.size(); ++I) {
            const void* const Address = Address_Of(Found[I]);
            const bool Sound =
                std::find(Lost.begin(), Lost.end(), Address) == Lost.end() &&
                std::visit([&](const auto* V) { return Is_Within(*V, Found[I].Limits); }, Found[I].Variable);
            if (Sound) continue;
            Take_Default(Found[I], I < Default.size() ? &Default[I] : nullptr);
            Repaired.push_back(Address);
        }
    }
    return Repaired;
}

std::string Settings_Text(Simulator_State& State, Window_Span Windows) {
    Setup_Writer Writer;
    for (const Setup_Section& Section : Setup_Sections()) {
        Setup_Values All;
        Section.List(All, State);
        for (const Setup_Value& Value : All)
            if (!Value.Moves) std::visit([&](const auto* V) { Field(Writer, *V); }, Value.Variable);
    }
    const auto Sentences = Kept_Sentences(State, Windows);
    for (const std::string_view Section : Sections_Of(Sentences)) Write_Sentences(Writer, Sentences, Section);
    return std::move(Writer.Bytes);
}

} // namespace brinewright
