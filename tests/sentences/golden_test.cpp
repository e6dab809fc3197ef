#include "fake_clock.hpp"
#include "golden_rows.hpp"
#include "sentence_records.hpp"
#include "sentences/compose_vlw.hpp"
#include "sentences/number_pattern.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>

using namespace brinewright;

namespace {

template <class T>
T Take_Value(Golden_Row& Row, const char* Key) {
    T Value{};
    Row.Read(Key, Value);
    return Value;
}

bool No_Checksum(Golden_Row& Row) { return Take_Value<bool>(Row, "No_Checksum"); }
std::int16_t Number(Golden_Row& Row, const char* Key) { return Take_Value<std::int16_t>(Row, Key); }

// The fields that the row tells; the others keep their defaults.
template <class Record>
Record Read_Record(Golden_Row& Row) {
    Record R;
    Visit_Record(R, [&](const char* Name, auto& Value) {
        if (Row.Inputs.contains(Name)) Row.Read(Name, Value);
    });
    return R;
}

struct Timed {
    Fake_Clock Clock{0};
    UTC_State UTC;
    Sentence_Time Time{Clock, UTC};

    explicit Timed(Golden_Row& Row) : UTC(Read_Record<UTC_State>(Row)) { Row.Read("Clock", Clock.Now_us); }
};

// One for each kind of composers.
using Places = std::int16_t;
template <class R>
std::string Run(Golden_Row& Row, std::string (*Compose)(const R&, bool)) {
    return Compose(Read_Record<R>(Row), No_Checksum(Row));
}
template <class R>
std::string Run(Golden_Row& Row, std::string (*Compose)(const R&, Places, bool)) {
    return Compose(Read_Record<R>(Row), Number(Row, "Decimals"), No_Checksum(Row));
}
template <class R>
std::string Run(Golden_Row& Row,
                std::string (*Compose)(const Sentence_Time&, const R&, Places, std::int16_t, bool)) {
    const Timed T(Row);
    return Compose(T.Time, Read_Record<R>(Row), Number(Row, "Decimals_Time"), Number(Row, "Instance"),
                   No_Checksum(Row));
}
template <class R>
std::string Run(Golden_Row& Row,
                std::string (*Compose)(const Sentence_Time&, const R&, Places, Places, std::int16_t, bool)) {
    const Timed T(Row);
    return Compose(T.Time, Read_Record<R>(Row), Number(Row, "Decimals_Position"),
                   Number(Row, "Decimals_Time"), Number(Row, "Instance"), No_Checksum(Row));
}
template <auto Compose>
std::string Composed(Golden_Row& Row) {
    return Run(Row, Compose);
}

std::string VLW(Golden_Row& Row) {
    VLW_Record R;
    Row.Take("Log"); // both count alike
    Row.Read("Talker", R.Talker);
    float Counts[4];
    constexpr const char* Keys[] = {"Log_Total_Water", "Log_Trip_Water", "Log_Total_Ground",
                                    "Log_Trip_Ground"};
    for (int I = 0; I < 4; ++I) Row.Read(Keys[I], Counts[I]);
    const Log_Speeds Speeds{Take_Value<float>(Row, "Water_kn"), Take_Value<float>(Row, "Ground_kn")};
    return Compose_VLW({Number(Row, "Log_VLW_Seconds"), Counts[0], Counts[1], Counts[2], Counts[3]}, Speeds,
                       R, No_Checksum(Row));
}

template <class Number>
std::string Format_Value(Golden_Row& Row) {
    Number Value{};
    Row.Read("Value", Value);
    return Format_Dot(Value, Row.Take("Picture"));
}

std::string Pattern(Golden_Row& Row) {
    const std::string Kind = Row.Take("Kind");
    if (Kind == "Float") return Format_Value<float>(Row);
    return Kind == "float" ? Format_Value<double>(Row) : Format_Value<std::int32_t>(Row);
}

const std::map<std::string, Golden_Reader> Readers = {
    {"att", Composed<Compose_ATT>}, {"dbt", Composed<Compose_DBT>},     {"dpt", Composed<Compose_DPT>},
    {"dtm", Composed<Compose_DTM>}, {"gga", Composed<Compose_GGA>},     {"gll", Composed<Compose_GLL>},
    {"gns", Composed<Compose_GNS>}, {"gsa", Composed<Compose_GSA>},     {"gst", Composed<Compose_GST>},
    {"gsv", Composed<Compose_GSV>}, {"hdt", Composed<Compose_HDT>},     {"mwd", Composed<Compose_MWD>},
    {"mwv", Composed<Compose_MWV>}, {"prdid", Composed<Compose_PRDID>}, {"rmc", Composed<Compose_RMC>},
    {"rot", Composed<Compose_ROT>}, {"ths", Composed<Compose_THS>},     {"vbw", Composed<Compose_VBW>},
    {"vdr", Composed<Compose_VDR>}, {"vhw", Composed<Compose_VHW>},     {"vlw", VLW},
    {"vtg", Composed<Compose_VTG>}, {"zda", Composed<Compose_ZDA>},     {"patterns", Pattern}};

// Nothing but printable characters, and a checksum that a listener accepts.
void Check_Wire_Form(const std::string& Sentence) {
    EXPECT_TRUE(std::all_of(Sentence.begin(), Sentence.end(), [](char C) { return C >= ' ' && C <= '~'; }));
    const std::size_t Star = Sentence.find('*');
    if (Star == std::string::npos) return;
    unsigned Told = 0;
    const char* const End = Sentence.data() + Sentence.size();
    EXPECT_EQ(std::from_chars(Sentence.data() + Star + 1, End, Told, 16).ptr, End);
    EXPECT_EQ(Sentence.size(), Star + 3);
    for (std::size_t I = 1; I < Star; ++I) Told ^= static_cast<unsigned char>(Sentence[I]);
    EXPECT_EQ(Told, 0u) << Sentence;
}

TEST(Golden, Every_Row) {
    for (const auto& [Stem, Compose] : Readers) {
        const auto Rows = Load_Golden_Rows(Golden_Folder / (Stem + ".txt"));
        EXPECT_GE(Rows.size(), 4u) << Stem;
        for (Golden_Row Row : Rows) {
            const std::string Text = Compose(Row);
            EXPECT_EQ(Text, Row.Expected) << Row.Name;
            EXPECT_TRUE(Row.Inputs.empty()) << Row.Name << " has an input that nothing reads";
            if (Stem != "patterns") Check_Wire_Form(Text);
        }
    }
}

TEST(Golden, Every_File_Has_A_Reader) {
    for (const auto& Entry : std::filesystem::directory_iterator(Golden_Folder)) {
        const bool Is_Rows = Entry.path().extension() == ".txt";
        EXPECT_TRUE(!Is_Rows || Readers.contains(Entry.path().stem().string())) << Entry.path();
    }
}

} // namespace
