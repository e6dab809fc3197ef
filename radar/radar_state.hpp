#pragma once

#include "platform/table.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

// One radar target. The _NA flags change only what is reported; the target keeps moving.
struct ARPA_Target_Record {
    std::string Name;
    double Lat = 0;     // degrees, north positive
    double Lon = 0;     // degrees, east positive
    double Lat_Rad = 0; // the same in radians; whoever writes one writes both
    double Lon_Rad = 0;
    double Distance = 0;         // nautical miles from own ship
    double Bearing = 0;          // degrees from own ship
    double Speed = 0;            // knots
    double Course = 0;           // degrees
    float ROT = 0;               // degrees per minute, to starboard positive
    float CPA = 0;               // nautical miles; -9999 when out of reach
    float TCPA = 0;              // minutes; -9999 when out of reach
    float Rel_Speed = 0;         // knots
    float Rel_Course = 0;        // degrees
    std::string Status;          // one character: T tracking, Q acquiring, L lost
    std::string Reference;       // one character: blank or R
    std::string Acquisition;     // one character: A automatic, M manual, R reported
    float AIS_Heading = 0;       // degrees
    std::int16_t AIS_Mode = 0;   // 0 to 7
    std::int16_t Op_Mode = 0;    // 0 autonomous, 1 test
    std::int16_t Speed_Mode = 0; // 0 true, 1 relative
    std::int16_t Stab_Mode = 0;  // 0 over ground, 1 through water
    std::int16_t Corr_No = 0;    // 0 to 255
    bool Distance_NA = false;
    bool Bearing_NA = false;
    bool Speed_NA = false;
    bool Course_NA = false;
    bool Hdg_NA = false; // excludes Hdg_No_Data
    bool Hdg_No_Data = false;
    bool CPA_NA = false;
    bool TCPA_NA = false;
};

// Radar targets.
struct Radar_State {
    std::int16_t ARPA_Target_Count = 0;           // live targets, 0 to 10
    Table<ARPA_Target_Record, 1, 50> ARPA_Target; // the window uses 1 to 10
    std::int16_t ARPA_Random_Count = 0;           // live random targets, 0 to 100
    std::int16_t ARPA_Max_Range = 0;              // nautical miles, of new random targets
    std::int16_t ARPA_Max_Speed = 0;              // knots
    bool TTD_Protocol1_Enabled = false;           // a second TTD sentence with CPA and TCPA
    std::string ARPA_Talker;
    // An interval is the place in the sentence's list of intervals; as it may come from a file it can be
    // anything.
    bool TTM_Enabled = false;
    std::int16_t TTM_Interval = 0;
    bool TTD_Enabled = false;
    std::int16_t TTD_Interval = 0;
    bool TLB_Enabled = false;
    std::int16_t TLB_Interval = 0;
};

} // namespace brinewright
