#include "links/setup_sections.hpp"

#include <type_traits>

namespace brinewright {

namespace {

// Below, W is a reader or a writer and S the state to fill or to tell.

template <class Walker, class... Fields>
void Line(Walker& W, Fields&... F) {
    (Field(W, F), ...);
    End_Line(W);
}

// One line for each of the two like sensors.
template <class Walker, class Flags, class Intervals>
void Both_Lines(Walker& W, Flags& Enabled, Intervals& Interval) {
    Line(W, Enabled[1], Interval[1]);
    Line(W, Enabled[2], Interval[2]);
}

template <class State>
inline constexpr bool Is_Read = !std::is_const_v<State>;

template <class Walker, class State>
void Serial_Port_Lines(Walker& W, State& S) {
    for (int N = 1; N <= 16; ++N) {
        auto& P = S.Port_Table[N];
        Line(W, P.Present, P.Enabled);
        Line(W, P.BaudRate, P.DataBits, P.Parity, P.StopBits);
    }
}

template <class Walker, class State>
void UDP_Link_Lines(Walker& W, State& S, int First, int Last) {
    for (int N = First; N <= Last; ++N)
        Line(W, S.Port_Table[N + 17].Present, S.Port_Table[N + 17].Enabled, S.UDP_Port_Number[N - 1]);
}

template <class Walker, class State>
void Sensor_Lines(Walker& W, State& S, int First, int Last) {
    for (int N = First; N <= Last; ++N) Line(W, S.Sensor_Table[N].Name, S.Sensor_Table[N].Port);
}

template <class Walker, class State>
void Open_Form_Lines(Walker& W, State& S) {
    Count_Field(W, S.Open_Form_Count, S.Open_Form_List.Last_Index);
    End_Line(W);
    for (int N = 1; N <= S.Open_Form_Count; ++N) {
        auto& E = S.Open_Form_List[N];
        Line(W, E.Name, E.Index, E.Top, E.Left, E.Height, E.Width);
    }
}

// Ten targets, however many are live.
template <class Walker, class State, class Target_Line>
void Target_Lines(Walker& W, State& S, Target_Line Fields_Of) {
    for (int N = 1; N <= 10; ++N) Fields_Of(W, S.ARPA_Target[N]);
}

template <class Walker, class Navdata, class Freeze>
void Navdata_Lines(Walker& W, Navdata& D, Freeze& Freeze_Active) {
    Line(W, D.Nav_Lat, D.Nav_Lon);
    Line(W, D.Nav_SOG, D.Nav_COG);
    Line(W, D.Nav_HDG, D.Nav_Rudder);
    Line(W, D.Echo_Depth);
    Line(W, D.Wind_Speed[1], D.Wind_Direction[1]);
    Line(W, Freeze_Active);
}

template <class Walker, class State>
void Current_Navdata_Lines(Walker& W, State& S) {
    Line(W, S.Start_With_Last_Navdata);
    if (Is_Read<State> && !S.Start_With_Last_Navdata) {
        Navdata_State Thrown_Away;
        bool Freeze_Thrown_Away = false;
        Navdata_Lines(W, Thrown_Away, Freeze_Thrown_Away);
    } else {
        Navdata_Lines(W, S, S.Freeze_Active);
    }
}

template <class Walker, class State>
void Single_Noise_Lines(Walker& W, State& S, int Instance) {
    Line(W, S.Log_Noise_Enabled[Instance], S.Log_Noise_Level[Instance]);
    Line(W, S.Echo_Noise_Enabled[Instance], S.Echo_Noise_Level[Instance]);
    auto& Level = S.Wind_Noise_Level[Instance];
    Line(W, S.Wind_Noise_Enabled[Instance], Level[0], Level[1]);
}

template <class Walker, class State>
void Noise_Lines(Walker& W, State& S) {
    for (int I = 1; I <= 2; ++I)
        Line(W, S.GNSS_Noise_Enabled[I], S.GNSS_Noise_Index[I], S.GNSS_Noise_Accumulated[I]);
    for (int I = 1; I <= 2; ++I) {
        auto& Level = S.Gyro_Noise_Level[I];
        Line(W, S.Gyro_Noise_Enabled[I], S.Gyro_Noise_Accumulated[I], Level[0], Level[1], Level[2], Level[3]);
    }
    Single_Noise_Lines(W, S, 1);
}

template <class Walker, class State>
void Active_Message_Lines(Walker& W, State& S) {
    Both_Lines(W, S.GGA_Enabled, S.GGA_Interval);
    Both_Lines(W, S.GLL_Enabled, S.GLL_Interval);
    Both_Lines(W, S.VTG_Enabled, S.VTG_Interval);
    Both_Lines(W, S.RMC_Enabled, S.RMC_Interval);
    Both_Lines(W, S.ZDA_Enabled, S.ZDA_Interval);
    Both_Lines(W, S.GNS_Enabled, S.GNS_Interval);
    Both_Lines(W, S.DTM_Enabled, S.DTM_Interval);
    Both_Lines(W, S.HDT_Enabled, S.HDT_Interval);
    Both_Lines(W, S.ROT_Enabled, S.ROT_Interval);
    Both_Lines(W, S.HDM_Enabled, S.HDM_Interval);
    Both_Lines(W, S.ATT_Enabled, S.ATT_Interval);
    Both_Lines(W, S.PRDID_Enabled, S.PRDID_Interval);
    Line(W, S.VHW_Enabled[1], S.VHW_Interval[1]);
    Line(W, S.VBW_Enabled[1], S.VBW_Interval[1]);
    Line(W, S.VDR_Enabled[1], S.VDR_Interval[1]);
    Line(W, S.DBT_Enabled[1], S.DBT_Interval[1]);
    Line(W, S.DPT_Enabled[1], S.DPT_Interval[1]);
    Line(W, S.TTM_Enabled, S.TTM_Interval);
    Line(W, S.MWV_Enabled[1], S.MWV_Interval[1]);
}

// The second instances, which were added late.
template <class Walker, class State>
void Second_Instance_Lines(Walker& W, State& S) {
    Line(W, S.Log_Speed[2], S.Wind_Speed[2], S.Wind_Direction[2], S.Wind_Relative_Ref[2]);
    Single_Noise_Lines(W, S, 2);
    Line(W, S.Log_Talker[2], S.Echo_Talker[2], S.Wind_Talker[2]);
    Line(W, S.VHW_Enabled[2], S.VHW_Interval[2]);
    Line(W, S.VBW_Enabled[2], S.VBW_Interval[2]);
    Line(W, S.VDR_Enabled[2], S.VDR_Interval[2]);
    Line(W, S.VLW_Enabled[2], S.VLW_Interval[2]);
    Line(W, S.DBT_Enabled[2], S.DBT_Interval[2]);
    Line(W, S.DPT_Enabled[2], S.DPT_Interval[2]);
    Line(W, S.MWV_Enabled[2], S.MWV_Interval[2]);
}

template <class Walker, class State>
void Random_ARPA_Lines(Walker& W, State& S) {
    // The targets themselves are not kept, so a run starts without any, and a count is read but never set.
    std::int16_t Count = S.ARPA_Random_Count;
    Line(W, Count, S.ARPA_Max_Range, S.ARPA_Max_Speed);
    if constexpr (Is_Read<State>) S.ARPA_Random_Count = 0;
}

template <class Walker, class State>
void GNSS_Configuration_Lines(Walker& W, State& S) {
    for (int N = 1; N <= 6; ++N) {
        Line(W, S.GNSS_System_Used[N][1], S.GNSS_System_Used[N][2]);
        Line(W, S.GNSS_System_Mode[N][1], S.GNSS_System_Mode[N][2]);
    }
    Line(W, S.GNS_Mode_Indicator[1], S.GNS_Mode_Indicator[2], S.GNSS_Systems_Text[1], S.GNSS_Systems_Text[2],
         S.GNS_Talker[1], S.GNS_Talker[2]);
}

// Additional sensor K is slot K + 3 of the GNSS configuration.
template <class Walker, class State>
void GNSSX_Lines(Walker& W, State& S) {
    for (int K = 0; K <= 3; ++K) {
        auto& X = S.Extra_GNSS[K];
        Line(W, X.Active, X.UDP_Port, X.Msg, X.Reference, X.Offset_Type, X.dN, X.dE, X.Interval, X.Sync);
        for (int I = 1; I <= 2; ++I)
            Line(W, S.Sync_GGA[I][K], S.Sync_GLL[I][K], S.Sync_RMC[I][K], S.Sync_GNS[I][K]);
        Line(W, S.GNS_Mode_Indicator[K + 3], S.GNSS_Systems_Text[K + 3], S.GNS_Talker[K + 3]);
    }
}

template <class Walker, class State>
void GNSSX_Configuration_Lines(Walker& W, State& S) {
    for (int K = 0; K <= 3; ++K)
        for (int N = 1; N <= 6; ++N) Line(W, S.GNSS_System_Used[N][K + 3], S.GNSS_System_Mode[N][K + 3]);
}

// Of the sync tables of the other additional sensors only the row of main sensor 1 is kept; their windows
// rebuild both rows.
template <class Walker, class State>
void GyroX_Lines(Walker& W, State& S) {
    for (int K = 0; K <= 3; ++K) {
        auto& X = S.Extra_Gyro[K];
        Line(W, X.Active, X.UDP_Port, X.Msg, X.Reference, X.Offset_Type, X.dHdg, X.dRot, X.Interval, X.Sync);
        Line(W, S.Sync_HDT[1][K], S.Sync_THS[1][K], S.Sync_ROT[1][K]);
    }
}

template <class Walker, class State>
void LogX_Lines(Walker& W, State& S) {
    for (int K = 0; K <= 3; ++K) {
        auto& X = S.Extra_Log[K];
        Line(W, X.Active, X.UDP_Port, X.Msg, X.Reference, X.Offset_Type, X.dSpd, X.dHdg, X.Interval, X.Sync);
        Line(W, S.Sync_VHW[1][K], S.Sync_VBW[1][K]);
    }
}

template <class Walker, class State>
void EchosounderX_Lines(Walker& W, State& S) {
    for (int K = 0; K <= 3; ++K) {
        auto& X = S.Extra_Echo[K];
        Line(W, X.Active, X.UDP_Port, X.Msg, X.Reference, X.Offset_Type, X.dDepth, X.Interval, X.Sync);
        Line(W, S.Sync_DBT[1][K], S.Sync_DPT[1][K]);
    }
}

template <class Walker, class State>
void WindX_Lines(Walker& W, State& S) {
    for (int K = 0; K <= 3; ++K) {
        auto& X = S.Extra_Wind[K];
        Line(W, X.Active, X.UDP_Port, X.Msg, X.Reference, X.Offset_Type, X.dHdg, X.dSpd, X.Interval, X.Sync);
        Line(W, S.Sync_MWV[1][K], S.Sync_MWD[1][K]);
    }
}

// The walk as a function of either kind.
template <class Walk>
constexpr Setup_Section Section(std::string_view Marker, Walk Fields_Of) {
    return {Marker, Fields_Of, Fields_Of};
}

// clang-format off
constexpr Setup_Section Sections[] = {
    Section("REM Mode", [](auto& W, auto& S) { Line(W, S.Mode); }),
    Section("REM Comport settings", [](auto& W, auto& S) {
        Line(W, S.Comport_Count);
        Serial_Port_Lines(W, S);
    }),
    Section("REM TCP/IP settings", [](auto& W, auto& S) {
        Line(W, S.Port_Table[17].Present, S.Port_Table[17].Enabled, S.TCP_Port);
    }),
    Section("REM Sensor settings", [](auto& W, auto& S) { Sensor_Lines(W, S, 1, 8); }),
    Section("REM Open forms", [](auto& W, auto& S) { Open_Form_Lines(W, S); }),
    Section("REM Public variables", [](auto& W, auto& S) {
        Line(W, S.Start_Lat, S.Start_Lon);
        Line(W, S.Max_Speed_Ahead, S.Max_Speed_Astern, S.Max_Rudder);
        Line(W, S.Magnetic_Variation);
        Line(W, S.Lat_Offset, S.Lon_Offset, S.Gyro_Offset[1], S.Gyro_Offset[2], S.Log_Offset[1]);
    }),
    Section("REM Startpositions", [](auto& W, auto& S) {
        for (int I = 1; I <= 2; ++I) Line(W, S.GNSS_Start_Lat[I], S.GNSS_Start_Lon[I]);
    }),
    Section("REM ARPA settings", [](auto& W, auto& S) {
        Line(W, S.ARPA_Target_Count);
        Target_Lines(W, S, [](auto& V, auto& T) {
            Line(V, T.Name, T.Reference, T.Status, T.Acquisition, T.Bearing, T.Course, T.Distance, T.Lat,
                 T.Lat_Rad, T.Lon, T.Lon_Rad, T.Speed, T.CPA, T.TCPA);
        });
    }),
    Section("REM Active messages", [](auto& W, auto& S) { Active_Message_Lines(W, S); }),
    Section("REM GSA messages", [](auto& W, auto& S) { Both_Lines(W, S.GSA_Enabled, S.GSA_Interval); }),
    Section("REM GSV messages", [](auto& W, auto& S) { Both_Lines(W, S.GSV_Enabled, S.GSV_Interval); }),
    Section("REM TTD messages", [](auto& W, auto& S) { Line(W, S.TTD_Enabled, S.TTD_Interval); }),
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
        Line(W, S.GNSS_Decimals_Position[1], S.GNSS_Decimals_Position[2]);
        Line(W, S.GNSS_Decimals_Time[1], S.GNSS_Decimals_Time[2]);
        Line(W, S.Gyro_Decimals[1], S.Gyro_Decimals[2]);
    }),
    Section("REM THS messages", [](auto& W, auto& S) { Both_Lines(W, S.THS_Enabled, S.THS_Interval); }),
    Section("REM frmTCPIP position", [](auto& W, auto& S) { Line(W, S.frmTCPIP_Left, S.frmTCPIP_Top); }),
    Section("REM Autopilot", [](auto& W, auto& S) { Line(W, S.Autopilot_Mode, S.Route_File); }),
    Section("REM Current navdata", [](auto& W, auto& S) { Current_Navdata_Lines(W, S); }),
    Section("REM Noise", [](auto& W, auto& S) { Noise_Lines(W, S); }),
    Section("REM ShipNoise", [](auto& W, auto& S) {
        Line(W, S.Ship_SOG_Noise_Index, S.Ship_ROT_Noise_Index);
    }),
    Section("REM WindReference", [](auto& W, auto& S) { Line(W, S.Wind_Relative_Ref[1]); }),
    Section("REM Talker ID", [](auto& W, auto& S) {
        Line(W, S.GNSS_Talker[1], S.GNSS_Talker[2], S.Gyro_Talker[1], S.Gyro_Talker[2]);
        Line(W, S.Log_Talker[1], S.Echo_Talker[1], S.ARPA_Talker, S.Wind_Talker[1]);
    }),
    Section("REM UTCOffset", [](auto& W, auto& S) { Line(W, S.UTC_Offset_Hours); }),
    Section("REM GST messages", [](auto& W, auto& S) { Both_Lines(W, S.GST_Enabled, S.GST_Interval); }),
    Section("REM TLB messages", [](auto& W, auto& S) { Line(W, S.TLB_Enabled, S.TLB_Interval); }),
    Section("REM TTD Protocol 1", [](auto& W, auto& S) { Line(W, S.TTD_Protocol1_Enabled); }),
    Section("REM TTD Protocol 1 Invalid data", [](auto& W, auto& S) {
        Target_Lines(W, S, [](auto& V, auto& T) { Line(V, T.CPA_NA, T.TCPA_NA); });
    }),
    Section("REM Random ARPA", [](auto& W, auto& S) { Random_ARPA_Lines(W, S); }),
    Section("REM UDP settings", [](auto& W, auto& S) { UDP_Link_Lines(W, S, 1, 1); }),
    Section("REM Use UTC", [](auto& W, auto& S) { Line(W, S.Use_UTC); }),
    Section("REM Extended UDP settings", [](auto& W, auto& S) { UDP_Link_Lines(W, S, 2, 8); }),
    Section("REM IEC 61162-450 extended", [](auto& W, auto& S) {
        Line(W, S.IEC450_Enabled, S.Use_c_Tag, S.Use_d_Tag, S.Use_d2_Tag, S.d_Tag, S.d2_Tag, S.Use_g_Tag,
             S.Use_n_Tag, S.Use_s_Tag, S.s_Tag, S.Use_t_Tag, S.t_Tag);
    }),
    Section("REM UDP Mode", [](auto& W, auto& S) { Line(W, S.UDP_Mode, S.UDP_Remote_Host); }),
    Section("REM LatLon Format", [](auto& W, auto& S) { Line(W, S.LatLon_Format); }),
    Section("REM UdPbC header", [](auto& W, auto& S) { Line(W, S.UdPbC_Header_Enabled); }),
    Section("REM VLW Message", [](auto& W, auto& S) { Line(W, S.VLW_Enabled[1], S.VLW_Interval[1]); }),
    Section("REM UTC Offset Minutes", [](auto& W, auto& S) { Line(W, S.UTC_Offset_Minutes); }),
    Section("REM Gullwatch Connection", [](auto& W, auto& S) {
        Line(W, S.Gullwatch_Remote_PC, S.Gullwatch_Remote_IP, S.Gullwatch_Bind_Port, S.Gullwatch_Remote_Port);
    }),
    Section("REM UTC Offset GNSS2", [](auto& W, auto& S) {
        Line(W, S.GNSS2_UTC_Offset_Hours, S.GNSS2_UTC_Offset_Minutes, S.GNSS2_UTC_Offset_Seconds);
    }),
    Section("REM Sensor settings v6", [](auto& W, auto& S) { Sensor_Lines(W, S, 9, 11); }),
    Section("REM Utvidelser v6", [](auto& W, auto& S) { Second_Instance_Lines(W, S); }),
    Section("REM Extended UDP settings v6", [](auto& W, auto& S) { UDP_Link_Lines(W, S, 9, 11); }),
    Section("REM MWD", [](auto& W, auto& S) { Both_Lines(W, S.MWD_Enabled, S.MWD_Interval); }),
    Section("REM GNSS Configuration", [](auto& W, auto& S) { GNSS_Configuration_Lines(W, S); }),
    Section("REM GNSSX", [](auto& W, auto& S) { GNSSX_Lines(W, S); }),
    Section("REM GNSSX Configuration", [](auto& W, auto& S) { GNSSX_Configuration_Lines(W, S); }),
    Section("REM GyroX", [](auto& W, auto& S) { GyroX_Lines(W, S); }),
    Section("REM LogX", [](auto& W, auto& S) { LogX_Lines(W, S); }),
    Section("REM EchosounderX", [](auto& W, auto& S) { EchosounderX_Lines(W, S); }),
    Section("REM WindX", [](auto& W, auto& S) { WindX_Lines(W, S); }),
};
// clang-format on

} // namespace

std::span<const Setup_Section> Setup_Sections() { return Sections; }

} // namespace brinewright
