#include "golden_rows.hpp"
#include "sentences/checksum_verdict.hpp"
#include "sentences/field_descriptions.hpp"
#include "sentences/take_apart.hpp"
#include "sentences/wire_text.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace brinewright;

namespace {

const Field_Value* Find(const std::vector<Field_Value>& Parts, const std::string& Name) {
    const auto Found =
        std::find_if(Parts.begin(), Parts.end(), [&](const Field_Value& P) { return P.Name == Name; });
    return Found == Parts.end() ? nullptr : &*Found;
}

std::string Value_Of(const std::string& Text, const std::string& Name) {
    const auto Parts = Take_Apart(Text);
    const Field_Value* Part = Find(Parts, Name);
    return Part ? Part->Value : "(none)";
}

} // namespace

TEST(Field_Descriptions, Every_Composer_Has_One_With_As_Many_Fields_As_It_Writes) {
    std::size_t Composers = 0;
    for (const auto& Entry : std::filesystem::directory_iterator(BRINEWRIGHT_SOURCE_DIR "/sentences")) {
        const std::string Stem = Entry.path().stem().string();
        if (!Stem.starts_with("compose_") || Entry.path().extension() != ".hpp") continue;
        ++Composers;
        const auto Rows = Load_Golden_Rows(Golden_Folder / (Stem.substr(8) + ".txt"));
        ASSERT_FALSE(Rows.empty()) << Stem << " has no golden rows";
        const std::string Sentence = Rows[0].Expected;
        EXPECT_EQ(Verdict_Of(Sentence), Checksum_Verdict::Ok) << Sentence;
        const auto Address = Address_Of(Sentence);
        ASSERT_TRUE(Address) << Sentence;
        const Sentence_Description* D = Find_Description(std::string(Address->Type));
        ASSERT_NE(D, nullptr) << Sentence;
        EXPECT_EQ(static_cast<std::size_t>(std::count(Sentence.begin(), Sentence.end(), ',')),
                  D->Field_Count())
            << Sentence;
        // No field of it needs a number for a name, none is without a name.
        for (const Field_Value& Part : Take_Apart(Sentence))
            EXPECT_FALSE(Part.Name.empty() || Part.Name.starts_with("Field ")) << Sentence;
    }
    EXPECT_EQ(Sentence_Descriptions().size(), Composers);
    EXPECT_EQ(Find_Description("XXX"), nullptr);
}

TEST(Take_Apart, Names_The_Values_In_Their_Places) {
    const std::string GGA = "$GPGGA,101500,6235.5000,N,00610.0000,E,1,8,1.4,0.0,M,0.0,M,5.0,0100*60\r\n";
    const std::vector<Field_Value> Parts = Take_Apart(GGA);
    ASSERT_EQ(Parts.size(), 2u + 14u + 1u);
    EXPECT_EQ(Parts[0], (Field_Value{"Talker", "GP", ""}));
    EXPECT_EQ(Parts[1], (Field_Value{"Type", "GGA", "fix data"}));
    EXPECT_EQ(Parts[2], (Field_Value{"Time", "101500", "hhmmss.ss"}));
    EXPECT_EQ(Value_Of(GGA, "Longitude"), "00610.0000");
    EXPECT_EQ(Value_Of(GGA, "Horizontal dilution of precision"), "1.4");
    EXPECT_EQ(Value_Of(GGA, "Age of differential corrections"), "5.0");
    EXPECT_EQ(Parts[15], (Field_Value{"Differential reference station", "0100", ""}));

    const std::string GSV = "$GPGSV,1,1,02,3,45,090,40,7,10,270,35,,,,,,,,*00";
    EXPECT_EQ(Value_Of(GSV, "Satellite 1"), "3");
    EXPECT_EQ(Value_Of(GSV, "SNR 1"), "40");
    EXPECT_EQ(Value_Of(GSV, "Azimuth 2"), "270");
    EXPECT_EQ(Value_Of(GSV, "SNR 4"), "");
    const std::string GSA = "$GPGSA,A,3,1,2,,,,,,,,,,12,1.1,2.2,3.3";
    EXPECT_EQ(Value_Of(GSA, "Satellite 12"), "12");
    EXPECT_EQ(Value_Of(GSA, "Position dilution of precision"), "1.1"); // behind the group
    EXPECT_EQ(Value_Of(GSA, "Vertical dilution of precision"), "3.3");
}

