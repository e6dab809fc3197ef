#include "shell/talker_defaults.hpp"

#include "shell/simulator_state.hpp"

namespace brinewright {

void Repair_Talkers(Simulator_State& S) {
    const auto Repair = [](std::string& Talker, const char* Default) {
        if (Talker.empty()) Talker = Default;
    };
    for (const int I : {1, 2}) {
        Repair(S.GNSS_Talker[I], "GP");
        Repair(S.Gyro_Talker[I], "HE");
        Repair(S.Log_Talker[I], "VW");
        Repair(S.Echo_Talker[I], "SD");
        Repair(S.Wind_Talker[I], "WI");
    }
    Repair(S.ARPA_Talker, "RA");
    // A setup from before the GNSS configuration says nothing of these; GNS would leave without talker and
    // mode.
    for (int Slot = 1; Slot <= 6; ++Slot) {
        Repair(S.GNS_Talker[Slot], "GP");
        Repair(S.GNS_Mode_Indicator[Slot], "A");
        Repair(S.GNSS_Systems_Text[Slot], "GPS");
    }
}

} // namespace brinewright
