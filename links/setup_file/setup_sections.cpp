#include "links/setup_file/setup_sections.hpp"
#include "extra/extra_state.hpp"
#include "gnss/gnss_state.hpp"
#include "ownship/autopilot/autopilot_state.hpp"
#include "ownship/navdata_state.hpp"
#include "radar/gullwatch_state.hpp"
#include "radar/radar_state.hpp"
#include "sensors/echosounder/echo_state.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "sensors/log/log_state.hpp"
#include "sensors/wind/wind_state.hpp"
#include "sentences/utc_state.hpp"
#include "shell/state/iec450_state.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/shell_state.hpp"

#include <type_traits>

namespace brinewright {

namespace {

// Below, W is a reader or a writer and S the state to fill or to tell.

template <class Walker, class... Values>
void Fields(Walker& W, Values&... V) {
    (Field(W, V), ...);
}

template <class Walker, class... Values>
void Line(Walker& W, Values&... V) {
    Fields(W, V...);
    End_Line(W);
}

template <class State>
inline constexpr bool Is_Read = !std::is_const_v<State>;

template <class Walker, class State>
void Serial_Port_Lines(Walker& W, State& S) {
    for (int N = 1; N <= 16; ++N) {
        auto& P = S.template Of<Link_State>().Port_Table[N];
        Line(W, P.Present, P.Enabled);
        Line(W, P.BaudRate, P.DataBits, P.Parity, P.StopBits);
    }
}

template <class Walker, class State>
void UDP_Link_Lines(Walker& W, State& S, int First, int Last) {
    for (int N = First; N <= Last; ++N)
        Line(W, S.template Of<Link_State>().Port_Table[N + 17].Present,
             S.template Of<Link_State>().Port_Table[N + 17].Enabled,
             S.template Of<Link_State>().UDP_Port_Number[N - 1]);
}

template <class Walker, class State>
void Sensor_Lines(Walker& W, State& S, int First, int Last) {
    for (int N = First; N <= Last; ++N)
        Line(W, S.template Of<Link_State>().Sensor_Table[N].Name,
             S.template Of<Link_State>().Sensor_Table[N].Port);
}

template <class Walker, class State>
void Open_Form_Lines(Walker& W, State& S) {
    Count_Field(W, S.template Of<Shell_State>().Open_Form_Count,
                S.template Of<Shell_State>().Open_Form_List.Last_Index);
    End_Line(W);
    for (int N = 1; N <= S.template Of<Shell_State>().Open_Form_Count; ++N) {
        auto& E = S.template Of<Shell_State>().Open_Form_List[N];
        Line(W, E.Name, E.Index, E.Top, E.Left, E.Height, E.Width);
    }
}

// Ten targets, however many are live.
template <class Walker, class State, class Target_Line>
void Target_Lines(Walker& W, State& S, Target_Line Fields_Of) {
    for (int N = 1; N <= 10; ++N) Fields_Of(W, S.template Of<Radar_State>().ARPA_Target[N]);
}

template <class Walker, class State>
void Navdata_Lines(Walker& W, State& S) {
    auto& D = S.template Of<Navdata_State>();
    Line(W, D.Nav_Lat, D.Nav_Lon);
    Line(W, D.Nav_SOG, D.Nav_COG);
    Line(W, D.Nav_HDG, D.Nav_Rudder);
    Line(W, S.template Of<Echo_State>().Echo_Depth);
    auto& Wind = S.template Of<Wind_State>();
    Line(W, Wind.Wind_Speed[1], Wind.Wind_Direction[1]);
    Line(W, S.template Of<Shell_State>().Freeze_Active);
}

template <class Walker, class State>
void Current_Navdata_Lines(Walker& W, State& S) {
    Line(W, S.template Of<Shell_State>().Start_With_Last_Navdata);
    if (Is_Read<State> && !S.template Of<Shell_State>().Start_With_Last_Navdata) {
        Simulator_State Thrown_Away;
        Navdata_Lines(W, Thrown_Away);
    } else {
        Navdata_Lines(W, S);
    }
}

template <class Walker, class State>
void Single_Noise_Lines(Walker& W, State& S, int Instance) {
    Line(W, S.template Of<Log_State>().Log_Noise_Enabled[Instance],
         S.template Of<Log_State>().Log_Noise_Level[Instance]);
    Line(W, S.template Of<Echo_State>().Echo_Noise_Enabled[Instance],
         S.template Of<Echo_State>().Echo_Noise_Level[Instance]);
    auto& Level = S.template Of<Wind_State>().Wind_Noise_Level[Instance];
    Line(W, S.template Of<Wind_State>().Wind_Noise_Enabled[Instance], Level[0], Level[1]);
}

template <class Walker, class State>
void Noise_Lines(Walker& W, State& S) {
    for (int I = 1; I <= 2; ++I)
        Line(W, S.template Of<GNSS_State>().GNSS_Noise_Enabled[I],
             S.template Of<GNSS_State>().GNSS_Noise_Index[I],
             S.template Of<GNSS_State>().GNSS_Noise_Accumulated[I]);
    for (int I = 1; I <= 2; ++I) {
        auto& Level = S.template Of<Gyro_State>().Gyro_Noise_Level[I];
        Line(W, S.template Of<Gyro_State>().Gyro_Noise_Enabled[I],
             S.template Of<Gyro_State>().Gyro_Noise_Accumulated[I], Level[0], Level[1], Level[2], Level[3]);
    }
    Single_Noise_Lines(W, S, 1);
}

// The second instances, which were added late.
template <class Walker, class State>
void Second_Instance_Lines(Walker& W, State& S) {
    Line(W, S.template Of<Log_State>().Log_Speed[2], S.template Of<Wind_State>().Wind_Speed[2],
         S.template Of<Wind_State>().Wind_Direction[2], S.template Of<Wind_State>().Wind_Relative_Ref[2]);
    Single_Noise_Lines(W, S, 2);
    Line(W, S.template Of<Log_State>().Log_Talker[2], S.template Of<Echo_State>().Echo_Talker[2],
         S.template Of<Wind_State>().Wind_Talker[2]);
}

template <class Walker, class State>
void Random_ARPA_Lines(Walker& W, State& S) {
    // The targets themselves are not kept, so a run starts without any, and a count is read but never set.
    std::int16_t Count = S.template Of<Radar_State>().ARPA_Random_Count;
    Line(W, Count, S.template Of<Radar_State>().ARPA_Max_Range, S.template Of<Radar_State>().ARPA_Max_Speed);
    if constexpr (Is_Read<State>) S.template Of<Radar_State>().ARPA_Random_Count = 0;
}

template <class Walker, class State>
void GNSS_Configuration_Lines(Walker& W, State& S) {
    for (int N = 1; N <= 6; ++N) {
        Line(W, S.template Of<GNSS_State>().GNSS_System_Used[N][1],
             S.template Of<GNSS_State>().GNSS_System_Used[N][2]);
        Line(W, S.template Of<GNSS_State>().GNSS_System_Mode[N][1],
             S.template Of<GNSS_State>().GNSS_System_Mode[N][2]);
    }
    Line(W, S.template Of<GNSS_State>().GNS_Mode_Indicator[1],
         S.template Of<GNSS_State>().GNS_Mode_Indicator[2], S.template Of<GNSS_State>().GNSS_Systems_Text[1],
         S.template Of<GNSS_State>().GNSS_Systems_Text[2], S.template Of<GNSS_State>().GNS_Talker[1],
         S.template Of<GNSS_State>().GNS_Talker[2]);
}

// The settings of an additional sensor of any kind.
template <class Walker, class Sensor>
void Extra_Fields(Walker& W, Sensor& X, const Extra_Kind& Kind) {
    Fields(W, X.Active, X.UDP_Port, X.Msg, X.Reference, X.Offset_Type);
    for (int I = 0; I <= 1; ++I)
        if (Kind[static_cast<std::size_t>(I)]) Field(W, X.Offset[I]);
    Line(W, X.Interval, X.Sync);
}

// Additional sensor K is slot K + 3 of the GNSS configuration.
template <class Walker, class State>
void GNSSX_Lines(Walker& W, State& S) {
    auto& X = S.template Of<Extra_State>();
    auto& G = S.template Of<GNSS_State>();
    for (int K = 0; K <= 3; ++K) {
        Extra_Fields(W, X.Extra_GNSS[K], Extra_GNSS_Kind);
        for (int I = 1; I <= 2; ++I)
            Line(W, X.Sync_GGA[I][K], X.Sync_GLL[I][K], X.Sync_RMC[I][K], X.Sync_GNS[I][K]);
        Line(W, G.GNS_Mode_Indicator[K + 3], G.GNSS_Systems_Text[K + 3], G.GNS_Talker[K + 3]);
    }
}

template <class Walker, class State>
void GNSSX_Configuration_Lines(Walker& W, State& S) {
    auto& G = S.template Of<GNSS_State>();
    for (int K = 0; K <= 3; ++K)
        for (int N = 1; N <= 6; ++N) Line(W, G.GNSS_System_Used[N][K + 3], G.GNSS_System_Mode[N][K + 3]);
}

// Of the sync tables of the other additional sensors only the row of main sensor 1 is kept; their windows
// rebuild both rows.
template <class Walker, class Sensors, class... Syncs>
void ExtraX_Lines(Walker& W, Sensors& Of_Kind, const Extra_Kind& Kind, Syncs&... Sync) {
    for (int K = 0; K <= 3; ++K) {
        Extra_Fields(W, Of_Kind[K], Kind);
        Line(W, Sync[1][K]...);
    }
}

// The walk as a function of either kind.
template <class Walk>
constexpr Setup_Section Section(std::string_view Marker, Walk Fields_Of) {
    return {Marker, Fields_Of, Fields_Of};
}

// A section of sentences alone.
constexpr Setup_Section Sentences_Only(std::string_view Marker) {
    return Section(Marker, [](auto&, auto&) {});
}

// clang-format off
constexpr Setup_Section Sections[] = {
    Section("REM Mode", [](auto& W, auto& S) { Line(W, S.template Of<Shell_State>().Mode); }),
    Section("REM Comport settings", [](auto& W, auto& S) {
        Line(W, S.template Of<Link_State>().Comport_Count);
        Serial_Port_Lines(W, S);
    }),
    Section("REM TCP/IP settings", [](auto& W, auto& S) {
        Line(W, S.template Of<Link_State>().Port_Table[17].Present, S.template Of<Link_State>().Port_Table[17].Enabled, S.template Of<Link_State>().TCP_Port);
    }),
    Section("REM Sensor settings", [](auto& W, auto& S) { Sensor_Lines(W, S, 1, 8); }),
    Section("REM Open forms", [](auto& W, auto& S) { Open_Form_Lines(W, S); }),
    Section("REM Public variables", [](auto& W, auto& S) {
        Line(W, S.template Of<Navdata_State>().Start_Lat, S.template Of<Navdata_State>().Start_Lon);
        Line(W, S.template Of<Navdata_State>().Max_Speed_Ahead, S.template Of<Navdata_State>().Max_Speed_Astern, S.template Of<Navdata_State>().Max_Rudder);
        Line(W, S.template Of<Navdata_State>().Magnetic_Variation);
        Line(W, S.template Of<Navdata_State>().Lat_Offset, S.template Of<Navdata_State>().Lon_Offset, S.template Of<Gyro_State>().Gyro_Offset[1], S.template Of<Gyro_State>().Gyro_Offset[2], S.template Of<Log_State>().Log_Offset[1]);
    }),
    Section("REM Startpositions", [](auto& W, auto& S) {
        for (int I = 1; I <= 2; ++I) Line(W, S.template Of<GNSS_State>().GNSS_Start_Lat[I], S.template Of<GNSS_State>().GNSS_Start_Lon[I]);
    }),
    Section("REM ARPA settings", [](auto& W, auto& S) {
        Line(W, S.template Of<Radar_State>().ARPA_Target_Count);
        Target_Lines(W, S, [](auto& V, auto& T) {
            Line(V, T.Name, T.Reference, T.Status, T.Acquisition, T.Bearing, T.Course, T.Distance, T.Lat,
                 T.Lat_Rad, T.Lon, T.Lon_Rad, T.Speed, T.CPA, T.TCPA);
        });
    }),
    Sentences_Only("REM Active messages"),
    Sentences_Only("REM GSA messages"),
    Sentences_Only("REM GSV messages"),
    Sentences_Only("REM TTD messages"),
    Section("REM Additional TTD data", [](auto& W, auto& S) {
        Target_Lines(W, S, [](auto& V, auto& T) {
            Line(V, T.AIS_Heading, T.AIS_Mode, T.Op_Mode, T.Speed_Mode, T.Stab_Mode, T.Corr_No);
        });
    }),
    Section("REM Additional TTD Invalid data", [](auto& W, auto& S) {
        Target_Lines(W, S, [](auto& V, auto& T) {
            Line(V, T.Bearing_NA, T.Course_NA, T.Distance_NA, T.Hdg_NA, T.Hdg_No_Data, T.Speed_NA);
        });
    }),
    Section("REM No of decimals", [](auto& W, auto& S) {
        Line(W, S.template Of<GNSS_State>().GNSS_Decimals_Position[1], S.template Of<GNSS_State>().GNSS_Decimals_Position[2]);
        Line(W, S.template Of<GNSS_State>().GNSS_Decimals_Time[1], S.template Of<GNSS_State>().GNSS_Decimals_Time[2]);
        Line(W, S.template Of<Gyro_State>().Gyro_Decimals[1], S.template Of<Gyro_State>().Gyro_Decimals[2]);
    }),
    Sentences_Only("REM THS messages"),
    Section("REM frmTCPIP position", [](auto& W, auto& S) { Line(W, S.template Of<Link_State>().frmTCPIP_Left, S.template Of<Link_State>().frmTCPIP_Top); }),
    Section("REM Autopilot", [](auto& W, auto& S) { Line(W, S.template Of<Autopilot_State>().Autopilot_Mode, S.template Of<Autopilot_State>().Route_File); }),
    Section("REM Current navdata", [](auto& W, auto& S) { Current_Navdata_Lines(W, S); }),
    Section("REM Noise", [](auto& W, auto& S) { Noise_Lines(W, S); }),
    Section("REM ShipNoise", [](auto& W, auto& S) {
        Line(W, S.template Of<Navdata_State>().Ship_SOG_Noise_Index, S.template Of<Navdata_State>().Ship_ROT_Noise_Index);
    }),
    Section("REM WindReference", [](auto& W, auto& S) { Line(W, S.template Of<Wind_State>().Wind_Relative_Ref[1]); }),
    Section("REM Talker ID", [](auto& W, auto& S) {
        Line(W, S.template Of<GNSS_State>().GNSS_Talker[1], S.template Of<GNSS_State>().GNSS_Talker[2], S.template Of<Gyro_State>().Gyro_Talker[1], S.template Of<Gyro_State>().Gyro_Talker[2]);
        Line(W, S.template Of<Log_State>().Log_Talker[1], S.template Of<Echo_State>().Echo_Talker[1], S.template Of<Radar_State>().ARPA_Talker, S.template Of<Wind_State>().Wind_Talker[1]);
    }),
    Section("REM UTCOffset", [](auto& W, auto& S) { Line(W, S.template Of<UTC_State>().UTC_Offset_Hours); }),
    Sentences_Only("REM GST messages"),
    Sentences_Only("REM TLB messages"),
    Section("REM TTD Protocol 1", [](auto& W, auto& S) { Line(W, S.template Of<Radar_State>().TTD_Protocol1_Enabled); }),
    Section("REM TTD Protocol 1 Invalid data", [](auto& W, auto& S) {
        Target_Lines(W, S, [](auto& V, auto& T) { Line(V, T.CPA_NA, T.TCPA_NA); });
    }),
    Section("REM Random ARPA", [](auto& W, auto& S) { Random_ARPA_Lines(W, S); }),
    Section("REM UDP settings", [](auto& W, auto& S) { UDP_Link_Lines(W, S, 1, 1); }),
    Section("REM Use UTC", [](auto& W, auto& S) { Line(W, S.template Of<UTC_State>().Use_UTC); }),
    Section("REM Extended UDP settings", [](auto& W, auto& S) { UDP_Link_Lines(W, S, 2, 8); }),
    Section("REM IEC 61162-450 extended", [](auto& W, auto& S) {
        Line(W, S.template Of<IEC450_State>().IEC450_Enabled, S.template Of<IEC450_State>().Use_c_Tag, S.template Of<IEC450_State>().Use_d_Tag, S.template Of<IEC450_State>().Use_d2_Tag, S.template Of<IEC450_State>().d_Tag, S.template Of<IEC450_State>().d2_Tag, S.template Of<IEC450_State>().Use_g_Tag,
             S.template Of<IEC450_State>().Use_n_Tag, S.template Of<IEC450_State>().Use_s_Tag, S.template Of<IEC450_State>().s_Tag, S.template Of<IEC450_State>().Use_t_Tag, S.template Of<IEC450_State>().t_Tag);
    }),
    Section("REM UDP Mode", [](auto& W, auto& S) { Line(W, S.template Of<Link_State>().UDP_Mode, S.template Of<Link_State>().UDP_Remote_Host); }),
    Section("REM LatLon Format", [](auto& W, auto& S) { Line(W, S.template Of<Shell_State>().LatLon_Format); }),
    Section("REM UdPbC header", [](auto& W, auto& S) { Line(W, S.template Of<IEC450_State>().UdPbC_Header_Enabled); }),
    Sentences_Only("REM VLW Message"),
    Section("REM UTC Offset Minutes", [](auto& W, auto& S) { Line(W, S.template Of<UTC_State>().UTC_Offset_Minutes); }),
    Section("REM Gullwatch Connection", [](auto& W, auto& S) {
        Line(W, S.template Of<Gullwatch_State>().Gullwatch_Remote_PC, S.template Of<Gullwatch_State>().Gullwatch_Remote_IP, S.template Of<Gullwatch_State>().Gullwatch_Bind_Port, S.template Of<Gullwatch_State>().Gullwatch_Remote_Port);
    }),
    Section("REM UTC Offset GNSS2", [](auto& W, auto& S) {
        Line(W, S.template Of<UTC_State>().GNSS2_UTC_Offset_Hours, S.template Of<UTC_State>().GNSS2_UTC_Offset_Minutes, S.template Of<UTC_State>().GNSS2_UTC_Offset_Seconds);
    }),
    Section("REM Sensor settings v6", [](auto& W, auto& S) { Sensor_Lines(W, S, 9, 11); }),
    Section("REM Utvidelser v6", [](auto& W, auto& S) { Second_Instance_Lines(W, S); }),
    Section("REM Extended UDP settings v6", [](auto& W, auto& S) { UDP_Link_Lines(W, S, 9, 11); }),
    Sentences_Only("REM MWD"),
    Section("REM GNSS Configuration", [](auto& W, auto& S) { GNSS_Configuration_Lines(W, S); }),
    Section("REM GNSSX", [](auto& W, auto& S) { GNSSX_Lines(W, S); }),
    Section("REM GNSSX Configuration", [](auto& W, auto& S) { GNSSX_Configuration_Lines(W, S); }),
    Section("REM GyroX", [](auto& W, auto& S) {
        auto& X = S.template Of<Extra_State>();
        ExtraX_Lines(W, X.Extra_Gyro, Extra_Gyro_Kind, X.Sync_HDT, X.Sync_THS, X.Sync_ROT);
    }),
    Section("REM LogX", [](auto& W, auto& S) {
        auto& X = S.template Of<Extra_State>();
        ExtraX_Lines(W, X.Extra_Log, Extra_Log_Kind, X.Sync_VHW, X.Sync_VBW);
    }),
    Section("REM EchosounderX", [](auto& W, auto& S) {
        auto& X = S.template Of<Extra_State>();
        ExtraX_Lines(W, X.Extra_Echo, Extra_Echo_Kind, X.Sync_DBT, X.Sync_DPT);
    }),
    Section("REM WindX", [](auto& W, auto& S) {
        auto& X = S.template Of<Extra_State>();
        ExtraX_Lines(W, X.Extra_Wind, Extra_Wind_Kind, X.Sync_MWV, X.Sync_MWD);
    }),
};
// clang-format on

} // namespace

std::span<const Setup_Section> Setup_Sections() { return Sections; }

} // namespace brinewright