TEST(Take_Apart, Sentences_Of_Makers_Have_No_Talker_In_The_Address) {
    // 67 and 66 are the exclusive or of what stands between "$" and "*".
    const std::vector<Field_Value> Expected{{"Type", "PFEC", "heading and attitude"},
                                            {"Talker and type", "GPatt", "--att"},
                                            {"Heading", "123.4", "deg true"},
                                            {"Pitch", "002.5", "deg"},
                                            {"Roll", "-001.0", "deg"},
                                            {"Checksum", "67", "ok"}};
    EXPECT_EQ(Take_Apart("$PFEC,GPatt,123.4,002.5,-001.0*67\r\n"), Expected);
    const auto PRDID = Take_Apart("$PRDID,002.5,-001.0,123.4*66");
    ASSERT_EQ(PRDID.size(), 5u);
    EXPECT_EQ(PRDID[0], (Field_Value{"Type", "PRDID", "attitude and heading"}));
    EXPECT_EQ(PRDID[3], (Field_Value{"Heading", "123.4", "deg true"}));
    // The comma behind the last unit of VLW is a field of its own, and named.
    EXPECT_EQ(Value_Of("$VWVLW,1.0,N,2.0,N,3.0,N,4.0,N,*00", "Trip over ground"), "4.0");
    EXPECT_EQ(Value_Of("$VWVLW,1.0,N,2.0,N,3.0,N,4.0,N,*00", "Empty"), "");
}

TEST(Take_Apart, Shows_Header_And_Tags_With_Their_Meaning) {
    using namespace std::string_literals;
    // 13 is the exclusive or of "n:12,g:1-3-7" and 48 that of "GPZDA", both in hexadecimal digits.
    const std::string Text = "UdPbC\0\\n:12,g:1-3-7*13\\$GPZDA*48\r\n"s;
    const std::vector<Field_Value> Expected{{"UdPbC header", "UdPbC", ""},
                                            {"n: line count", "12", "1 to 999"},
                                            {"g: group", "1-3-7", "line-lines-group"},
                                            {"Checksum of the tags", "13", "ok"},
                                            {"Talker", "GP", ""},
                                            {"Type", "ZDA", "time and date"},
                                            {"Checksum", "48", "ok"}};
    const auto Found = Take_Apart(Text);
    ASSERT_EQ(Found.size(), Expected.size());
    for (std::size_t I = 0; I < Found.size(); ++I) {
        EXPECT_EQ(Found[I].Name, Expected[I].Name);
        EXPECT_EQ(Found[I].Value, Expected[I].Value);
        EXPECT_EQ(Found[I].Unit, Expected[I].Unit);
    }
    const std::string Tags = "\\s:A,d:B,d:C,c:1767225600,t:$5!,x:?*00\\$GPVTG,1";
    EXPECT_EQ(Value_Of(Tags, "s: source"), "A");
    EXPECT_EQ(Value_Of(Tags, "c: time"), "1767225600");
    EXPECT_EQ(Value_Of(Tags, "t: text"), "$5!");
    EXPECT_EQ(Value_Of(Tags, "Unknown tag"), "x:?");
    EXPECT_EQ(Value_Of(Tags, "Course over ground"), "1");
    const auto No_Tags = Take_Apart("*XX\\$GPVTG"); // a block of no tags
    ASSERT_EQ(No_Tags.size(), 3u);
    EXPECT_EQ(No_Tags[0].Name, "Checksum of the tags");
}

