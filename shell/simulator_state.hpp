#pragma once

#include "shell/state/autopilot_state.hpp"
#include "shell/state/extra_state.hpp"
#include "shell/state/gnss_state.hpp"
#include "shell/state/gullwatch_state.hpp"
#include "shell/state/iec450_state.hpp"
#include "shell/state/link_state.hpp"
#include "shell/state/log_state.hpp"
#include "shell/state/message_state.hpp"
#include "shell/state/navdata_state.hpp"
#include "shell/state/noise_state.hpp"
#include "shell/state/radar_state.hpp"
#include "shell/state/shell_state.hpp"
#include "shell/state/talker_state.hpp"
#include "shell/state/utc_state.hpp"

namespace brinewright {

// The public state of the whole system, read and written directly by everything on the one event thread. All
// of it starts at zero, false or empty; Load_Default_Data sets what has another default. A new variable goes
// into the area that owns it, with its line in the Visit_State beneath, and nowhere else.
struct Simulator_State : Shell_State,
                         UTC_State,
                         Link_State,
                         IEC450_State,
                         Message_State,
                         Talker_State,
                         Navdata_State,
                         Log_State,
                         Noise_State,
                         GNSS_State,
                         Radar_State,
                         Autopilot_State,
                         Gullwatch_State,
                         Extra_State {};

// Calls Visit(name, reference) for every variable of the state. A record or a table is handed over whole: the
// visitor goes into it, by Visit_Record for a record.
template <class Visitor>
void Visit_State(Simulator_State& S, Visitor&& Visit) {
    Visit_State(static_cast<Shell_State&>(S), Visit);
    Visit_State(static_cast<UTC_State&>(S), Visit);
    Visit_State(static_cast<Link_State&>(S), Visit);
    Visit_State(static_cast<IEC450_State&>(S), Visit);
    Visit_State(static_cast<Message_State&>(S), Visit);
    Visit_State(static_cast<Talker_State&>(S), Visit);
    Visit_State(static_cast<Navdata_State&>(S), Visit);
    Visit_State(static_cast<Log_State&>(S), Visit);
    Visit_State(static_cast<Noise_State&>(S), Visit);
    Visit_State(static_cast<GNSS_State&>(S), Visit);
    Visit_State(static_cast<Radar_State&>(S), Visit);
    Visit_State(static_cast<Autopilot_State&>(S), Visit);
    Visit_State(static_cast<Gullwatch_State&>(S), Visit);
    Visit_State(static_cast<Extra_State&>(S), Visit);
}

} // namespace brinewright
