#include "links/setup_file/setup_field.hpp"
#include "platform/run_time_error.hpp"
#include "platform/trimmed.hpp"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace brinewright {

namespace {

bool Is_Line_End(char Character) { return Character == '\r' || Character == '\n'; }
bool Is_Separator(char Character) { return Character == ',' || Is_Line_End(Character); }
bool Is_Blank(char Character) { return Character == ' ' || Character == '\t'; }

constexpr std::string_view Blanks = " \t";

void Skip_Separator(Setup_Reader& Reader) {
    if (At_End(Reader)) return;
    const char Separator = Reader.Bytes[Reader.Position++];
    if (Separator == '\r' && !At_End(Reader) && Reader.Bytes[Reader.Position] == '\n') ++Reader.Position;
}

// The reader stands behind the opening quotation mark.
Raw_Field Next_Quoted(Setup_Reader& Reader) {
    const std::string_view Bytes = Reader.Bytes;
    const std::size_t First = Reader.Position;
    std::size_t Position = First;
    for (; Position < Bytes.size() && !Is_Line_End(Bytes[Position]); ++Position) {
        if (Bytes[Position] != '"') continue;
        if (Position + 1 == Bytes.size() || Is_Separator(Bytes[Position + 1])) {
            Reader.Position = Position + 1;
            return {Bytes.substr(First, Position - First), true, true};
        }
    }
    Reader.Position = Position;
    // An editor may have left blanks behind the last quotation mark of the line.
    const std::string_view Rest = Bytes.substr(First, Position - First);
    const std::string_view Text = Right_Trimmed(Rest, Blanks);
    if (!Text.empty() && Text.back() == '"') return {Text.substr(0, Text.size() - 1), true, true};
    return {Rest, true, false};
}

Raw_Field Needed_Field(Setup_Reader& Reader) {
    if (At_End(Reader)) throw Run_Time_Error(error_text::Past_End_Of_File);
    const Raw_Field Raw = Next_Field(Reader);
    if (Raw.Closed) return Raw;
    throw Run_Time_Error(At_End(Reader) ? error_text::Past_End_Of_File : error_text::Type_Mismatch);
}

template <class Number>
void Number_Field(Setup_Reader& Reader, Number& Value) {
    const Raw_Field Raw = Needed_Field(Reader);
    std::string_view Text = Raw.Text;
    const bool Plus = Text.starts_with('+');
    if (Plus) Text.remove_prefix(1);
    // The library would also take a second sign here, and "inf" and "nan", which are no numbers of a setup.
    const std::string_view Digits = Text.substr(!Plus && Text.starts_with('-') ? 1 : 0);
    const bool Numeric = !Digits.empty() && (Digits[0] == '.' || (Digits[0] >= '0' && Digits[0] <= '9'));
    if (Raw.Quoted || !Numeric) throw Run_Time_Error(error_text::Type_Mismatch);

    Number Read{};
    const char* const End = Text.data() + Text.size();
    const auto [Stopped, Error] = std::from_chars(Text.data(), End, Read);
    if (Error == std::errc::invalid_argument || Stopped != End)
        throw Run_Time_Error(error_text::Type_Mismatch);
    if (Error == std::errc::result_out_of_range) throw Run_Time_Error(error_text::Overflow);
    Value = Read;
}

bool Is_Word(std::string_view Text, std::string_view Upper_Case_Word) {
    if (Text.size() != Upper_Case_Word.size()) return false;
    for (std::size_t I = 0; I < Text.size(); ++I) {
        const char Upper =
            Text[I] >= 'a' && Text[I] <= 'z' ? static_cast<char>(Text[I] - 'a' + 'A') : Text[I];
        if (Upper != Upper_Case_Word[I]) return false;
    }
    return true;
}

} // namespace

Raw_Field Next_Field(Setup_Reader& Reader) {
    const std::string_view Bytes = Reader.Bytes;
    while (!At_End(Reader) && Is_Blank(Bytes[Reader.Position])) ++Reader.Position;

    Raw_Field Raw;
    if (!At_End(Reader) && Bytes[Reader.Position] == '"') {
        ++Reader.Position;
        Raw = Next_Quoted(Reader);
    } else {
        const std::size_t First = Reader.Position;
        while (!At_End(Reader) && !Is_Separator(Bytes[Reader.Position])) ++Reader.Position;
        Raw.Text = Right_Trimmed(Bytes.substr(First, Reader.Position - First), Blanks);
    }
    Skip_Separator(Reader);
    return Raw;
}

bool Line_Is_Lost(Setup_Reader& Reader, std::size_t Fields, std::size_t Decimal_Numbers) {
    const std::string_view Bytes = Reader.Bytes;
    const std::size_t First = Reader.Position;
    // Lines may be joined, since commas and line ends part fields alike: only a line of its own is judged.
    if (Decimal_Numbers == 0 || (First > 0 && !Is_Line_End(Bytes[First - 1]))) return false;
    const std::size_t End = std::min(Bytes.find_first_of("\r\n", First), Bytes.size());
    const std::string_view Line = Bytes.substr(First, End - First);
    if (static_cast<std::size_t>(std::count(Line.begin(), Line.end(), ',')) < Fields) return false;
    std::size_t Count = 0;
    for (Setup_Reader Rest{Line, 0, {}}; !At_End(Rest); ++Count) Next_Field(Rest);
    if (Count <= Fields || Count > Fields + Decimal_Numbers) return false;
    Reader.Position = End;
    Skip_Separator(Reader);
    return true;
}

void Field(Setup_Reader& Reader, bool& Value) {
    const Raw_Field Raw = Needed_Field(Reader);
    const bool True = !Raw.Quoted && Is_Word(Raw.Text, "#TRUE#");
    const bool False = !Raw.Quoted && Is_Word(Raw.Text, "#FALSE#");
    if (!True && !False) throw Run_Time_Error(error_text::Type_Mismatch);
    Value = True;
}

void Field(Setup_Reader& Reader, std::int16_t& Value) { Number_Field(Reader, Value); }
void Field(Setup_Reader& Reader, std::int32_t& Value) { Number_Field(Reader, Value); }
void Field(Setup_Reader& Reader, float& Value) { Number_Field(Reader, Value); }
void Field(Setup_Reader& Reader, double& Value) { Number_Field(Reader, Value); }
void Field(Setup_Reader& Reader, std::string& Value) { Value = Needed_Field(Reader).Text; }

void Count_Field(Setup_Reader& Reader, std::int16_t& Count, int Last) {
    std::int16_t Read = 0;
    Field(Reader, Read);
    if (Read < 0 || Read > Last) throw Run_Time_Error(error_text::Subscript);
    Count = Read;
}

} // namespace brinewright
