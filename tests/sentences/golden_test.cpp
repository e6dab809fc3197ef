#include "fake_clock.hpp"
#include "golden_rows.hpp"
#include "golden_sensor_rows.hpp"
#include "sentences/compose_dtm.hpp"
#include "sentences/compose_gga.hpp"
#include "sentences/compose_gll.hpp"
#include "sentences/compose_gns.hpp"
#include "sentences/compose_gsa.hpp"
#include "sentences/compose_gst.hpp"
#include "sentences/compose_gsv.hpp"
#include "sentences/compose_rmc.hpp"
#include "sentences/compose_vtg.hpp"
#include "sentences/compose_zda.hpp"
#include "sentences/number_pattern.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>

using namespace brinewright;

namespace {

// The inputs that more than one kind of sentence has.
struct Timed {
    Fake_Clock Clock{0};
    UTC_State UTC;
    Sentence_Time Time{Clock, UTC};
    std::int16_t Decimals_Time = 0;
    std::int16_t Instance = 0;

    explicit Timed(Golden_Row& Row) {
        Row.Read("Clock", Clock.Now_us);
        Visit_State(UTC, [&](const char* Name, auto& Value) { Row.Read(Name, Value); });
        Row.Read("Decimals_Time", Decimals_Time);
        Row.Read("Instance", Instance);
    }
};

bool Read_No_Checksum(Golden_Row& Row) {
    bool No_Checksum = false;
    Row.Read("No_Checksum", No_Checksum);
    return No_Checksum;
}

template <class Record_Type, class Composer>
std::string Compose_Position(Golden_Row& Row, Record_Type& Record, Composer Compose) {
    Timed T(Row);
    std::int16_t Decimals_Position = 0;
    Row.Read("Decimals_Position", Decimals_Position);
    Row.Read("Talker", Record.Talker);
    Row.Read("Lat", Record.Lat);
    Row.Read("Lon", Record.Lon);
    return Compose(T.Time, Record, Decimals_Position, T.Decimals_Time, T.Instance, Read_No_Checksum(Row));
}

std::string GGA(Golden_Row& Row) {
    GGA_Record R;
    Row.Read("Quality", R.Quality);
    Row.Read("Sats", R.Sats);
    Row.Read("HDOP", R.HDOP);
    Row.Read("Alt", R.Alt);
    Row.Read("Geoid_Sep", R.Geoid_Sep);
    Row.Read("Age", R.Age);
    Row.Read("Station_ID", R.Station_ID);
    return Compose_Position(Row, R, Compose_GGA);
}

std::string GLL(Golden_Row& Row) {
    GLL_Record R;
    Row.Read("Status", R.Status);
    Row.Read("Mode", R.Mode);
    return Compose_Position(Row, R, Compose_GLL);
}

std::string RMC(Golden_Row& Row) {
    RMC_Record R;
    Row.Read("Status", R.Status);
    Row.Read("SOG", R.SOG);
    Row.Read("COG", R.COG);
    Row.Read("Mag_Var", R.Mag_Var);
    Row.Read("Mag_Dir", R.Mag_Dir);
    Row.Read("Mode", R.Mode);
    Row.Read("Nav_Status", R.Nav_Status);
    return Compose_Position(Row, R, Compose_RMC);
}

std::string GNS(Golden_Row& Row) {
    GNS_Record R;
    Row.Read("Mode", R.Mode);
    Row.Read("Sats", R.Sats);
    Row.Read("HDOP", R.HDOP);
    Row.Read("Alt", R.Alt);
    Row.Read("Geoid_Sep", R.Geoid_Sep);
    Row.Read("Age", R.Age);
    Row.Read("Station_ID", R.Station_ID);
    Row.Read("Status", R.Status);
    return Compose_Position(Row, R, Compose_GNS);
}

std::string VTG(Golden_Row& Row) {
    VTG_Record R;
    Row.Read("Talker", R.Talker);
    Row.Read("COG_True", R.COG_True);
    Row.Read("COG_Magnetic", R.COG_Magnetic);
    Row.Read("SOG_Knots", R.SOG_Knots);
    Row.Read("SOG_Kmh", R.SOG_Kmh);
    Row.Read("Mode", R.Mode);
    return Compose_VTG(R, Read_No_Checksum(Row));
}

std::string ZDA(Golden_Row& Row) {
    Timed T(Row);
    ZDA_Record R;
    Row.Read("Talker", R.Talker);
    return Compose_ZDA(T.Time, R, T.Decimals_Time, T.Instance, Read_No_Checksum(Row));
}

std::string DTM(Golden_Row& Row) {
    DTM_Record R;
    Row.Read("Talker", R.Talker);
    Row.Read("Local_Datum", R.Local_Datum);
    Row.Read("Sub_Division", R.Sub_Division);
    Row.Read("Lat_Offset", R.Lat_Offset);
    Row.Read("Lat_Dir", R.Lat_Dir);
    Row.Read("Lon_Offset", R.Lon_Offset);
    Row.Read("Lon_Dir", R.Lon_Dir);
    Row.Read("Alt_Offset", R.Alt_Offset);
    Row.Read("Ref_Datum", R.Ref_Datum);
    return Compose_DTM(R, Read_No_Checksum(Row));
}

std::string GSA(Golden_Row& Row) {
    GSA_Record R;
    Row.Read("Talker", R.Talker);
    Row.Read("Mode", R.Mode);
    Row.Read("Fix", R.Fix);
    Row.Read("PRN", R.PRN);
    Row.Read("PDOP", R.PDOP);
    Row.Read("HDOP", R.HDOP);
    Row.Read("VDOP", R.VDOP);
    return Compose_GSA(R, Read_No_Checksum(Row));
}

std::string GSV(Golden_Row& Row) {
    GSV_Record R;
    Row.Read("Talker", R.Talker);
    Row.Read("Total", R.Total);
    Row.Read("Number", R.Number);
    Row.Read("In_View", R.In_View);
    Row.Read("PRN", R.PRN);
    Row.Read("Elevation", R.Elevation);
    Row.Read("Azimuth", R.Azimuth);
    Row.Read("SNR", R.SNR);
    return Compose_GSV(R, Read_No_Checksum(Row));
}

std::string GST(Golden_Row& Row) {
    Timed T(Row);
    GST_Record R;
    Row.Read("Talker", R.Talker);
    Row.Read("RMS", R.RMS);
    Row.Read("Semi_Major", R.Semi_Major);
    Row.Read("Semi_Minor", R.Semi_Minor);
    Row.Read("Orientation", R.Orientation);
    Row.Read("Sd_Lat", R.Sd_Lat);
    Row.Read("Sd_Lon", R.Sd_Lon);
    Row.Read("Sd_Alt", R.Sd_Alt);
    return Compose_GST(T.Time, R, T.Decimals_Time, T.Instance, Read_No_Checksum(Row));
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

std::map<std::string, Golden_Reader> All_Readers() {
    std::map<std::string, Golden_Reader> Readers = {
        {"dtm", DTM}, {"gga", GGA}, {"gll", GLL}, {"gns", GNS}, {"gsa", GSA},         {"gst", GST},
        {"gsv", GSV}, {"rmc", RMC}, {"vtg", VTG}, {"zda", ZDA}, {"patterns", Pattern}};
    Readers.merge(Sensor_Readers());
    return Readers;
}

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
    for (const auto& [Stem, Compose] : All_Readers()) {
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
    const auto Readers = All_Readers();
    for (const auto& Entry : std::filesystem::directory_iterator(Golden_Folder)) {
        const bool Is_Rows = Entry.path().extension() == ".txt";
        EXPECT_TRUE(!Is_Rows || Readers.contains(Entry.path().stem().string())) << Entry.path();
    }
}

} // namespace
