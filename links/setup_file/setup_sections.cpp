#include "links/setup_file/setup_sections.hpp"
#include "extra/extra_state.hpp"
#include "gnss/gnss_state.hpp"
#include "links/setup_file/setup_line.hpp"
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

namespace brinewright {

namespace {

// What the variables are held to. All of them may be zero or empty, which is what a file leaves that lacks
// their section. A place in a list is looked at where the list is.
constexpr Setup_Limits Mode{.Words = Setup_Words::Mode};
constexpr Setup_Limits Talker{.Words = Setup_Words::Talker};
constexpr Setup_Limits Latitude{-90, 90}, Longitude{-180, 180};
constexpr Setup_Limits Latitude_Rad{-1.571, 1.571}, Longitude_Rad{-3.142, 3.142};
constexpr Setup_Limits Direction{-360, 360}, Variation{-180, 180};
constexpr Setup_Limits Ship_Limit{0, 1000}; // knots, or degrees per minute
constexpr Setup_Limits IP_Port{0, 65535}, Port_Number{0, 28}, Baud_Rate{0, 4'000'000};
constexpr Setup_Limits Position_Decimals{0, 6}, Time_Decimals{0, 2}, Gyro_Decimals{0, 3};
constexpr Setup_Limits Zone_Offset{-14 * 60, 14 * 60}, Sixty{0, 59};
constexpr Setup_Limits Target_Count{0, 10}, Random_Count{0, 100};

// Below, W is a reader, a writer or a list of the variables, and S the state to fill or to tell.

template <class Area, class State>
auto& Of(State& S) {
    return S.template Of<Area>();
}

template <class Walker, class State>
void Serial_Port_Lines(Walker& W, State& S) {
    for (int N = 1; N <= 16; ++N) {
        auto& P = Of<Link_State>(S).Port_Table[N];
        Line(W, P.Present, P.Enabled);
        Line(W, Held(P.BaudRate, Baud_Rate), P.DataBits, P.Parity, P.StopBits);
    }
}

template <class Walker, class State>
void UDP_Link_Lines(Walker& W, State& S, int First, int Last) {
    for (int N = First; N <= Last; ++N)
        Line(W, Of<Link_State>(S).Port_Table[N + 17].Present, Of<Link_State>(S).Port_Table[N + 17].Enabled,
             Held(Of<Link_State>(S).UDP_Port_Number[N - 1], IP_Port));
}

template <class Walker, class State>
void Sensor_Lines(Walker& W, State& S, int First, int Last) {
    for (int N = First; N <= Last; ++N)
        Line(W, Of<Link_State>(S).Sensor_Table[N].Name,
             Held(Of<Link_State>(S).Sensor_Table[N].Port, Port_Number));
}

template <class Walker, class State>
void Open_Form_Lines(Walker& W, State& S) {
    Count_Field(W, Of<Shell_State>(S).Open_Form_Count, Of<Shell_State>(S).Open_Form_List.Last_Index);
    End_Line(W);
    for (int N = 1; N <= Of<Shell_State>(S).Open_Form_Count; ++N) {
        auto& E = Of<Shell_State>(S).Open_Form_List[N];
        Line(W, Moving(E.Name), Moving(E.Index), Moving(E.Top), Moving(E.Left), Moving(E.Height),
             Moving(E.Width));
    }
}

// Ten targets, however many are live.
template <class Walker, class State, class Target_Line>
void Target_Lines(Walker& W, State& S, Target_Line Fields_Of) {
    for (int N = 1; N <= 10; ++N) Fields_Of(W, Of<Radar_State>(S).ARPA_Target[N]);
}

template <class Walker, class State>
void Navdata_Lines(Walker& W, State& S) {
    auto& D = Of<Navdata_State>(S);
    Line(W, Moving(D.Nav_Lat, Latitude), Moving(D.Nav_Lon, Longitude));
    Line(W, Moving(D.Nav_SOG), Moving(D.Nav_COG, Direction));
    Line(W, Moving(D.Nav_HDG, Direction), Moving(D.Nav_Rudder));
    Line(W, Moving(Of<Echo_State>(S).Echo_Depth));
    auto& Wind = Of<Wind_State>(S);
    Line(W, Moving(Wind.Wind_Speed[1]), Moving(Wind.Wind_Direction[1], Direction));
    Line(W, Moving(Of<Shell_State>(S).Freeze_Active));
}

template <class Walker, class State>
void Current_Navdata_Lines(Walker& W, State& S) {
    Line(W, Of<Shell_State>(S).Start_With_Last_Navdata);
    if constexpr (Is_Reader<Walker>)
        if (!Of<Shell_State>(S).Start_With_Last_Navdata) {
            Simulator_State Thrown_Away;
            return Navdata_Lines(W, Thrown_Away);
        }
    Navdata_Lines(W, S);
}

template <class Walker, class State>
void Single_Noise_Lines(Walker& W, State& S, int Instance) {
    Line(W, Of<Log_State>(S).Log_Noise_Enabled[Instance], Of<Log_State>(S).Log_Noise_Level[Instance]);
    Line(W, Of<Echo_State>(S).Echo_Noise_Enabled[Instance], Of<Echo_State>(S).Echo_Noise_Level[Instance]);
    auto& Level = Of<Wind_State>(S).Wind_Noise_Level[Instance];
    Line(W, Of<Wind_State>(S).Wind_Noise_Enabled[Instance], Level[0], Level[1]);
}

template <class Walker, class State>
void Noise_Lines(Walker& W, State& S) {
    for (int I = 1; I <= 2; ++I)
        Line(W, Of<GNSS_State>(S).GNSS_Noise_Enabled[I], Of<GNSS_State>(S).GNSS_Noise_Index[I],
             Of<GNSS_State>(S).GNSS_Noise_Accumulated[I]);
    for (int I = 1; I <= 2; ++I) {
        auto& Level = Of<Gyro_State>(S).Gyro_Noise_Level[I];
        Line(W, Of<Gyro_State>(S).Gyro_Noise_Enabled[I], Of<Gyro_State>(S).Gyro_Noise_Accumulated[I],
             Level[0], Level[1], Level[2], Level[3]);
    }
    Single_Noise_Lines(W, S, 1);
}

// The second instances, which were added late.
template <class Walker, class State>
void Second_Instance_Lines(Walker& W, State& S) {
    auto& Wind = Of<Wind_State>(S);
    Line(W, Moving(Of<Log_State>(S).Log_Speed[2]), Moving(Wind.Wind_Speed[2]),
         Moving(Wind.Wind_Direction[2], Direction), Wind.Wind_Relative_Ref[2]);
    Single_Noise_Lines(W, S, 2);
    Line(W, Held(Of<Log_State>(S).Log_Talker[2], Talker), Held(Of<Echo_State>(S).Echo_Talker[2], Talker),
         Held(Wind.Wind_Talker[2], Talker));
}

template <class Walker, class State>
void Random_ARPA_Lines(Walker& W, State& S) {
    auto& R = Of<Radar_State>(S);
    if constexpr (Is_Reader<Walker>) {
        // The targets themselves are not kept, so a run starts without any, and a count is read but never
        // set.
        std::int16_t Count = 0;
        Line(W, Count, R.ARPA_Max_Range, R.ARPA_Max_Speed);
        R.ARPA_Random_Count = 0;
    } else {
        Line(W, Moving(R.ARPA_Random_Count, Random_Count), R.ARPA_Max_Range, R.ARPA_Max_Speed);
    }
}

template <class Walker, class State>
void GNSS_Configuration_Lines(Walker& W, State& S) {
    for (int N = 1; N <= 6; ++N) {
        Line(W, Of<GNSS_State>(S).GNSS_System_Used[N][1], Of<GNSS_State>(S).GNSS_System_Used[N][2]);
        Line(W, Of<GNSS_State>(S).GNSS_System_Mode[N][1], Of<GNSS_State>(S).GNSS_System_Mode[N][2]);
    }
    Line(W, Of<GNSS_State>(S).GNS_Mode_Indicator[1], Of<GNSS_State>(S).GNS_Mode_Indicator[2],
         Of<GNSS_State>(S).GNSS_Systems_Text[1], Of<GNSS_State>(S).GNSS_Systems_Text[2],
         Held(Of<GNSS_State>(S).GNS_Talker[1], Talker), Held(Of<GNSS_State>(S).GNS_Talker[2], Talker));
}

// The settings of an additional sensor of any kind.
template <class Walker, class Sensor>
void Extra_Line(Walker& W, Sensor& X, const Extra_Kind& Kind) {
    if (Kind[1])
        Line(W, X.Active, Held(X.UDP_Port, IP_Port), X.Msg, X.Reference, X.Offset_Type, X.Offset[0],
             X.Offset[1], X.Interval, X.Sync);
    else
        Line(W, X.Active, Held(X.UDP_Port, IP_Port), X.Msg, X.Reference, X.Offset_Type, X.Offset[0],
             X.Interval, X.Sync);
}

// Additional sensor K is slot K + 3 of the GNSS configuration.
template <class Walker, class State>
void GNSSX_Lines(Walker& W, State& S) {
    auto& X = Of<Extra_State>(S);
    auto& G = Of<GNSS_State>(S);
    for (int K = 0; K <= 3; ++K) {
        Extra_Line(W, X.Extra_GNSS[K], Extra_GNSS_Kind);
        for (int I = 1; I <= 2; ++I)
            Line(W, X.Sync_GGA[I][K], X.Sync_GLL[I][K], X.Sync_RMC[I][K], X.Sync_GNS[I][K]);
        Line(W, G.GNS_Mode_Indicator[K + 3], G.GNSS_Systems_Text[K + 3], Held(G.GNS_Talker[K + 3], Talker));
    }
}

template <class Walker, class State>
void GNSSX_Configuration_Lines(Walker& W, State& S) {
    auto& G = Of<GNSS_State>(S);
    for (int K = 0; K <= 3; ++K)
        for (int N = 1; N <= 6; ++N) Line(W, G.GNSS_System_Used[N][K + 3], G.GNSS_System_Mode[N][K + 3]);
}

// Of the sync tables of the other additional sensors only the row of main sensor 1 is kept; their windows
// rebuild both rows.
template <class Walker, class Sensors, class... Syncs>
void ExtraX_Lines(Walker& W, Sensors& Of_Kind, const Extra_Kind& Kind, Syncs&... Sync) {
    for (int K = 0; K <= 3; ++K) {
        Extra_Line(W, Of_Kind[K], Kind);
        Line(W, Sync[1][K]...);
    }
}

// The walk as a function of either kind.
template <class Walk>
constexpr Setup_Section Section(std::string_view Marker, Walk Fields_Of) {
    return {Marker, Fields_Of, Fields_Of, Fields_Of};
}

// A section of sentences alone.
constexpr Setup_Section Sentences_Only(std::string_view Marker) {
    return Section(Marker, [](auto&, auto&) {});
}

// clang-format off
constexpr Setup_Section Sections[] = {
    Section("REM Mode", [](auto& W, auto& S) { Line(W, Held(Of<Shell_State>(S).Mode, Mode)); }),
    Section("REM Comport settings", [](auto& W, auto& S) {
        Line(W, Of<Link_State>(S).Comport_Count);
        Serial_Port_Lines(W, S);
    }),
    Section("REM TCP/IP settings", [](auto& W, auto& S) {
        Line(W, Of<Link_State>(S).Port_Table[17].Present, Of<Link_State>(S).Port_Table[17].Enabled, Held(Of<Link_State>(S).TCP_Port, IP_Port));
    }),
    Section("REM Sensor settings", [](auto& W, auto& S) { Sensor_Lines(W, S, 1, 8); }),
    Section("REM Open forms", [](auto& W, auto& S) { Open_Form_Lines(W, S); }),
    Section("REM Public variables", [](auto& W, auto& S) {
        Line(W, Held(Of<Navdata_State>(S).Start_Lat, Latitude), Held(Of<Navdata_State>(S).Start_Lon, Longitude));
        Line(W, Held(Of<Navdata_State>(S).Max_Speed_Ahead, Ship_Limit), Held(Of<Navdata_State>(S).Max_Speed_Astern, Ship_Limit), Held(Of<Navdata_State>(S).Max_Rudder, Ship_Limit));
        Line(W, Held(Of<Navdata_State>(S).Magnetic_Variation, Variation));
        Line(W, Of<Navdata_State>(S).Lat_Offset, Of<Navdata_State>(S).Lon_Offset, Of<Gyro_State>(S).Gyro_Offset[1], Of<Gyro_State>(S).Gyro_Offset[2], Of<Log_State>(S).Log_Offset[1]);
    }),
    Section("REM Startpositions", [](auto& W, auto& S) {
        for (int I = 1; I <= 2; ++I) Line(W, Moving(Of<GNSS_State>(S).GNSS_Start_Lat[I], Latitude), Moving(Of<GNSS_State>(S).GNSS_Start_Lon[I], Longitude));
    }),
    Section("REM ARPA settings", [](auto& W, auto& S) {
        Line(W, Held(Of<Radar_State>(S).ARPA_Target_Count, Target_Count));
        Target_Lines(W, S, [](auto& V, auto& T) {
            Line(V, T.Name, T.Reference, T.Status, T.Acquisition, Moving(T.Bearing, Direction),
                 Held(T.Course, Direction), Moving(T.Distance), Moving(T.Lat, Latitude), Moving(T.Lat_Rad, Latitude_Rad),
                 Moving(T.Lon, Longitude), Moving(T.Lon_Rad, Longitude_Rad), T.Speed, Moving(T.CPA), Moving(T.TCPA));
        });
    }),
    Sentences_Only("REM Active messages"),
    Sentences_Only("REM GSA messages"),
    Sentences_Only("REM GSV messages"),
    Sentences_Only("REM TTD messages"),
    Section("REM Additional TTD data", [](auto& W, auto& S) {
        Target_Lines(W, S, [](auto& V, auto& T) {
            Line(V, Held(T.AIS_Heading, Direction), T.AIS_Mode, T.Op_Mode, T.Speed_Mode, T.Stab_Mode, T.Corr_No);
        });
    }),
    Section("REM Additional TTD Invalid data", [](auto& W, auto& S) {
        Target_Lines(W, S, [](auto& V, auto& T) {
            Line(V, T.Bearing_NA, T.Course_NA, T.Distance_NA, T.Hdg_NA, T.Hdg_No_Data, T.Speed_NA);
        });
    }),
    Section("REM No of decimals", [](auto& W, auto& S) {
        Line(W, Held(Of<GNSS_State>(S).GNSS_Decimals_Position[1], Position_Decimals), Held(Of<GNSS_State>(S).GNSS_Decimals_Position[2], Position_Decimals));
        Line(W, Held(Of<GNSS_State>(S).GNSS_Decimals_Time[1], Time_Decimals), Held(Of<GNSS_State>(S).GNSS_Decimals_Time[2], Time_Decimals));
        Line(W, Held(Of<Gyro_State>(S).Gyro_Decimals[1], Gyro_Decimals), Held(Of<Gyro_State>(S).Gyro_Decimals[2], Gyro_Decimals));
    }),
    Sentences_Only("REM THS messages"),
    Section("REM frmTCPIP position", [](auto& W, auto& S) { Line(W, Moving(Of<Link_State>(S).frmTCPIP_Left), Moving(Of<Link_State>(S).frmTCPIP_Top)); }),
    Section("REM Autopilot", [](auto& W, auto& S) { Line(W, Of<Autopilot_State>(S).Autopilot_Mode, Of<Autopilot_State>(S).Route_File); }),
    Section("REM Current navdata", [](auto& W, auto& S) { Current_Navdata_Lines(W, S); }),
    Section("REM Noise", [](auto& W, auto& S) { Noise_Lines(W, S); }),
    Section("REM ShipNoise", [](auto& W, auto& S) {
        Line(W, Of<Navdata_State>(S).Ship_SOG_Noise_Index, Of<Navdata_State>(S).Ship_ROT_Noise_Index);
    }),
    Section("REM WindReference", [](auto& W, auto& S) { Line(W, Of<Wind_State>(S).Wind_Relative_Ref[1]); }),
    Section("REM Talker ID", [](auto& W, auto& S) {
        Line(W, Held(Of<GNSS_State>(S).GNSS_Talker[1], Talker), Held(Of<GNSS_State>(S).GNSS_Talker[2], Talker), Held(Of<Gyro_State>(S).Gyro_Talker[1], Talker), Held(Of<Gyro_State>(S).Gyro_Talker[2], Talker));
        Line(W, Held(Of<Log_State>(S).Log_Talker[1], Talker), Held(Of<Echo_State>(S).Echo_Talker[1], Talker), Held(Of<Radar_State>(S).ARPA_Talker, Talker), Held(Of<Wind_State>(S).Wind_Talker[1], Talker));
    }),
    Section("REM UTCOffset", [](auto& W, auto& S) { Line(W, Held(Of<UTC_State>(S).UTC_Offset_Hours, Zone_Offset)); }),
    Sentences_Only("REM GST messages"),
    Sentences_Only("REM TLB messages"),
    Section("REM TTD Protocol 1", [](auto& W, auto& S) { Line(W, Of<Radar_State>(S).TTD_Protocol1_Enabled); }),
    Section("REM TTD Protocol 1 Invalid data", [](auto& W, auto& S) {
        Target_Lines(W, S, [](auto& V, auto& T) { Line(V, T.CPA_NA, T.TCPA_NA); });
    }),
    Section("REM Random ARPA", [](auto& W, auto& S) { Random_ARPA_Lines(W, S); }),
    Section("REM UDP settings", [](auto& W, auto& S) { UDP_Link_Lines(W, S, 1, 1); }),
    Section("REM Use UTC", [](auto& W, auto& S) { Line(W, Of<UTC_State>(S).Use_UTC); }),
    Section("REM Extended UDP settings", [](auto& W, auto& S) { UDP_Link_Lines(W, S, 2, 8); }),
    Section("REM IEC 61162-450 extended", [](auto& W, auto& S) {
        Line(W, Of<IEC450_State>(S).IEC450_Enabled, Of<IEC450_State>(S).Use_c_Tag, Of<IEC450_State>(S).Use_d_Tag, Of<IEC450_State>(S).Use_d2_Tag, Of<IEC450_State>(S).d_Tag, Of<IEC450_State>(S).d2_Tag, Of<IEC450_State>(S).Use_g_Tag,
             Of<IEC450_State>(S).Use_n_Tag, Of<IEC450_State>(S).Use_s_Tag, Of<IEC450_State>(S).s_Tag, Of<IEC450_State>(S).Use_t_Tag, Of<IEC450_State>(S).t_Tag);
    }),
    Section("REM UDP Mode", [](auto& W, auto& S) { Line(W, Of<Link_State>(S).UDP_Mode, Of<Link_State>(S).UDP_Remote_Host); }),
    Section("REM LatLon Format", [](auto& W, auto& S) { Line(W, Of<Shell_State>(S).LatLon_Format); }),
    Section("REM UdPbC header", [](auto& W, auto& S) { Line(W, Of<IEC450_State>(S).UdPbC_Header_Enabled); }),
    Sentences_Only("REM VLW Message"),
    Section("REM UTC Offset Minutes", [](auto& W, auto& S) { Line(W, Held(Of<UTC_State>(S).UTC_Offset_Minutes, Sixty)); }),
    Section("REM Gullwatch Connection", [](auto& W, auto& S) {
        Line(W, Of<Gullwatch_State>(S).Gullwatch_Remote_PC, Of<Gullwatch_State>(S).Gullwatch_Remote_IP, Held(Of<Gullwatch_State>(S).Gullwatch_Bind_Port, IP_Port), Held(Of<Gullwatch_State>(S).Gullwatch_Remote_Port, IP_Port));
    }),
    Section("REM UTC Offset GNSS2", [](auto& W, auto& S) {
        Line(W, Held(Of<UTC_State>(S).GNSS2_UTC_Offset_Hours, Zone_Offset), Held(Of<UTC_State>(S).GNSS2_UTC_Offset_Minutes, Sixty), Held(Of<UTC_State>(S).GNSS2_UTC_Offset_Seconds, Sixty));
    }),
    Section("REM Sensor settings v6", [](auto& W, auto& S) { Sensor_Lines(W, S, 9, 11); }),
    Section("REM Utvidelser v6", [](auto& W, auto& S) { Second_Instance_Lines(W, S); }),
    Section("REM Extended UDP settings v6", [](auto& W, auto& S) { UDP_Link_Lines(W, S, 9, 11); }),
    Sentences_Only("REM MWD"),
    Section("REM GNSS Configuration", [](auto& W, auto& S) { GNSS_Configuration_Lines(W, S); }),
    Section("REM GNSSX", [](auto& W, auto& S) { GNSSX_Lines(W, S); }),
    Section("REM GNSSX Configuration", [](auto& W, auto& S) { GNSSX_Configuration_Lines(W, S); }),
    Section("REM GyroX", [](auto& W, auto& S) {
        auto& X = Of<Extra_State>(S);
        ExtraX_Lines(W, X.Extra_Gyro, Extra_Gyro_Kind, X.Sync_HDT, X.Sync_THS, X.Sync_ROT);
    }),
    Section("REM LogX", [](auto& W, auto& S) {
        auto& X = Of<Extra_State>(S);
        ExtraX_Lines(W, X.Extra_Log, Extra_Log_Kind, X.Sync_VHW, X.Sync_VBW);
    }),
    Section("REM EchosounderX", [](auto& W, auto& S) {
        auto& X = Of<Extra_State>(S);
        ExtraX_Lines(W, X.Extra_Echo, Extra_Echo_Kind, X.Sync_DBT, X.Sync_DPT);
    }),
    Section("REM WindX", [](auto& W, auto& S) {
        auto& X = Of<Extra_State>(S);
        ExtraX_Lines(W, X.Extra_Wind, Extra_Wind_Kind, X.Sync_MWV, X.Sync_MWD);
    }),
};
// clang-format on

} // namespace

std::span<const Setup_Section> Setup_Sections() { return Sections; }

} // namespace brinewright
