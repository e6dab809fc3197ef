#include "golden_sensor_rows.hpp"

#include "sentences/compose_att.hpp"
#include "sentences/compose_dbt.hpp"
#include "sentences/compose_dpt.hpp"
#include "sentences/compose_hdt.hpp"
#include "sentences/compose_mwd.hpp"
#include "sentences/compose_mwv.hpp"
#include "sentences/compose_prdid.hpp"
#include "sentences/compose_rot.hpp"
#include "sentences/compose_ths.hpp"
#include "sentences/compose_vbw.hpp"
#include "sentences/compose_vdr.hpp"
#include "sentences/compose_vhw.hpp"
#include "sentences/compose_vlw.hpp"

#include <string_view>

using namespace brinewright;

namespace {

// Keys are the names of the values, as "Heading, Pitch, Roll".
template <class... Values>
void Read_All(Golden_Row& Row, std::string_view Keys, Values&... Targets) {
    const auto Next_Key = [&Keys] {
        const std::size_t Comma = Keys.find(", ");
        const std::string Key(Keys.substr(0, Comma));
        Keys.remove_prefix(Comma == std::string_view::npos ? Keys.size() : Comma + 2);
        return Key;
    };
    (Row.Read(Next_Key(), Targets), ...);
}

template <class T>
T Take_Value(Golden_Row& Row, const char* Key) {
    T Value{};
    Row.Read(Key, Value);
    return Value;
}

bool No_Checksum(Golden_Row& Row) { return Take_Value<bool>(Row, "No_Checksum"); }
std::int16_t Decimals(Golden_Row& Row) { return Take_Value<std::int16_t>(Row, "Decimals"); }

std::string HDT(Golden_Row& Row) {
    HDT_Record R;
    Read_All(Row, "Talker, Heading", R.Talker, R.Heading);
    return Compose_HDT(R, Decimals(Row), No_Checksum(Row));
}

std::string THS(Golden_Row& Row) {
    THS_Record R;
    Read_All(Row, "Talker, Heading, Mode", R.Talker, R.Heading, R.Mode);
    return Compose_THS(R, Decimals(Row), No_Checksum(Row));
}

std::string ROT(Golden_Row& Row) {
    ROT_Record R;
    Read_All(Row, "Talker, Rate, Status", R.Talker, R.Rate, R.Status);
    return Compose_ROT(R, Decimals(Row), No_Checksum(Row));
}

std::string ATT(Golden_Row& Row) {
    ATT_Record R;
    Read_All(Row, "Talker, Heading, Pitch, Roll", R.Talker, R.Heading, R.Pitch, R.Roll);
    return Compose_ATT(R, No_Checksum(Row));
}

std::string PRDID(Golden_Row& Row) {
    PRDID_Record R;
    Read_All(Row, "Talker, Heading, Pitch, Roll", R.Talker, R.Heading, R.Pitch, R.Roll);
    return Compose_PRDID(R, No_Checksum(Row));
}

std::string VHW(Golden_Row& Row) {
    VHW_Record R;
    Read_All(Row, "Talker, Heading_True, Heading_Magnetic, Speed_Knots, Speed_Kmh", R.Talker, R.Heading_True,
             R.Heading_Magnetic, R.Speed_Knots, R.Speed_Kmh);
    return Compose_VHW(R, No_Checksum(Row));
}

std::string VBW(Golden_Row& Row) {
    VBW_Record R;
    Read_All(Row, "Talker, Water_Long, Water_Trans, Water_Status, Ground_Long, Ground_Trans, Ground_Status",
             R.Talker, R.Water_Long, R.Water_Trans, R.Water_Status, R.Ground_Long, R.Ground_Trans,
             R.Ground_Status);
    Read_All(Row, "Stern_Water, Stern_Water_Status, Stern_Ground, Stern_Ground_Status", R.Stern_Water,
             R.Stern_Water_Status, R.Stern_Ground, R.Stern_Ground_Status);
    return Compose_VBW(R, No_Checksum(Row));
}

std::string VDR(Golden_Row& Row) {
    VDR_Record R;
    Read_All(Row, "Talker, Set_True, Set_Magnetic, Drift", R.Talker, R.Set_True, R.Set_Magnetic, R.Drift);
    return Compose_VDR(R, No_Checksum(Row));
}

std::string VLW(Golden_Row& Row) {
    const auto Log = Take_Value<std::int16_t>(Row, "Log");
    Log_State S;
    VLW_Record R;
    Log_Speeds Speeds;
    Read_All(Row, "Talker, Water_kn, Ground_kn, Log_VLW_Seconds", R.Talker, Speeds.Water_kn, Speeds.Ground_kn,
             S.Log_VLW_Seconds[Log]);
    Read_All(Row, "Log_Total_Water, Log_Total_Ground, Log_Trip_Water, Log_Trip_Ground",
             S.Log_Total_Water[Log], S.Log_Total_Ground[Log], S.Log_Trip_Water[Log], S.Log_Trip_Ground[Log]);
    return Compose_VLW(S, Speeds, R, Log, No_Checksum(Row));
}

std::string DBT(Golden_Row& Row) {
    DBT_Record R;
    Read_All(Row, "Talker, Depth_Feet, Depth_Metres, Depth_Fathoms", R.Talker, R.Depth_Feet, R.Depth_Metres,
             R.Depth_Fathoms);
    return Compose_DBT(R, No_Checksum(Row));
}

std::string DPT(Golden_Row& Row) {
    DPT_Record R;
    Read_All(Row, "Talker, Depth, Offset, Range", R.Talker, R.Depth, R.Offset, R.Range);
    return Compose_DPT(R, No_Checksum(Row));
}

std::string MWV(Golden_Row& Row) {
    MWV_Record R;
    Read_All(Row, "Talker, Angle, Reference, Speed, Speed_Unit, Status", R.Talker, R.Angle, R.Reference,
             R.Speed, R.Speed_Unit, R.Status);
    return Compose_MWV(R, No_Checksum(Row));
}

std::string MWD(Golden_Row& Row) {
    MWD_Record R;
    Read_All(Row, "Talker, Dir_True, Dir_Magnetic, Speed_Knots, Speed_Ms", R.Talker, R.Dir_True,
             R.Dir_Magnetic, R.Speed_Knots, R.Speed_Ms);
    return Compose_MWD(R, No_Checksum(Row));
}

} // namespace

std::map<std::string, Golden_Reader> Sensor_Readers() {
    return {{"att", ATT}, {"dbt", DBT},     {"dpt", DPT}, {"hdt", HDT}, {"mwd", MWD},
            {"mwv", MWV}, {"prdid", PRDID}, {"rot", ROT}, {"ths", THS}, {"vbw", VBW},
            {"vdr", VDR}, {"vhw", VHW},     {"vlw", VLW}};
}
