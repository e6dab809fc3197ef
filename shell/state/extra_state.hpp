#pragma once

#include "platform/table.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

// One additional GNSS receiver.
struct Extra_GNSS_Record {
    bool Active = false;
    std::int32_t UDP_Port = 0;    // remote port
    std::string Msg;              // for instance "GGA+VTG"
    std::int16_t Reference = 0;   // main sensor, 1 or 2
    std::int16_t Offset_Type = 0; // 0 random, 1 fixed
    float dN = 0;                 // metres
    float dE = 0;                 // metres
    std::int16_t Interval = 0;    // ListIndex
    bool Sync = false;            // sends right behind the main sensor's sentence
};

template <class Visitor>
void Visit_Record(Extra_GNSS_Record& R, Visitor&& Visit) {
    Visit("Active", R.Active);
    Visit("UDP_Port", R.UDP_Port);
    Visit("Msg", R.Msg);
    Visit("Reference", R.Reference);
    Visit("Offset_Type", R.Offset_Type);
    Visit("dN", R.dN);
    Visit("dE", R.dE);
    Visit("Interval", R.Interval);
    Visit("Sync", R.Sync);
}

// One additional gyro.
struct Extra_Gyro_Record {
    bool Active = false;
    std::int32_t UDP_Port = 0;    // remote port
    std::string Msg;              // for instance "HDT+ROT"
    std::int16_t Reference = 0;   // main sensor, 1 or 2
    std::int16_t Offset_Type = 0; // 0 random, 1 fixed
    float dHdg = 0;               // degrees
    float dRot = 0;               // degrees per minute
    std::int16_t Interval = 0;    // ListIndex
    bool Sync = false;            // sends right behind the main sensor's sentence
};

template <class Visitor>
void Visit_Record(Extra_Gyro_Record& R, Visitor&& Visit) {
    Visit("Active", R.Active);
    Visit("UDP_Port", R.UDP_Port);
    Visit("Msg", R.Msg);
    Visit("Reference", R.Reference);
    Visit("Offset_Type", R.Offset_Type);
    Visit("dHdg", R.dHdg);
    Visit("dRot", R.dRot);
    Visit("Interval", R.Interval);
    Visit("Sync", R.Sync);
}

// One additional log.
struct Extra_Log_Record {
    bool Active = false;
    std::int32_t UDP_Port = 0;    // remote port
    std::string Msg;              // for instance "VHW"
    std::int16_t Reference = 0;   // main sensor, 1 or 2
    std::int16_t Offset_Type = 0; // 0 random, 1 fixed
    float dSpd = 0;               // knots
    float dHdg = 0;               // degrees
    std::int16_t Interval = 0;    // ListIndex
    bool Sync = false;            // sends right behind the main sensor's sentence
};

template <class Visitor>
void Visit_Record(Extra_Log_Record& R, Visitor&& Visit) {
    Visit("Active", R.Active);
    Visit("UDP_Port", R.UDP_Port);
    Visit("Msg", R.Msg);
    Visit("Reference", R.Reference);
    Visit("Offset_Type", R.Offset_Type);
    Visit("dSpd", R.dSpd);
    Visit("dHdg", R.dHdg);
    Visit("Interval", R.Interval);
    Visit("Sync", R.Sync);
}

// One additional echo sounder.
struct Extra_Echo_Record {
    bool Active = false;
    std::int32_t UDP_Port = 0;    // remote port
    std::string Msg;              // for instance "DBT"
    std::int16_t Reference = 0;   // main sensor, 1 or 2
    std::int16_t Offset_Type = 0; // 0 random, 1 fixed
    float dDepth = 0;             // metres
    std::int16_t Interval = 0;    // ListIndex
    bool Sync = false;            // sends right behind the main sensor's sentence
};

template <class Visitor>
void Visit_Record(Extra_Echo_Record& R, Visitor&& Visit) {
    Visit("Active", R.Active);
    Visit("UDP_Port", R.UDP_Port);
    Visit("Msg", R.Msg);
    Visit("Reference", R.Reference);
    Visit("Offset_Type", R.Offset_Type);
    Visit("dDepth", R.dDepth);
    Visit("Interval", R.Interval);
    Visit("Sync", R.Sync);
}

