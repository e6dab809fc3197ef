#include "shell/transmit/record_format.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brinewright {
namespace {

constexpr std::int64_t Start_us = 1'767'225'600'000'000; // 2026-01-01 00:00:00

std::string Line(std::int64_t Local_us, int Port, const std::string& Text) {
    std::string Out;
    Record_Writer Writer;
    Writer.Append(Out, Local_us, Port, Text);
    return Out;
}

TEST(Record_Format, Lines_As_Described) {
    EXPECT_EQ(Line(Start_us + 150'000, 17, "$GPGGA,1*5A\r\n"),
              "2026-01-01T00:00:00.150000 17 $GPGGA,1*5A\\r\\n\n");
    EXPECT_EQ(Line(Start_us + 86'399'000'007, 1, std::string("UdPbC\0\\ \xB0\x7F\t", 11)),
              "2026-01-01T23:59:59.000007 1 UdPbC\\x00\\\\ \\xB0\\x7F\\x09\n");
    EXPECT_EQ(Line(-1, 18, ""), "1969-12-31T23:59:59.999999 18 \n");
}

TEST(Record_Format, Whatever_Is_Written_Reads_Back) {
    std::string Every_Byte;
    for (int Code = 0; Code < 256; ++Code) Every_Byte += static_cast<char>(Code);
    std::string Out;
    Record_Writer Writer; // one writer over seconds and days
    struct Entry {
        std::int64_t Local_us;
        int Port;
        std::string Text;
    };
    const std::vector<Entry> Entries{{Start_us, 28, Every_Byte},     {Start_us + 999'999, 1, "\\x41\\"},
                                     {Start_us + 1'000'000, 16, ""}, {Start_us - 1, 0, " two  blanks "},
                                     {-1'500'000, 17, "\\\\n"},      {0, 18, Every_Byte + Every_Byte}};
    for (const Entry& E : Entries) Writer.Append(Out, E.Local_us, E.Port, E.Text);
    std::size_t Place = 0;
    for (const Entry& E : Entries) {
        const std::size_t End = Out.find('\n', Place);
        const auto Read = Parse_Record(std::string_view(Out).substr(Place, End - Place));
        Place = End + 1;
        ASSERT_TRUE(Read);
        EXPECT_EQ(Read->Local_us, E.Local_us);
        EXPECT_EQ(Read->Port, E.Port);
        EXPECT_EQ(Read->Text, E.Text);
    }
    EXPECT_EQ(Place, Out.size());
}

TEST(Record_Format, Other_Lines_Are_Refused) {
    const std::string Good = "2026-01-01T00:00:00.150000 17 A\\x41";
    ASSERT_EQ(Parse_Record(Good)->Text, "AA");
    // Cut anywhere up to the text, and within the escape, it is no record.
    for (std::size_t Length = 0; Length < Good.size(); ++Length) {
        const bool Whole = Length == 30 || Length == 31; // the text empty or "A"
        EXPECT_EQ(Parse_Record(Good.substr(0, Length)).has_value(), Whole) << Length;
    }
    for (const char* Bad : {"2026-02-29T00:00:00.000000 1 A", "2026-01-01T24:00:00.000000 1 A",
                            "2026-01-01T00:60:00.000000 1 A", "2026-01-01T00:00:60.000000 1 A",
                            "2026-13-01T00:00:00.000000 1 A", "2026-01-01 00:00:00.000000 1 A",
                            "2026-01-01T00:00:00.00000x 1 A", "2026-01-01T00:00:00.000000 x A",
                            "2026-01-01T00:00:00.000000  1 A", "2026-01-01T00:00:00.000000 1 \\q",
                            "2026-01-01T00:00:00.000000 1 \\xG0", "2026-01-01T00:00:00.000000 99999999999 A"})
        EXPECT_FALSE(Parse_Record(Bad)) << Bad;
}

} // namespace
} // namespace brinewright
