// The position parsers and formatters on any bytes. The first two choose the parser and the decimals, the
// rest is the text that a user could have typed.

#include "ownship/geodesy/format_position.hpp"
#include "ownship/geodesy/parse_position.hpp"
#include "tests/fuzz/require.hpp"

#include <array>

using namespace brinewright;

namespace {

struct Reading {
    std::string Text;
    double Value = 0;
    std::size_t Messages = 0;
    bool Has_Overflow = false;
};

Reading Read(const std::string& Text, const std::string& Kind, bool Has_Seconds, std::int16_t Decimals) {
    Message_Boxes Boxes;
    Reading R{Text};
    R.Value = Has_Seconds ? Parse_DMS(R.Text, Kind, Boxes) : Parse_DM(R.Text, Kind, Decimals, Boxes);
    R.Messages = Boxes.Standing.size();
    R.Has_Overflow = R.Messages > 0 && Boxes.Standing.back().Text.ends_with("FORMAT ERROR. Overflow");
    return R;
}

void Check_Range(const Reading& R, const std::string& Kind) {
    Require(std::isfinite(R.Value));
    Require(R.Messages <= 5);
    if (Kind == "LAT") Require(std::abs(R.Value) <= 90);
    if (Kind == "LON") Require(std::abs(R.Value) <= 180);
}

// What a parser wrote parses to the same again, in silence. There are three exceptions: seconds of 59.99995
// are written as 60, minutes with fewer than 0 or more than 6 decimals may be, and a bearing of 360 is told.
void Check_Canonical_Text(const Reading& First, const std::string& Kind, bool Has_Seconds,
                          std::int16_t Decimals) {
    if (First.Has_Overflow || (Kind != "LAT" && Kind != "LON")) return;
    if (Has_Seconds ? First.Text.find("60.0") != std::string::npos : Decimals < 0 || Decimals > 6) return;
    const Reading Second = Read(First.Text, Kind, Has_Seconds, Decimals);
    Require(Second.Messages == 0);
    Require(Second.Text == First.Text || Second.Value == 0); // "00 00' S" reads as 0, which is north
    const double Resolution = Has_Seconds ? 0.0001 / 3600 : std::pow(10.0, -Decimals) / 60;
    Require(std::abs(Second.Value - First.Value) <= Resolution);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    if (Size < 2) return 0;
    static const std::array<std::string, 4> Kinds = {"LAT", "LON", "BRG", "other"};
    const std::string& Kind = Kinds[Data[0] % Kinds.size()];
    const bool Has_Seconds = (Data[0] & 0x10) != 0;
    const auto Decimals = static_cast<std::int16_t>(static_cast<std::int8_t>(Data[1]) % 16);
    const std::string Text(reinterpret_cast<const char*>(Data) + 2, Size - 2);

    const Reading R = Read(Text, Kind, Has_Seconds, Decimals);
    if (Kind == "BRG" && !Has_Seconds && !R.Has_Overflow) Require(R.Value >= 0 && R.Value <= 360);
    Check_Range(R, Kind);
    Check_Canonical_Text(R, Kind, Has_Seconds, Decimals);
    for (const char* const Purpose : {"FORM", "FILE"}) {
        Require(!Format_DM(R.Value, Kind, Purpose, Decimals).empty());
        Require(!Format_DMS(R.Value, Kind, Purpose, Decimals).empty());
        Require(!Format_DMS_Wide(R.Value, Kind, Purpose, Decimals).empty());
    }
    return 0;
}