// One additional wind gauge.
struct Extra_Wind_Record {
    bool Active = false;
    std::int32_t UDP_Port = 0;    // remote port
    std::string Msg;              // for instance "MWV"
    std::int16_t Reference = 0;   // main sensor, 1 or 2
    std::int16_t Offset_Type = 0; // 0 random, 1 fixed
    float dHdg = 0;               // degrees
    float dSpd = 0;               // knots
    std::int16_t Interval = 0;    // ListIndex
    bool Sync = false;            // sends right behind the main sensor's sentence
};

template <class Visitor>
void Visit_Record(Extra_Wind_Record& R, Visitor&& Visit) {
    Visit("Active", R.Active);
    Visit("UDP_Port", R.UDP_Port);
    Visit("Msg", R.Msg);
    Visit("Reference", R.Reference);
    Visit("Offset_Type", R.Offset_Type);
    Visit("dHdg", R.dHdg);
    Visit("dSpd", R.dSpd);
    Visit("Interval", R.Interval);
    Visit("Sync", R.Sync);
}

// Whether additional sensor k sends with a sentence of main sensor i: [i][k].
using Sync_Table = Per_Instance<Table<bool, 0, 3>>;

// The additional sensors, element k for sensor k (0 to 3), named 3 to 6.
struct Extra_State {
    Table<Extra_GNSS_Record, 0, 3> Extra_GNSS;
    Table<Extra_Gyro_Record, 0, 3> Extra_Gyro;
    Table<Extra_Log_Record, 0, 3> Extra_Log;
    Table<Extra_Echo_Record, 0, 3> Extra_Echo;
    Table<Extra_Wind_Record, 0, 3> Extra_Wind;
    Sync_Table Sync_GGA;
    Sync_Table Sync_GLL;
    Sync_Table Sync_RMC;
    Sync_Table Sync_GNS;
    Sync_Table Sync_HDT;
    Sync_Table Sync_THS;
    Sync_Table Sync_ROT;
    Sync_Table Sync_VHW;
    Sync_Table Sync_VBW;
    Sync_Table Sync_DBT;
    Sync_Table Sync_DPT;
    Sync_Table Sync_MWV;
    Sync_Table Sync_MWD;
    bool Extra_GNSS_Loaded = false; // while its window is open
    bool Extra_Gyro_Loaded = false;
    bool Extra_Log_Loaded = false;
    bool Extra_Echo_Loaded = false;
    bool Extra_Wind_Loaded = false;
};

template <class Visitor>
void Visit_State(Extra_State& S, Visitor&& Visit) {
    Visit("Extra_GNSS", S.Extra_GNSS);
    Visit("Extra_Gyro", S.Extra_Gyro);
    Visit("Extra_Log", S.Extra_Log);
    Visit("Extra_Echo", S.Extra_Echo);
    Visit("Extra_Wind", S.Extra_Wind);
    Visit("Sync_GGA", S.Sync_GGA);
    Visit("Sync_GLL", S.Sync_GLL);
    Visit("Sync_RMC", S.Sync_RMC);
    Visit("Sync_GNS", S.Sync_GNS);
    Visit("Sync_HDT", S.Sync_HDT);
    Visit("Sync_THS", S.Sync_THS);
    Visit("Sync_ROT", S.Sync_ROT);
    Visit("Sync_VHW", S.Sync_VHW);
    Visit("Sync_VBW", S.Sync_VBW);
    Visit("Sync_DBT", S.Sync_DBT);
    Visit("Sync_DPT", S.Sync_DPT);
    Visit("Sync_MWV", S.Sync_MWV);
    Visit("Sync_MWD", S.Sync_MWD);
    Visit("Extra_GNSS_Loaded", S.Extra_GNSS_Loaded);
    Visit("Extra_Gyro_Loaded", S.Extra_Gyro_Loaded);
    Visit("Extra_Log_Loaded", S.Extra_Log_Loaded);
    Visit("Extra_Echo_Loaded", S.Extra_Echo_Loaded);
    Visit("Extra_Wind_Loaded", S.Extra_Wind_Loaded);
}

} // namespace brinewright
