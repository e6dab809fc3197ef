#pragma once

#include "platform/table.hpp"

#include <cstdint>
#include <string>

namespace brinewright {

// Talkers and numbers of decimals.
struct Talker_State {
    Per_Instance<std::string> GNSS_Talker;
    Per_Instance<std::string> Gyro_Talker;
    Per_Instance<std::string> Log_Talker;
    Per_Instance<std::string> Echo_Talker;
    Per_Instance<std::string> Wind_Talker;
    std::string ARPA_Talker;
    Per_Instance<std::int16_t> GNSS_Decimals_Position; // of latitude and longitude minutes
    Per_Instance<std::int16_t> GNSS_Decimals_Time;     // of seconds in time fields
    Per_Instance<std::int16_t> Gyro_Decimals;          // of heading and rate of turn
};

template <class Visitor>
void Visit_State(Talker_State& S, Visitor&& Visit) {
    Visit("GNSS_Talker", S.GNSS_Talker);
    Visit("Gyro_Talker", S.Gyro_Talker);
    Visit("Log_Talker", S.Log_Talker);
    Visit("Echo_Talker", S.Echo_Talker);
    Visit("Wind_Talker", S.Wind_Talker);
    Visit("ARPA_Talker", S.ARPA_Talker);
    Visit("GNSS_Decimals_Position", S.GNSS_Decimals_Position);
    Visit("GNSS_Decimals_Time", S.GNSS_Decimals_Time);
    Visit("Gyro_Decimals", S.Gyro_Decimals);
}

} // namespace brinewright
