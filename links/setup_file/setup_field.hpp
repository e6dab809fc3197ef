#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace brinewright {

// The fields of a setup file, one after another. Field, Count_Field and End_Line exist for a reader and for a
// writer alike, so that one description of a section (setup_sections.cpp) serves both ways.

struct Setup_Reader {
    std::string_view Bytes;
    std::size_t Position = 0;
    std::vector<const void*> Lost; // the variables of lines that could not be told apart, see Line_Is_Lost
};

struct Setup_Writer {
    std::string Bytes;
    bool At_Line_Start = true;
};

// A field as it stands in the file, without the quotation marks around it.
struct Raw_Field {
    std::string_view Text;
    bool Quoted = false;
    bool Closed = true; // false: a quotation mark opened the field and none ended it
};

inline bool At_End(const Setup_Reader& Reader) { return Reader.Position >= Reader.Bytes.size(); }

// Takes the field at the reader's position, with the comma or line end behind it. A field never goes over a
// line end. A quoted one ends at a quotation mark with a comma or a line end behind it, so that both commas
// and quotation marks may stand inside a text.
Raw_Field Next_Field(Setup_Reader& Reader);

// Each takes the next field as a value of the variable's type. The variable keeps its value when they throw:
// Run_Time_Error with Input past end of file, Type mismatch or Overflow.
void Field(Setup_Reader& Reader, bool& Value);
void Field(Setup_Reader& Reader, std::int16_t& Value);
void Field(Setup_Reader& Reader, std::int32_t& Value);
void Field(Setup_Reader& Reader, float& Value);
void Field(Setup_Reader& Reader, double& Value);
void Field(Setup_Reader& Reader, std::string& Value); // a text without quotation marks is taken too

// Each appends the value to the line. Numbers are the shortest decimals that read back to the same value.
void Field(Setup_Writer& Writer, const bool& Value);
void Field(Setup_Writer& Writer, const std::int16_t& Value);
void Field(Setup_Writer& Writer, const std::int32_t& Value);
void Field(Setup_Writer& Writer, const float& Value);
void Field(Setup_Writer& Writer, const double& Value);
void Field(Setup_Writer& Writer, const std::string& Value);

// Whether the line on which the reader stands was written with decimal commas: it has more fields than it is
// to have, up to one more for each decimal number. Nobody can tell where one number ends, so the reader goes
// to the next line, and what the line holds is lost.
bool Line_Is_Lost(Setup_Reader& Reader, std::size_t Fields, std::size_t Decimal_Numbers);

// A count of records that follow, 0 to Last. Any other count throws Run_Time_Error "Subscript out of range"
// before it is stored or written: nobody is to meet it in the state.
void Count_Field(Setup_Reader& Reader, std::int16_t& Count, int Last);
void Count_Field(Setup_Writer& Writer, const std::int16_t& Count, int Last);

// The reader takes commas and line ends for the same thing.
inline void End_Line(Setup_Reader&) {}
void End_Line(Setup_Writer& Writer);

} // namespace brinewright
