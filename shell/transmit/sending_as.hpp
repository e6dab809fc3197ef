#pragma once

#include "shell/state/simulator.hpp"

#include <cstdint>
#include <utility>

namespace brinewright {

// Says whose sentences go through Send_NMEA as long as it stands, a form index or sender::Traffic.
struct Sending_As {
    Sending_As(Simulator& Its_Simulator, std::int16_t Who)
        : Sim(Its_Simulator), Before(std::exchange(Sim.Sender, Who)) {}
    ~Sending_As() { Sim.Sender = Before; }
    Sending_As(const Sending_As&) = delete;
    Sending_As& operator=(const Sending_As&) = delete;

    Simulator& Sim;
    const std::int16_t Before;
};

} // namespace brinewright
