#pragma once

#include "platform/table.hpp"

#include <array>
#include <cstdint>
#include <string>

namespace brinewright {

// What the kinds of additional sensors differ in here: the names of their offsets from the main sensor, of
// which one has one only.
using Extra_Kind = std::array<const char*, 2>;
inline constexpr Extra_Kind Extra_GNSS_Kind{"dN", "dE"};     // metres
inline constexpr Extra_Kind Extra_Gyro_Kind{"dHdg", "dRot"}; // degrees, degrees per minute
inline constexpr Extra_Kind Extra_Log_Kind{"dSpd", "dHdg"};  // knots, degrees
inline constexpr Extra_Kind Extra_Echo_Kind{"dDepth"};       // metres
inline constexpr Extra_Kind Extra_Wind_Kind{"dHdg", "dSpd"}; // degrees, knots

// One additional sensor of any kind.
struct Extra_Sensor {
    bool Active = false;
    std::int32_t UDP_Port = 0;    // remote port
    std::string Msg;              // for instance "GGA+VTG"
    std::int16_t Reference = 0;   // main sensor, 1 or 2
    std::int16_t Offset_Type = 0; // 0 random, 1 fixed
    std::int16_t Interval = 0;    // ListIndex
    bool Sync = false;            // sends right behind the main sensor's sentence
};

template <const Extra_Kind& Kind>
struct Extra_Sensor_Of : Extra_Sensor {
    Table<float, 0, 1> Offset;
};

template <const Extra_Kind& Kind, class Visitor>
void Visit_Record(Extra_Sensor_Of<Kind>& R, Visitor&& Visit) {
    Visit_Record(static_cast<Extra_Sensor&>(R), Visit);
    for (int I = 0; I <= 1; ++I)
        if (Kind[static_cast<std::size_t>(I)]) Visit(Kind[static_cast<std::size_t>(I)], R.Offset[I]);
}

// Whether additional sensor k sends with a sentence of main sensor i: [i][k].
using Sync_Table = Per_Instance<Table<bool, 0, 3>>;

// The additional sensors, element k for sensor k (0 to 3), named 3 to 6.
struct Extra_State {
    Table<Extra_Sensor_Of<Extra_GNSS_Kind>, 0, 3> Extra_GNSS;
    Table<Extra_Sensor_Of<Extra_Gyro_Kind>, 0, 3> Extra_Gyro;
    Table<Extra_Sensor_Of<Extra_Log_Kind>, 0, 3> Extra_Log;
    Table<Extra_Sensor_Of<Extra_Echo_Kind>, 0, 3> Extra_Echo;
    Table<Extra_Sensor_Of<Extra_Wind_Kind>, 0, 3> Extra_Wind;
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

} // namespace brinewright
