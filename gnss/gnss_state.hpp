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
    Per_Instance<std::string> GNSS_Talker;
    Per_Instance<std::int16_t> GNSS_Decimals_Position; // of latitude and longitude minutes
    Per_Instance<std::int16_t> GNSS_Decimals_Time;     // of seconds in time fields
    Per_Instance<bool> GNSS_Noise_Enabled;
    Per_Instance<std::int16_t> GNSS_Noise_Index;
    Per_Instance<float> GNSS_Noise_Max; // metres
    Per_Instance<bool> GNSS_Noise_Accumulated;
    // An interval is the place in the sentence's list of intervals; as it may come from a file it can be
    // anything.
    Per_Instance<bool> GGA_Enabled;
    Per_Instance<std::int16_t> GGA_Interval;
    Per_Instance<bool> GLL_Enabled;
    Per_Instance<std::int16_t> GLL_Interval;
    Per_Instance<bool> VTG_Enabled;
    Per_Instance<std::int16_t> VTG_Interval;
    Per_Instance<bool> RMC_Enabled;
    Per_Instance<std::int16_t> RMC_Interval;
    Per_Instance<bool> ZDA_Enabled;
    Per_Instance<std::int16_t> ZDA_Interval;
    Per_Instance<bool> GNS_Enabled;
    Per_Instance<std::int16_t> GNS_Interval;
    Per_Instance<bool> DTM_Enabled;
    Per_Instance<std::int16_t> DTM_Interval;
    Per_Instance<bool> GSA_Enabled;
    Per_Instance<std::int16_t> GSA_Interval;
    Per_Instance<bool> GSV_Enabled;
    Per_Instance<std::int16_t> GSV_Interval;
    Per_Instance<bool> GST_Enabled;
    Per_Instance<std::int16_t> GST_Interval;
};

} // namespace brinewright
