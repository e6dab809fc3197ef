#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace brinewright {

// A recording: one line for each sentence as it left,
//
//   2026-01-01T00:00:00.150000 17 $GPGGA,000000,...*5A\r\n
//
// local time with microseconds, port number, and the bytes, in which a backslash is written \\, CR \r, LF \n
// and every other byte outside printable ASCII \xHH.
struct Recorded_Sentence {
    std::int64_t Local_us = 0;
    int Port = 0;
    std::string Text;
};

// Appends such lines; it keeps the text of the present second, because most sentences share it.
struct Record_Writer {
    std::int64_t Second = 0;
    std::string Second_Text;
    void Append(std::string& Out, std::int64_t Local_us, int Port, std::string_view Text);
};

// Reads a line (without its line feed) back; nothing when it is not one.
std::optional<Recorded_Sentence> Parse_Record(std::string_view Line);

} // namespace brinewright
