#include "links/setup_file/setup_field.hpp"
#include "platform/run_time_error.hpp"

#include <array>
#include <charconv>
#include <cmath>

namespace brinewright {

namespace {

void Start_Field(Setup_Writer& Writer) {
    if (!Writer.At_Line_Start) Writer.Bytes += ',';
    Writer.At_Line_Start = false;
}

template <class Integer>
void Integer_Field(Setup_Writer& Writer, Integer Value) {
    Start_Field(Writer);
    std::array<char, 16> Text;
    const auto End = std::to_chars(Text.data(), Text.data() + Text.size(), Value).ptr;
    Writer.Bytes.append(Text.data(), End);
}

template <class Real>
void Real_Field(Setup_Writer& Writer, Real Value) {
    Start_Field(Writer);
    // Written as it is, a value that is not finite would make the whole file unreadable at the next start.
    if (!std::isfinite(Value)) Value = 0;
    std::array<char, 400> Text; // the smallest double needs 327 characters without an exponent
    const auto End =
        std::to_chars(Text.data(), Text.data() + Text.size(), Value, std::chars_format::fixed).ptr;
    Writer.Bytes.append(Text.data(), End);
}

} // namespace

void Field(Setup_Writer& Writer, const bool& Value) {
    Start_Field(Writer);
    Writer.Bytes += Value ? "#TRUE#" : "#FALSE#";
}

void Field(Setup_Writer& Writer, const std::int16_t& Value) { Integer_Field(Writer, Value); }
void Field(Setup_Writer& Writer, const std::int32_t& Value) { Integer_Field(Writer, Value); }
void Field(Setup_Writer& Writer, const float& Value) { Real_Field(Writer, Value); }
void Field(Setup_Writer& Writer, const double& Value) { Real_Field(Writer, Value); }

void Field(Setup_Writer& Writer, const std::string& Value) {
    Start_Field(Writer);
    Writer.Bytes += '"';
    for (std::size_t I = 0; I < Value.size(); ++I) {
        // The format has no escapes, so what would end the field early or the line is replaced.
        const bool Ends_Field = Value[I] == '"' && I + 1 < Value.size() && Value[I + 1] == ',';
        const bool Ends_Line = Value[I] == '\r' || Value[I] == '\n';
        Writer.Bytes += Ends_Field ? '\'' : Ends_Line ? ' ' : Value[I];
    }
    Writer.Bytes += '"';
}

void Count_Field(Setup_Writer& Writer, const std::int16_t& Count, int Last) {
    if (Count < 0 || Count > Last) throw Run_Time_Error(error_text::Subscript);
    Field(Writer, Count);
}

void End_Line(Setup_Writer& Writer) {
    Writer.Bytes += "\r\n";
    Writer.At_Line_Start = true;
}

} // namespace brinewright
