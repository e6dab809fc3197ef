#pragma once

#include "platform/table.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

// One satellite of the sky. Angles in degrees.
struct Sky_Satellite {
    bool Used = false; // a window has it in use
    bool In_View = false;
    float Elevation = 0;
    float Azimuth = 0;
    float SNR = 0;                  // dB
    std::int16_t Max_Elevation = 0; // top of the pass
    bool Rising = false;
    bool Az_Increasing = false;
};

template <class Visitor>
void Visit_Record(Sky_Satellite& R, Visitor&& Visit) {
    Visit("Used", R.Used);
    Visit("In_View", R.In_View);
    Visit("Elevation", R.Elevation);
    Visit("Azimuth", R.Azimuth);
    Visit("SNR", R.SNR);
    Visit("Max_Elevation", R.Max_Elevation);
    Visit("Rising", R.Rising);
    Visit("Az_Increasing", R.Az_Increasing);
}

// Positions, sky and constellations. Positions in degrees, north and east positive. A slot is a receiver: 1
// and 2 have windows, 3 to 6 are the additional sensors; systems are 1 GPS, 2 GLONASS, 3 Galileo, 4 BDS, 5
// QZSS and 6 NavIC.
struct GNSS_State {
    Per_Instance<double> GNSS_Start_Lat; // true position
    Per_Instance<double> GNSS_Start_Lon;
    Per_Instance<double> GNSS_Lat; // reported position: the true one plus noise
    Per_Instance<double> GNSS_Lon;
    Per_Instance<float> GNSS_SOG;          // knots
    Per_Instance<float> GNSS_COG;          // degrees
    Table<Sky_Satellite, 1, 88> Sky_Table; // by satellite identifier
    Table<std::int16_t, 1, 88> Svs_In_Use; // identifiers, 0 = empty; shared by both windows
    Table<std::int16_t, 1, 88> Svs_In_View;
    Table<Table<bool, 1, 6>, 1, 6> GNSS_System_Used;         // [system][slot]
    Table<Table<std::int16_t, 1, 6>, 1, 6> GNSS_System_Mode; // [system][slot]: ListIndex of the mode list
    Table<std::string, 1, 6> GNS_Mode_Indicator;             // [slot]: one letter a system
    Table<std::string, 1, 6> GNSS_Systems_Text;              // [slot]: names joined by "-"
    Table<std::string, 1, 6> GNS_Talker;                     // [slot]
    std::int16_t GNSS_Config_Index = 0;                      // slot that the open dialog works on
};

template <class Visitor>
void Visit_State(GNSS_State& S, Visitor&& Visit) {
    Visit("GNSS_Start_Lat", S.GNSS_Start_Lat);
    Visit("GNSS_Start_Lon", S.GNSS_Start_Lon);
    Visit("GNSS_Lat", S.GNSS_Lat);
    Visit("GNSS_Lon", S.GNSS_Lon);
    Visit("GNSS_SOG", S.GNSS_SOG);
    Visit("GNSS_COG", S.GNSS_COG);
    Visit("Sky_Table", S.Sky_Table);
    Visit("Svs_In_Use", S.Svs_In_Use);
    Visit("Svs_In_View", S.Svs_In_View);
    Visit("GNSS_System_Used", S.GNSS_System_Used);
    Visit("GNSS_System_Mode", S.GNSS_System_Mode);
    Visit("GNS_Mode_Indicator", S.GNS_Mode_Indicator);
    Visit("GNSS_Systems_Text", S.GNSS_Systems_Text);
    Visit("GNS_Talker", S.GNS_Talker);
    Visit("GNSS_Config_Index", S.GNSS_Config_Index);
}

} // namespace brinewright
