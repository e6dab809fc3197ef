#pragma once

#include "platform/table.hpp"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

// The golden rows of tests/golden/sentences/, written by the generate.py that stands beside them.
inline const std::filesystem::path Golden_Folder =
    std::filesystem::path(BRINEWRIGHT_SOURCE_DIR) / "tests/golden/sentences";

struct Golden_Row {
    std::string Name;
    std::map<std::string, std::string> Inputs; // what a reader has taken is removed, so a forgotten key shows
    std::string Expected;

    std::string Take(const std::string& Key) {
        auto Node = Inputs.extract(Key);
        if (Node.empty()) throw std::runtime_error(Name + " has no input " + Key);
        return Node.mapped();
    }

    void Read(const std::string& Key, std::string& Value) { Value = Take(Key); }
    void Read(const std::string& Key, char& Value) { Value = Take(Key).at(0); }
    void Read(const std::string& Key, bool& Value) { Value = Take(Key) == "1"; }

    template <class Number>
    void Read(const std::string& Key, Number& Value) {
        const std::string Text = Take(Key);
        const char* const End = Text.data() + Text.size();
        if (std::from_chars(Text.data(), End, Value).ptr != End) throw std::runtime_error(Name + ": " + Text);
    }

    template <class Number, int First, int Last>
    void Read(const std::string& Key, brinewright::Table<Number, First, Last>& Values) {
        const std::string Text = Take(Key);
        const char* Place = Text.data();
        const char* const End = Place + Text.size();
        for (Number& Value : Values) {
            Place = std::from_chars(Place, End, Value).ptr;
            if (Place != End) ++Place; // the blank
        }
        if (Place != End) throw std::runtime_error(Name + ": " + Text);
    }
};

// Composes what a row tells.
using Golden_Reader = std::string (*)(Golden_Row&);

inline std::vector<Golden_Row> Load_Golden_Rows(const std::filesystem::path& File) {
    std::vector<Golden_Row> Rows;
    std::ifstream Stream(File);
    for (std::string Line; std::getline(Stream, Line);) {
        Golden_Row Row;
        std::size_t Start = Line.find('\t');
        Row.Name = File.stem().string() + ": " + Line.substr(0, Start);
        for (std::size_t Tab = Line.find('\t', ++Start); Tab != std::string::npos;
             Tab = Line.find('\t', Start)) {
            const std::size_t Equals = Line.find('=', Start);
            Row.Inputs[Line.substr(Start, Equals - Start)] = Line.substr(Equals + 1, Tab - Equals - 1);
            Start = Tab + 1;
        }
        Row.Expected = Line.substr(Start);
        Rows.push_back(std::move(Row));
    }
    return Rows;
}
