#pragma once

// What the tests of the setup file share: every variable of the state by its path, and the file as the layout
// in golden/setup/layout.txt describes it, put together without the reader or the writer.

#include "links/setup_file/setup_file.hpp"
#include "tests/support/state_leaves.hpp"
#include "tests/support/virtual_simulator.hpp"

#include <fstream>
#include <map>
#include <sstream>

namespace brinewright {

inline std::string File_Bytes(const std::string& Name) {
    std::ifstream File(std::string(BRINEWRIGHT_SOURCE_DIR "/tests/golden/setup/") + Name, std::ios::binary);
    return {std::istreambuf_iterator<char>(File), {}};
}

template <class Leaf>
void Each_Leaf(Simulator_State& State, Leaf At_Leaf) {
    Visit_State(State, [&](const char* Name, auto& Member) { Each_Leaf(Name, Member, At_Leaf); });
}

inline std::string Text_Of(bool Value) { return Value ? "#TRUE#" : "#FALSE#"; }
inline std::string Text_Of(const std::string& Value) { return '"' + Value + '"'; }
inline std::string Text_Of(std::int16_t Value) { return std::to_string(Value); }
inline std::string Text_Of(std::int32_t Value) { return std::to_string(Value); }
// Only for the values of Filled_State and zero: a whole number and a half, negative or not.
inline std::string Text_Of(double Value) {
    const std::string Whole = std::to_string(static_cast<long>(Value));
    return Value == static_cast<double>(static_cast<long>(Value)) ? Whole : Whole + ".5";
}

using Leaf_Texts = std::map<std::string, std::string>; // path to the field's text

inline Leaf_Texts All_Texts(Simulator_State State) {
    Leaf_Texts Found;
    Each_Leaf(State, [&](const std::string& Path, auto& Value) { Found[Path] = Text_Of(Value); });
    return Found;
}

// Every variable different from its default and from every other one. A boolean holds bit Bit of its number,
// so that two booleans differ in at least one of the states of bits 0 to 11.
inline Simulator_State Filled_State(int Bit) {
    Simulator_State State;
    int Number = 0;
    Each_Leaf(State, [&](const std::string&, auto& Value) {
        using T = std::remove_reference_t<decltype(Value)>;
        ++Number;
        if constexpr (std::is_same_v<T, bool>)
            Value = ((Number >> Bit) & 1) != 0;
        else if constexpr (std::is_same_v<T, std::string>)
            Value = "T\"" + std::to_string(Number) + ", \xB0";
        else if constexpr (std::is_same_v<T, std::int32_t>)
            Value = 100000 + Number;
        else if constexpr (std::is_floating_point_v<T>)
            Value = static_cast<T>(Number % 2 ? Number + 0.5 : -Number - 0.5);
        else
            Value = static_cast<T>(Number % 2 ? Number : -Number);
    });
    State.Of<Shell_State>().Open_Form_Count = 20;
    State.Of<Shell_State>().Start_With_Last_Navdata = true;
    return State;
}

// The lines of the layout: a marker in quotation marks, or the paths of the fields of a line.
inline std::vector<std::vector<std::string>> Layout_Of_File() {
    std::vector<std::vector<std::string>> Lines;
    std::istringstream File(File_Bytes("layout.txt"));
    for (std::string Line; std::getline(File, Line);) {
        auto& Fields = Lines.emplace_back();
        std::istringstream Rest(Line);
        for (std::string Path; std::getline(Rest, Path, ',');) Fields.push_back(Path);
    }
    return Lines;
}

// One line of the file, with Line_End behind it.
inline std::string File_Line(const std::vector<std::string>& Fields, const Leaf_Texts& Values,
                             const std::string& Line_End = "\r\n") {
    std::string Line;
    for (const std::string& Path : Fields)
        Line += (Line.empty() ? "" : ",") + (Path[0] == '"' ? Path : Values.at(Path));
    return Line + Line_End;
}

inline std::string File_Of(const Leaf_Texts& Values, const std::string& Line_End = "\r\n") {
    std::string Bytes;
    for (const auto& Fields : Layout_Of_File()) Bytes += File_Line(Fields, Values, Line_End);
    return Bytes;
}

} // namespace brinewright
