#include "golden_rows.hpp"

#include <fstream>
#include <utility>

std::vector<Golden_Row> Load_Golden_Rows(const std::filesystem::path& File) {
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
