#pragma once

#include "platform/table.hpp"

#include <cstdint>

namespace brinewright {

// The distance counters of the logs, in nautical miles. Nothing of it is kept over a restart.
struct Log_State {
    Per_Instance<std::int16_t> Log_VLW_Seconds; // between two VLW sentences of the log
    Per_Instance<float> Log_Total_Water;
    Per_Instance<float> Log_Total_Ground;
    Per_Instance<float> Log_Trip_Water;
    Per_Instance<float> Log_Trip_Ground;
};

template <class Visitor>
void Visit_State(Log_State& S, Visitor&& Visit) {
    Visit("Log_VLW_Seconds", S.Log_VLW_Seconds);
    Visit("Log_Total_Water", S.Log_Total_Water);
    Visit("Log_Total_Ground", S.Log_Total_Ground);
    Visit("Log_Trip_Water", S.Log_Trip_Water);
    Visit("Log_Trip_Ground", S.Log_Trip_Ground);
}

} // namespace brinewright
