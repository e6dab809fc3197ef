#include "platform_linux/serial_line_filter.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using namespace brinewright;

namespace {

// Items as one text: data as it stands, events as <number>.
std::string Shown(const std::vector<Line_Item>& Items) {
    std::string Text;
    for (const Line_Item& Item : Items) {
        if (Item.Event == Comm_Event::Receive) {
            Text += Item.Data;
        } else {
            Text.append("<").append(std::to_string(static_cast<int>(Item.Event))).append(">");
        }
    }
    return Text;
}

struct Filter_Case {
    const char* What;
    std::string Bytes;
    bool Parity_Checked;
    Line_Error_Counts Counted;
    std::string Expected;
};

const Filter_Case Filter_Cases[] = {
    {"plain", "$GPGGA\r\n", false, {}, "$GPGGA\r\n"},
    {"a byte 377", "a\377\377b", false, {}, "a\377b"},
    {"a break between data", std::string("ab\377\0\0cd", 7), false, {}, "ab<1001>cd"},
    {"damaged, no parity bit: framing", std::string("a\377\0xb", 5), false, {}, "a<1004>b"},
    {"damaged, parity bit, no counters: parity", std::string("a\377\0xb", 5), true, {}, "a<1009>b"},
    {"the driver counted framing", std::string("\377\0x", 3), true, {0, 1, 0, 0, 0}, "<1004>"},
    {"the driver counted parity", std::string("\377\0x", 3), true, {0, 0, 1, 0, 0}, "<1009>"},
    {"a damaged 0 is no break", std::string("\377\0\0", 3), true, {0, 0, 1, 0, 0}, "<1009>"},
    {"a break and a damaged 0", std::string("\377\0\0\377\0\0", 6), false, {1, 1, 0, 0, 0}, "<1001><1004>"},
    {"a damaged 377", std::string("\377\0\377z", 4), false, {}, "<1004>z"},
    {"overruns have no mark", "abc", false, {0, 0, 0, 3, 1}, "abc<1006><1008>"},
    {"nothing but an overrun", "", false, {0, 0, 0, 1, 0}, "<1006>"},
    {"377 before an ordinary byte", "\377q", false, {}, "\377q"},
    {"an unfinished mark", std::string("a\377\0", 3), false, {}, "a"},
};

} // namespace

TEST(Serial_Filter, Marks_and_counters_become_data_and_events_however_the_bytes_are_cut) {
    for (const Filter_Case& Each : Filter_Cases) {
        for (std::size_t Piece = 1; Piece <= std::max<std::size_t>(Each.Bytes.size(), 1); ++Piece) {
            Serial_Line_Filter Filter;
            Filter.Parity_Checked = Each.Parity_Checked;
            std::string Result;
            // Overruns are told with the chunk in which they were counted: with the last one here.
            Line_Error_Counts First = Each.Counted, Last;
            std::swap(First.Overrun, Last.Overrun);
            std::swap(First.Buffer_Overrun, Last.Buffer_Overrun);
            Result += Shown(Filter_Line(Filter, {}, First));
            for (std::size_t At = 0; At < Each.Bytes.size(); At += Piece) {
                Result += Shown(Filter_Line(Filter, std::string_view(Each.Bytes).substr(At, Piece), {}));
            }
            Result += Shown(Filter_Line(Filter, {}, Last));
            EXPECT_EQ(Result, Each.Expected) << Each.What << ", pieces of " << Piece;
        }
    }
}

TEST(Serial_Filter, Counters_wrap_around) {
    const Line_Error_Counts Before{0xFFFFFFFF, 5, 0xFFFFFFFE, 0, 7}, Now{1, 5, 0xFFFFFFFF, 3, 7};
    const Line_Error_Counts New = Counted_Since(Now, Before);
    EXPECT_EQ(New.Break, 2u);
    EXPECT_EQ(New.Framing, 0u);
    EXPECT_EQ(New.Parity, 1u);
    EXPECT_EQ(New.Overrun, 3u);
    EXPECT_EQ(New.Buffer_Overrun, 0u);
}
