#include "gnss/gnss_state.hpp"
#include "links/setup_file/setup_file.hpp"
#include "links/setup_file/setup_sentences.hpp"
#include "ownship/navdata_state.hpp"
#include "radar/radar_state.hpp"
#include "sensors/echosounder/echo_state.hpp"
#include "sensors/gyro/gyro_state.hpp"
#include "sensors/log/log_state.hpp"
#include "sensors/wind/wind_state.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/shell_state.hpp"

namespace brinewright {

namespace {

// Calls Of(text, default) for every text without which a sentence would leave without talker or mode.
template <class Visitor>
void Each_Default_Text(Simulator_State& S, Visitor Of) {
    for (const int I : {1, 2}) {
        Of(S.Of<GNSS_State>().GNSS_Talker[I], "GP");
        Of(S.Of<Gyro_State>().Gyro_Talker[I], "HE");
        Of(S.Of<Log_State>().Log_Talker[I], "VW");
        Of(S.Of<Echo_State>().Echo_Talker[I], "SD");
        Of(S.Of<Wind_State>().Wind_Talker[I], "WI");
    }
    Of(S.Of<Radar_State>().ARPA_Talker, "RA");
    for (int Slot = 1; Slot <= 6; ++Slot) {
        Of(S.Of<GNSS_State>().GNS_Talker[Slot], "GP");
        Of(S.Of<GNSS_State>().GNS_Mode_Indicator[Slot], "A");
        Of(S.Of<GNSS_State>().GNSS_Systems_Text[Slot], "GPS");
    }
}

} // namespace

// A setup from before the GNSS configuration says nothing of its texts.
void Repair_Talkers(Simulator_State& State) {
    Each_Default_Text(State, [](std::string& Text, const char* Default) {
        if (Text.empty()) Text = Default;
    });
}

void Load_Default_Data(Simulator_State& State, Window_Span Windows) {
    Navdata_State& Ship = State.Of<Navdata_State>();
    Ship.Max_Speed_Ahead = 40;
    Ship.Max_Speed_Astern = 5;
    Ship.Max_Rudder = 30;
    Ship.Nav_Lat = 30.0 / 60 / 60 + 35.0 / 60 + 62; // 62 35 30N
    Ship.Nav_Lon = 0.0 / 60 / 60 + 10.0 / 60 + 6;   // 006 10 00E
    State.Of<Link_State>().TCP_Port = 8040;
    Load_Default_Intervals(State, Windows);
    for (int I = 1; I <= 2; ++I) {
        State.Of<GNSS_State>().GNSS_Decimals_Position[I] = 4;
        State.Of<Gyro_State>().Gyro_Decimals[I] = 1;
    }
    Each_Default_Text(State, [](std::string& Text, const char* Default) { Text = Default; });
    for (int Slot = 1; Slot <= 6; ++Slot) State.Of<GNSS_State>().GNSS_System_Mode[1][Slot] = 1;
    State.Of<Shell_State>().Mode = "Ship";
}

} // namespace brinewright
