#include "shell/transmit/record_format.hpp"

#include "platform/clock.hpp"
#include "sentences/sentence_clock.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>

namespace brinewright {

namespace {

constexpr char Hex_Digits[] = "0123456789ABCDEF";

bool Is_Plain(char C) { return C >= ' ' && C <= '~' && C != '\\'; }

void Append_Escaped(std::string& Out, char C) {
    Out += '\\';
    switch (C) {
    case '\\': Out += '\\'; break;
    case '\r': Out += 'r'; break;
    case '\n': Out += 'n'; break;
    default: {
        const auto Code = static_cast<unsigned char>(C);
        Out += 'x';
        Out += Hex_Digits[Code >> 4];
        Out += Hex_Digits[Code & 15];
    }
    }
}

// Digits of a fixed place in the line; nothing when one of them is no digit.
std::optional<int> Digits(std::string_view Line, std::size_t Place, std::size_t Count) {
    int Value = 0;
    const char* First = Line.data() + Place;
    if (!std::all_of(First, First + Count, [](char C) { return C >= '0' && C <= '9'; })) return std::nullopt;
    std::from_chars(First, First + Count, Value);
    return Value;
}

std::optional<std::int64_t> Parse_Time(std::string_view Line) {
    constexpr std::string_view Shape = "0000-00-00T00:00:00.000000";
    if (Line.size() < Shape.size()) return std::nullopt;
    for (std::size_t I = 0; I < Shape.size(); ++I)
        if (Shape[I] != '0' && Line[I] != Shape[I]) return std::nullopt;
    constexpr std::array<std::pair<std::size_t, std::size_t>, 7> Places{
        {{0, 4}, {5, 2}, {8, 2}, {11, 2}, {14, 2}, {17, 2}, {20, 6}}};
    std::array<int, 7> Values{};
    for (std::size_t I = 0; I < Places.size(); ++I) {
        const auto Value = Digits(Line, Places[I].first, Places[I].second);
        if (!Value) return std::nullopt;
        Values[I] = *Value;
    }
    using namespace std::chrono;
    const year_month_day Date{year(Values[0]), month(static_cast<unsigned>(Values[1])),
                              day(static_cast<unsigned>(Values[2]))};
    if (!Date.ok() || Values[3] > 23 || Values[4] > 59 || Values[5] > 59) return std::nullopt;
    const std::int64_t Days = sys_days(Date).time_since_epoch().count();
    return Days * us_Per_Day + (Values[3] * 3600 + Values[4] * 60 + Values[5]) * us_Per_Second + Values[6];
}

int Hex_Value(char C) {
    const auto Place = std::string_view(Hex_Digits, 16).find(C);
    return Place == std::string_view::npos ? -1 : static_cast<int>(Place);
}

std::optional<std::string> Unescape(std::string_view Text) {
    std::string Out;
    for (std::size_t I = 0; I < Text.size(); ++I) {
        if (Text[I] != '\\') {
            Out += Text[I];
            continue;
        }
        if (++I == Text.size()) return std::nullopt;
        switch (Text[I]) {
        case '\\': Out += '\\'; break;
        case 'r': Out += '\r'; break;
        case 'n': Out += '\n'; break;
        case 'x': {
            if (I + 2 >= Text.size()) return std::nullopt;
            const int High = Hex_Value(Text[I + 1]);
            const int Low = Hex_Value(Text[I + 2]);
            if (High < 0 || Low < 0) return std::nullopt;
            Out += static_cast<char>(High * 16 + Low);
            I += 2;
            break;
        }
        default: return std::nullopt;
        }
    }
    return Out;
}

} // namespace

void Record_Writer::Append(std::string& Out, std::int64_t Local_us, int Port, std::string_view Text) {
    const std::int64_t Fraction_us = (Local_us % us_Per_Second + us_Per_Second) % us_Per_Second;
    const std::int64_t This_Second = (Local_us - Fraction_us) / us_Per_Second;
    if (This_Second != Second || Second_Text.empty()) {
        Second = This_Second;
        const Calendar_Time Now = Split_Time(Local_us);
        Second_Text = Format_Dot(Now, "yyyy-mm-dd") + "T" + Format_Dot(Now, "hh:nn:ss") + ".";
    }
    Out += Second_Text;
    char Fraction[6];
    for (std::int64_t Rest = Fraction_us, I = 5; I >= 0; --I, Rest /= 10)
        Fraction[I] = static_cast<char>('0' + Rest % 10);
    Out.append(Fraction, sizeof Fraction);
    Out += ' ';
    char Number[12];
    Out.append(Number, std::to_chars(Number, Number + sizeof Number, Port).ptr);
    Out += ' ';
    for (auto Rest = Text.begin(); Rest != Text.end();) {
        const auto Special = std::find_if_not(Rest, Text.end(), Is_Plain);
        Out.append(Rest, Special);
        if (Special == Text.end()) break;
        Append_Escaped(Out, *Special);
        Rest = Special + 1;
    }
    Out += '\n';
}

std::optional<Recorded_Sentence> Parse_Record(std::string_view Line) {
    constexpr std::size_t Time_Length = 26;
    const auto Local_us = Parse_Time(Line);
    if (!Local_us || Line.size() <= Time_Length || Line[Time_Length] != ' ') return std::nullopt;
    Line.remove_prefix(Time_Length + 1);
    Recorded_Sentence Record{*Local_us, 0, {}};
    const auto [End, Failure] = std::from_chars(Line.data(), Line.data() + Line.size(), Record.Port);
    if (Failure != std::errc() || End == Line.data() + Line.size() || *End != ' ') return std::nullopt;
    auto Text = Unescape(Line.substr(static_cast<std::size_t>(End - Line.data()) + 1));
    if (!Text) return std::nullopt;
    Record.Text = std::move(*Text);
    return Record;
}

} // namespace brinewright