TEST(Take_Apart, Makes_The_Best_Of_Mutilated_Sentences) {
    // Two merged ones, each in its turn.
    const auto Merged = Take_Apart("$GPGLL,1,N*00$GPVTG,2.5,T");
    EXPECT_EQ(std::count_if(Merged.begin(), Merged.end(), [](const auto& P) { return P.Name == "Talker"; }),
              2);
    EXPECT_EQ(Find(Merged, "Course over ground")->Value, "2.5");
    // The tail of one and the head of the next, as splitting makes them.
    const auto Split = Take_Apart("0,E,1*5A$GPGGA,1015\r\n");
    EXPECT_EQ(Split[0], (Field_Value{"Unreadable", "0,E,1*5A", ""}));
    EXPECT_EQ(Find(Split, "Time")->Value, "1015");
    // A wrong checksum is told with the right one: "G" is 47.
    EXPECT_EQ(Take_Apart("$G*4F").back(), (Field_Value{"Checksum", "4F", "wrong: 47 is right"}));
    // More fields than there are, a type that nobody knows, a cut address.
    EXPECT_EQ(Value_Of("$GPDTM,1,2,3,4,5,6,7,8,9", "Field 9"), "9");
    EXPECT_EQ(Value_Of("$PABC,GPatt,123.4", "Field 1"), "GPatt");
    EXPECT_EQ(Value_Of("$GPG", "Unreadable address"), "$GPG");
    EXPECT_EQ(Value_Of("\\s:Brinewr", "s: source"), "Brinewr");
    EXPECT_TRUE(Take_Apart("").empty());
    EXPECT_TRUE(Take_Apart("\r\n").empty());
    EXPECT_EQ(Take_Apart(std::string(100'000, '$')).size(), 500u);
}

TEST(Take_Apart, Takes_Any_Bytes) {
    std::mt19937 Engine(7);
    const std::string Letters = std::string("$!*,\\:\r\n") + '\0' + "UdPbC GPGSV\xFF";
    for (int Round = 0; Round < 20'000; ++Round) {
        std::string Text(Engine() % 40, ' ');
        for (char& C : Text) C = Letters[Engine() % Letters.size()];
        const auto Parts = Take_Apart(Text);
        EXPECT_LE(Parts.size(), 500u);
        for (const Field_Value& Part : Parts)
            EXPECT_EQ(Text.substr(Part.First, Part.Value.size()), Part.Value);
        Lines_With_Verdict(Text);
        Address_Of(Bare_Sentence(Text));
    }
}

TEST(Checksum_Verdict, Of_Whole_And_Mutilated_Texts) {
    using namespace std::string_literals;
    using enum Checksum_Verdict;
    const struct {
        std::string Text;
        Checksum_Verdict Verdict;
    } Cases[] = {
        {"$GPZDA*48\r\n", Ok},
        {"$GPZDA*48", Ok},
        {"$GPZDA*4f", Wrong},
        {"$G\x03*44", Ok}, // 47 and 03
        {"$G+*6c", Ok},    // small digits are as good
        {"$GPZDA\r\n", None},
        {"", None},
        {"\r\n", None},
        {"$GPZDA*", Wrong},
        {"$GPZDA*5", Wrong},
        {"$GPZDA*48 ", Wrong},
        {"$GPZDA*5G", Wrong},
        {"*00", Wrong},
        {"$GPZDA*48$GPZDA*48\r\n", Wrong}, // merged: no listener takes it for a sentence
        {"UdPbC\0\\n:12,g:1-3-7*13\\$GPZDA*48\r\n"s, Ok},
        {"UdPbC \\n:12,g:1-3-7*13\\$GPZDA*48", Ok}, // as a monitor shows it
        {"\\n:12,g:1-3-7*12\\$GPZDA*48", Wrong},
        {"\\n:12,g:1-3-7*13\\$GPZDA*55", Wrong},
        {"\\n:12,g:1-3-7*13\\$GPZDA", None},
        {"*XX\\$GPZDA*48", Wrong},
    };
    for (const auto& C : Cases) EXPECT_EQ(Verdict_Of(C.Text), C.Verdict) << C.Text;

    const auto Lines = Lines_With_Verdict("$GPZDA*48\r\n$GPZDA*00\r\n\r\n$GPZ");
    ASSERT_EQ(Lines.size(), 4u);
    EXPECT_EQ(Lines[0].Text, "$GPZDA*48");
    EXPECT_EQ(Lines[0].Verdict, Ok);
    EXPECT_EQ(Lines[1].Verdict, Wrong);
    EXPECT_EQ(Lines[2].Text, "");
    EXPECT_EQ(Lines[3].Text, "$GPZ");
    EXPECT_EQ(Lines[3].Verdict, None);
    EXPECT_TRUE(Lines_With_Verdict("").empty());
}
