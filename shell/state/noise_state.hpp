#pragma once

#include "platform/table.hpp"

#include <cstdint>

namespace brinewright {

// Noise settings. An index or a level of 16 bits is a ListIndex and may, coming from a file, be anything.
struct Noise_State {
    Per_Instance<bool> GNSS_Noise_Enabled;
    Per_Instance<std::int16_t> GNSS_Noise_Index;
    Per_Instance<float> GNSS_Noise_Max; // metres
    Per_Instance<bool> GNSS_Noise_Accumulated;
    Per_Instance<bool> Gyro_Noise_Enabled;
    Per_Instance<bool> Gyro_Noise_Accumulated;
    Per_Instance<Table<std::int16_t, 0, 3>> Gyro_Noise_Level; // heading, rate of turn, roll, pitch
    Per_Instance<bool> Log_Noise_Enabled;
    Per_Instance<float> Log_Noise_Level; // knots
    Per_Instance<bool> Echo_Noise_Enabled;
    Per_Instance<std::int16_t> Echo_Noise_Level;
    Per_Instance<bool> Wind_Noise_Enabled;
    Per_Instance<Table<std::int16_t, 0, 1>> Wind_Noise_Level; // direction, speed
    float Ship_SOG_Noise_Index = 0;                           // a ListIndex, held as a float
    float Ship_ROT_Noise_Index = 0;                           // a ListIndex, held as a float
};

template <class Visitor>
void Visit_State(Noise_State& S, Visitor&& Visit) {
    Visit("GNSS_Noise_Enabled", S.GNSS_Noise_Enabled);
    Visit("GNSS_Noise_Index", S.GNSS_Noise_Index);
    Visit("GNSS_Noise_Max", S.GNSS_Noise_Max);
    Visit("GNSS_Noise_Accumulated", S.GNSS_Noise_Accumulated);
    Visit("Gyro_Noise_Enabled", S.Gyro_Noise_Enabled);
    Visit("Gyro_Noise_Accumulated", S.Gyro_Noise_Accumulated);
    Visit("Gyro_Noise_Level", S.Gyro_Noise_Level);
    Visit("Log_Noise_Enabled", S.Log_Noise_Enabled);
    Visit("Log_Noise_Level", S.Log_Noise_Level);
    Visit("Echo_Noise_Enabled", S.Echo_Noise_Enabled);
    Visit("Echo_Noise_Level", S.Echo_Noise_Level);
    Visit("Wind_Noise_Enabled", S.Wind_Noise_Enabled);
    Visit("Wind_Noise_Level", S.Wind_Noise_Level);
    Visit("Ship_SOG_Noise_Index", S.Ship_SOG_Noise_Index);
    Visit("Ship_ROT_Noise_Index", S.Ship_ROT_Noise_Index);
}

} // namespace brinewright
