#pragma once

#include "ownship/geodesy/geodetic_constants.hpp"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace brinewright {

inline constexpr double Rad = Degrees_To_Radians;
inline constexpr double Untouched = -77; // what nothing was written to

using Golden_Row = std::vector<double>;

inline std::filesystem::path Geodesy_Folder() {
    return std::filesystem::path(BRINEWRIGHT_SOURCE_DIR) / "tests/golden/geodesy";
}

// Rows of numbers with blanks between them; lines that start with "#" are comments.
inline std::vector<Golden_Row> Read_Golden_Rows(const std::string& Name) {
    std::ifstream File(Geodesy_Folder() / Name);
    std::vector<Golden_Row> Rows;
    for (std::string Line; std::getline(File, Line);) {
        if (Line.starts_with('#')) continue;
        Golden_Row& Row = Rows.emplace_back();
        const char* Place = Line.data();
        const char* const End = Line.data() + Line.size();
        for (double Value = 0; Place < End; ++Place) {
            Place = std::from_chars(Place, End, Value).ptr;
            Row.push_back(Value);
        }
    }
    return Rows;
}

} // namespace brinewright
