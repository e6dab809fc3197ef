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

template <class Visitor>
void Visit_Record(ARPA_Target_Record& R, Visitor&& Visit) {
    Visit("Name", R.Name);
    Visit("Lat", R.Lat);
    Visit("Lon", R.Lon);
    Visit("Lat_Rad", R.Lat_Rad);
    Visit("Lon_Rad", R.Lon_Rad);
    Visit("Distance", R.Distance);
    Visit("Bearing", R.Bearing);
    Visit("Speed", R.Speed);
    Visit("Course", R.Course);
    Visit("ROT", R.ROT);
    Visit("CPA", R.CPA);
    Visit("TCPA", R.TCPA);
    Visit("Rel_Speed", R.Rel_Speed);
    Visit("Rel_Course", R.Rel_Course);
    Visit("Status", R.Status);
    Visit("Reference", R.Reference);
    Visit("Acquisition", R.Acquisition);
    Visit("AIS_Heading", R.AIS_Heading);
    Visit("AIS_Mode", R.AIS_Mode);
    Visit("Op_Mode", R.Op_Mode);
    Visit("Speed_Mode", R.Speed_Mode);
    Visit("Stab_Mode", R.Stab_Mode);
    Visit("Corr_No", R.Corr_No);
    Visit("Distance_NA", R.Distance_NA);
    Visit("Bearing_NA", R.Bearing_NA);
    Visit("Speed_NA", R.Speed_NA);
    Visit("Course_NA", R.Course_NA);
    Visit("Hdg_NA", R.Hdg_NA);
    Visit("Hdg_No_Data", R.Hdg_No_Data);
    Visit("CPA_NA", R.CPA_NA);
    Visit("TCPA_NA", R.TCPA_NA);
}

// Radar targets.
struct Radar_State {
    std::int16_t ARPA_Target_Count = 0;           // live targets, 0 to 10
    Table<ARPA_Target_Record, 1, 50> ARPA_Target; // the window uses 1 to 10
    std::int16_t ARPA_Random_Count = 0;           // live random targets, 0 to 100
    std::int16_t ARPA_Max_Range = 0;              // nautical miles, of new random targets
    std::int16_t ARPA_Max_Speed = 0;              // knots
    bool TTD_Protocol1_Enabled = false;           // a second TTD sentence with CPA and TCPA
};

template <class Visitor>
void Visit_State(Radar_State& S, Visitor&& Visit) {
    Visit("ARPA_Target_Count", S.ARPA_Target_Count);
    Visit("ARPA_Target", S.ARPA_Target);
    Visit("ARPA_Random_Count", S.ARPA_Random_Count);
    Visit("ARPA_Max_Range", S.ARPA_Max_Range);
    Visit("ARPA_Max_Speed", S.ARPA_Max_Speed);
    Visit("TTD_Protocol1_Enabled", S.TTD_Protocol1_Enabled);
}

} // namespace brinewright
